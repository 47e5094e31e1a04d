#include "sync/SyncCameraOrder.h"

#include "plugin/DOC_Camera.h"
#include "util/UTL_TextHelpers.h"

#include <QDebug>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

// Sorts by (rank, address); equal keys keep their order.
template <typename Rank>
void sortByRank(QList<DOC_Camera*>& cameras, Rank rank)
{
    QList<std::pair<std::pair<int, quint32>, DOC_Camera*>> keyed;
    keyed.reserve(cameras.size());
    for (DOC_Camera* camera : qAsConst(cameras))
        keyed.append({{rank(camera), cameraAddress(camera)}, camera});
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (int i = 0; i < keyed.size(); ++i)
        cameras[i] = keyed.at(i).second;
}

} // namespace

quint32 cameraAddress(DOC_Camera* camera)
{
    return ipToNumber(camera->ipAddress(true));
}

void sortByAddress(QList<DOC_Camera*>& cameras)
{
    sortByRank(cameras, [](DOC_Camera*) { return 0; });
}

bool mixedExposureTiming(const QList<DOC_Camera*>& cameras)
{
    bool withFlag = false;
    bool withoutFlag = false;
    for (DOC_Camera* camera : cameras) {
        if (camera->exposureTimingFlag() != 0)
            withFlag = true;
        else
            withoutFlag = true;
    }
    return withFlag && withoutFlag;
}

bool allowsMixedExposure(int triggerMode)
{
    switch (triggerMode) {
    case 1: case 2: case 3: case 4: case 6: case 7: case 13: case 14:
        return true;
    default:
        return false;
    }
}

bool timingFlagFirst(int triggerMode)
{
    switch (triggerMode) {
    case 1: case 2: case 4: case 6: case 7:
        return true;
    default:
        return false;
    }
}

void sortCameras(QList<DOC_Camera*>& cameras, quint32 masterAddress, bool external,
                 int timingFlagFirst)
{
    if (external) {
        sortByAddress(cameras);
    } else {
        if (mixedExposureTiming(cameras) && timingFlagFirst == 1) {
            sortByRank(cameras, [](DOC_Camera* camera) {
                if (camera->exposureTimingFlag() == 1)
                    return 1;
                return camera->exposureTimingClass() == 1 ? 2 : 3;
            });
        } else {
            sortByRank(cameras, [](DOC_Camera* camera) {
                if (camera->exposureTimingClass() == 1)
                    return 1;
                return camera->exposureTimingFlag() == 0 ? 2 : 3;
            });
        }
        for (int i = 0; i < cameras.size(); ++i) {
            if (cameraAddress(cameras.at(i)) == masterAddress) {
                cameras.move(i, 0);
                break;
            }
        }
    }

    QStringList addresses;
    for (DOC_Camera* camera : qAsConst(cameras))
        addresses.append(camera->ipAddress(true));
    QMessageLogger().info() << QStringLiteral("Sorted : ") + addresses.join(QStringLiteral(" -> "));
}

QList<DOC_Camera*> masterCandidates(const QList<DOC_Camera*>& cameras)
{
    QList<DOC_Camera*> classOne;
    QList<DOC_Camera*> flagged;
    QList<DOC_Camera*> rest;
    for (DOC_Camera* camera : cameras) {
        if (camera->exposureTimingClass() == 1)
            classOne.append(camera);
        else if (camera->exposureTimingFlag() != 0)
            flagged.append(camera);
        else
            rest.append(camera);
    }
    if (!mixedExposureTiming(cameras)) {
        if (!classOne.isEmpty())
            return classOne;
        return rest.isEmpty() ? flagged : rest;
    }
    if (timingFlagFirst(cameras.first()->triggerMode()))
        return flagged;
    return classOne.isEmpty() ? rest : classOne;
}
