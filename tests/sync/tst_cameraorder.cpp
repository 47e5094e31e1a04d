#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "sync/SyncCameraOrder.h"
#include "util/UTL_TextHelpers.h"

#include <QtTest>

#include <memory>
#include <vector>

namespace {

// Cameras written as "address flag class", e.g. "10.0.0.2 1 0"; all in one trigger mode.
class CameraSet
{
public:
    CameraSet(const QStringList& rows, int triggerMode)
    {
        for (const QString& row : rows) {
            const QStringList f = row.split(QLatin1Char(' '));
            auto state = std::make_unique<HST_CameraState>();
            state->spec.ip = f.at(0);
            state->spec.exposureTimingFlag = f.at(1).toInt();
            state->spec.exposureTimingClass = f.at(2).toInt();
            state->spec.triggerMode = triggerMode;
            auto doc = std::make_unique<HST_Document>(int(m_docs.size()), state.get(), 0);
            state->primary = doc.get();
            cameras.append(doc->asCamera());
            m_states.push_back(std::move(state));
            m_docs.push_back(std::move(doc));
        }
    }

    QList<DOC_Camera*> cameras;

private:
    std::vector<std::unique_ptr<HST_CameraState>> m_states;
    std::vector<std::unique_ptr<HST_Document>> m_docs;
};

QStringList addresses(const QList<DOC_Camera*>& cameras)
{
    QStringList result;
    for (DOC_Camera* camera : cameras)
        result.append(camera->ipAddress(true));
    return result;
}

} // namespace

class tst_CameraOrder : public QObject
{
    Q_OBJECT

private slots:
    void sort_data();
    void sort();
    void candidates_data();
    void candidates();
};

void tst_CameraOrder::sort_data()
{
    QTest::addColumn<QStringList>("cameras");
    QTest::addColumn<QString>("master");
    QTest::addColumn<bool>("external");
    QTest::addColumn<int>("flagFirst");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("external: addresses compare unsigned, master keeps its place")
        << QStringList { "192.168.0.1 0 0", "10.0.0.2 0 0", "10.0.0.1 0 0" } << "192.168.0.1"
        << true << 1 << QStringList { "10.0.0.1", "10.0.0.2", "192.168.0.1" };
    QTest::newRow("chain unmixed ignores flag first: class 1 before plain")
        << QStringList { "10.0.0.1 0 0", "10.0.0.2 0 1", "10.0.0.3 0 0", "10.0.0.4 0 1" }
        << "0.0.0.0" << false << 1
        << QStringList { "10.0.0.2", "10.0.0.4", "10.0.0.1", "10.0.0.3" };
    QTest::newRow("chain mixed, flag first: flag 1, then class 1, then the rest")
        << QStringList { "10.0.0.1 0 1", "10.0.0.2 0 0", "10.0.0.3 1 0", "10.0.0.4 2 0" }
        << "0.0.0.0" << false << 1
        << QStringList { "10.0.0.3", "10.0.0.1", "10.0.0.2", "10.0.0.4" };
    QTest::newRow("chain mixed without flag first keeps order A")
        << QStringList { "10.0.0.1 0 1", "10.0.0.2 1 0", "10.0.0.3 0 0" } << "0.0.0.0" << false << 0
        << QStringList { "10.0.0.1", "10.0.0.3", "10.0.0.2" };
    QTest::newRow("chain: master first whatever its rank")
        << QStringList { "10.0.0.1 0 1", "10.0.0.2 0 0", "10.0.0.9 1 0" } << "10.0.0.9" << false
        << 0 << QStringList { "10.0.0.9", "10.0.0.1", "10.0.0.2" };
    QTest::newRow("chain: unknown master leaves the sort") << QStringList { "10.0.0.2 0 0",
        "10.0.0.1 0 0" } << "10.9.9.9" << false << 0 << QStringList { "10.0.0.1", "10.0.0.2" };
}

void tst_CameraOrder::sort()
{
    QFETCH(QStringList, cameras);
    QFETCH(QString, master);
    QFETCH(bool, external);
    QFETCH(int, flagFirst);
    QFETCH(QStringList, expected);
    CameraSet set(cameras, 1);
    sortCameras(set.cameras, ipToNumber(master), external, flagFirst);
    QCOMPARE(addresses(set.cameras), expected);
}

void tst_CameraOrder::candidates_data()
{
    QTest::addColumn<QStringList>("cameras");
    QTest::addColumn<int>("triggerMode");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("unmixed: class 1 cameras") << QStringList { "10.0.0.1 0 0", "10.0.0.2 0 1",
        "10.0.0.3 0 1" } << 0 << QStringList { "10.0.0.2", "10.0.0.3" };
    QTest::newRow("unmixed without class 1: the plain ones") << QStringList { "10.0.0.1 0 0",
        "10.0.0.2 0 0" } << 0 << QStringList { "10.0.0.1", "10.0.0.2" };
    QTest::newRow("all flagged: the flagged ones") << QStringList { "10.0.0.1 1 0", "10.0.0.2 1 0" }
                                                   << 0 << QStringList { "10.0.0.1", "10.0.0.2" };
    QTest::newRow("class 1 everywhere is not mixed") << QStringList { "10.0.0.1 0 1",
        "10.0.0.2 0 1" } << 1 << QStringList { "10.0.0.1", "10.0.0.2" };
    QTest::newRow("mixed, flag first: the flagged ones") << QStringList { "10.0.0.1 0 1",
        "10.0.0.2 1 0", "10.0.0.3 0 0" } << 1 << QStringList { "10.0.0.2" };
    QTest::newRow("mixed, flag first, flag only on class 1: none")
        << QStringList { "10.0.0.1 1 1", "10.0.0.2 0 0" } << 2 << QStringList {};
    QTest::newRow("mixed, no flag first: class 1") << QStringList { "10.0.0.1 0 1", "10.0.0.2 1 0",
        "10.0.0.3 0 0" } << 3 << QStringList { "10.0.0.1" };
    QTest::newRow("mixed, no flag first, no class 1: the plain ones")
        << QStringList { "10.0.0.1 0 0", "10.0.0.2 1 0" } << 0 << QStringList { "10.0.0.1" };
}

void tst_CameraOrder::candidates()
{
    QFETCH(QStringList, cameras);
    QFETCH(int, triggerMode);
    QFETCH(QStringList, expected);
    CameraSet set(cameras, triggerMode);
    QCOMPARE(addresses(masterCandidates(set.cameras)), expected);
}

QTEST_GUILESS_MAIN(tst_CameraOrder)
#include "tst_cameraorder.moc"
