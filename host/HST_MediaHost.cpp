#include "host/HST_MediaHost.h"

#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Recorder.h"
#include "util/APP_Exception.h"

#include <QFileInfo>
#include <QJsonArray>

namespace {

QJsonArray keyArray(const QList<int>& keys)
{
    QJsonArray array;
    for (int key : keys)
        array.append(key);
    return array;
}

} // namespace

HST_MediaHost::HST_MediaHost(HST_Recorder* recorder)
    : HST_DocumentHost(recorder)
    , m_mediaRecorder(recorder)
    , m_media(std::make_unique<HST_Media>())
    , m_writer(std::make_unique<HST_SaveWriter>(HST_WriterSpec()))
{
    documentContext().media = m_media.get();
    documentContext().closeDocument = [this](int key) { closeDocument(key); };
}

HST_MediaHost::~HST_MediaHost()
{
    documentContext().closeDocument = nullptr;
}

void HST_MediaHost::setSaveWorld(const HST_Scenario& scenario)
{
    resetMedia(scenario.cameras);
    m_writer = std::make_unique<HST_SaveWriter>(scenario.writer);
    setLoopSave(scenario.loopSaveMode, scenario.loopSaveActive);
}

void HST_MediaHost::resetMedia(const QList<HST_CameraSpec>& cameras)
{
    for (int key : qAsConst(m_mediaKeys))
        closeDocument(key);
    m_mediaKeys.clear();
    m_openKind = HST_MediaKind::None;
    m_openDrive.clear();
    m_media->reset(cameras);
}

void HST_MediaHost::setLoopSave(bool mode, bool active)
{
    m_loopSaveMode = mode;
    m_loopSaveActive = active;
}

// APP_MediaEngine

unsigned HST_MediaHost::sdDriveMask()
{
    hostCall("sdDriveMask");
    return m_media->sdDriveMask();
}

int HST_MediaHost::currentSdDrive()
{
    hostCall("currentSdDrive");
    return m_openKind == HST_MediaKind::Sd ? m_media->sdDrives().indexOf(m_openDrive) : -1;
}

void HST_MediaHost::setMediaKind(int kind)
{
    hostCall("setMediaKind");
    m_mediaKind = kind;
    m_mediaRecorder->record(QStringLiteral("setMediaKind"), { { QStringLiteral("kind"), kind } });
}

void HST_MediaHost::openSlot(const HST_Media::Slot& slot)
{
    closeOpenMedia();
    for (const HST_DocumentSpec& spec : m_media->recordingDocuments(slot))
        m_mediaKeys.append(addDocument(spec));
    m_openKind = slot.kind;
    m_openDrive = slot.spec.drive;
    m_mediaRecorder->record(QStringLiteral("openMedia"),
        { { QStringLiteral("kind"), HST_Media::kindName(slot.kind) },
            { QStringLiteral("drive"), slot.spec.drive },
            { QStringLiteral("keys"), keyArray(m_mediaKeys) } });
}

void HST_MediaHost::openSdDrive(const QString& driveName)
{
    hostCall("openSdDrive");
    openSlot(m_media->slotOfDrive(HST_MediaKind::Sd, driveName));
}

void HST_MediaHost::closeMedia()
{
    hostCall("closeMedia");
    closeOpenMedia();
}

void HST_MediaHost::closeOpenMedia()
{
    if (m_openKind == HST_MediaKind::None)
        return;
    const QList<int> keys = m_mediaKeys;
    m_mediaKeys.clear();
    for (int key : keys)
        closeDocument(key);
    m_mediaRecorder->record(QStringLiteral("closeMedia"),
        { { QStringLiteral("drive"), m_openDrive }, { QStringLiteral("keys"), keyArray(keys) } });
    m_openKind = HST_MediaKind::None;
    m_openDrive.clear();
}

QVariantList HST_MediaHost::storageUnitDrives()
{
    hostCall("storageUnitDrives");
    return m_media->drives(HST_MediaKind::StorageUnit);
}

QVariantList HST_MediaHost::cfastDrives()
{
    hostCall("cfastDrives");
    return m_media->drives(HST_MediaKind::CFast);
}

void HST_MediaHost::openStorageUnit(int, int driveNo, int slotNo, const QString&)
{
    hostCall("openStorageUnit");
    const HST_Media::Slot& slot = m_media->slot(HST_MediaKind::StorageUnit, driveNo, slotNo);
    if (!slot.spec.password.isEmpty() && !slot.unlocked)
        throw APP_Exception(
            QStringLiteral("The storage unit %1 is locked by a password.").arg(slot.spec.drive),
            407);
    openSlot(slot);
}

bool HST_MediaHost::unlockStorageUnit(int, int driveNo, int slotNo, const QString& password)
{
    hostCall("unlockStorageUnit");
    HST_Media::Slot& slot = m_media->slot(HST_MediaKind::StorageUnit, driveNo, slotNo);
    const bool right = password == slot.spec.password;
    slot.unlocked = slot.unlocked || right;
    // Never the password itself.
    m_mediaRecorder->record(QStringLiteral("unlockStorageUnit"),
        { { QStringLiteral("drive"), slot.spec.drive }, { QStringLiteral("result"), right } });
    return right;
}

void HST_MediaHost::openCFast(int, int driveNo, int slotNo, const QString&)
{
    hostCall("openCFast");
    openSlot(m_media->slot(HST_MediaKind::CFast, driveNo, slotNo));
}

void HST_MediaHost::format(HST_Media::Slot& slot)
{
    if (m_openKind == slot.kind && m_openDrive == slot.spec.drive)
        closeOpenMedia();
    HST_Media::format(slot);
    m_mediaRecorder->record(QStringLiteral("formatMedia"),
        { { QStringLiteral("kind"), HST_Media::kindName(slot.kind) },
            { QStringLiteral("drive"), slot.spec.drive } });
}

void HST_MediaHost::formatStorageUnit(int, int driveNo, int slotNo)
{
    hostCall("formatStorageUnit");
    format(m_media->slot(HST_MediaKind::StorageUnit, driveNo, slotNo));
}

void HST_MediaHost::formatCFast(int, int driveNo, int slotNo)
{
    hostCall("formatCFast");
    format(m_media->slot(HST_MediaKind::CFast, driveNo, slotNo));
}

void HST_MediaHost::storageUnitUsage(int, int driveNo, int slotNo, quint64& used, quint64& capacity)
{
    hostCall("storageUnitUsage");
    const HST_Media::Slot& slot = m_media->slot(HST_MediaKind::StorageUnit, driveNo, slotNo);
    used = HST_Media::usedBytes(slot);
    capacity = HST_Media::capacityBytes(slot);
}

void HST_MediaHost::cfastUsage(int, int driveNo, int slotNo, quint64& used, quint64& capacity)
{
    hostCall("cfastUsage");
    const HST_Media::Slot& slot = m_media->slot(HST_MediaKind::CFast, driveNo, slotNo);
    used = HST_Media::usedBytes(slot);
    capacity = HST_Media::capacityBytes(slot);
}

quint64 HST_MediaHost::totalWrittenAmount(int, int driveNo, int slotNo)
{
    hostCall("totalWrittenAmount");
    return m_media->slot(HST_MediaKind::StorageUnit, driveNo, slotNo).spec.writtenGigabytes;
}

// APP_DocumentList

QList<int> HST_MediaHost::deviceKeys()
{
    hostCall("deviceKeys");
    QList<int> keys;
    for (HST_Document* document : openDocuments()) {
        if (document->cameraState())
            keys.append(document->key());
    }
    return keys;
}

void HST_MediaHost::openFiles(const QStringList& paths)
{
    hostCall("openFiles");
    QList<int> keys;
    for (const QString& path : paths) {
        HST_DocumentSpec spec;
        spec.baseName = QFileInfo(path).completeBaseName();
        spec.filePath = path;
        spec.temporary = true;
        keys.append(addDocument(spec));
    }
    m_mediaRecorder->record(QStringLiteral("openFiles"),
        { { QStringLiteral("paths"), QJsonArray::fromStringList(paths) },
            { QStringLiteral("keys"), keyArray(keys) } });
}

void HST_MediaHost::importDocuments(const QList<int>& keys)
{
    hostCall("importDocuments");
    QList<int> imported;
    for (int key : keys) {
        HST_Document* document = openDocument(key);
        if (document && document->isTemporary()) {
            document->setTemporary(false);
            m_mediaKeys.removeAll(key);
            imported.append(key);
        }
    }
    m_mediaRecorder->record(
        QStringLiteral("importDocuments"), { { QStringLiteral("keys"), keyArray(imported) } });
    hostStateChanged();
}

// APP_SaveRegistry

bool HST_MediaHost::isLoopSaveMode()
{
    hostCall("isLoopSaveMode");
    return m_loopSaveMode;
}

bool HST_MediaHost::isLoopSaveActive()
{
    hostCall("isLoopSaveActive");
    return m_loopSaveActive;
}

QList<QPair<QString, QString>> HST_MediaHost::findSavedData(
    const QString& folder, const QList<QPair<QString, QString>>& pairs)
{
    hostCall("findSavedData");
    const QList<QPair<QString, QString>> found = HST_InfoFile::findSaved(folder, pairs);
    QJsonArray list;
    for (const auto& pair : found)
        list.append(QJsonArray { pair.first, pair.second });
    m_mediaRecorder->record(QStringLiteral("findSavedData"),
        { { QStringLiteral("folder"), folder }, { QStringLiteral("asked"), pairs.size() },
            { QStringLiteral("found"), list } });
    return found;
}

HST_SaveWriter::Source HST_MediaHost::sourceOf(HST_Document* document) const
{
    HST_SaveWriter::Source source;
    const HST_DocumentSpec& spec = document->spec();
    source.key = document->key();
    source.title = document->title();
    source.partitions = spec.partitions;
    source.framesPerSecond = qBound(1, document->rateOf(document->currentPartitionNumber()), 1000);
    source.info << qMakePair(QStringLiteral("document"), document->title())
                << qMakePair(QStringLiteral("key"), QString::number(document->key()));
    if (const HST_CameraState* camera = document->cameraState())
        source.info << qMakePair(QStringLiteral("camera"), camera->spec.name)
                    << qMakePair(QStringLiteral("ip"), camera->spec.ip);
    if (spec.media.kind != HST_MediaKind::None)
        source.info << qMakePair(QStringLiteral("serialno"), spec.media.serialNo)
                    << qMakePair(QStringLiteral("datano"), spec.media.dataNo)
                    << qMakePair(QStringLiteral("dataname"), document->title());
    return source;
}

void HST_MediaHost::saveDocument(
    int key, const QMap<int, QString>& paths, const APP_SaveRequest& request)
{
    hostCall("saveDocument");
    QJsonObject event { { QStringLiteral("key"), key }, { QStringLiteral("mode"), request.mode },
        { QStringLiteral("format"), request.format }, { QStringLiteral("codec"), request.codec },
        { QStringLiteral("skip"), request.skipFrames },
        { QStringLiteral("info"), request.saveInfo },
        { QStringLiteral("thumbnail"), request.saveThumbnail } };
    QStringList written;
    try {
        HST_Document* document = openDocument(key);
        if (!document)
            throw APP_Exception(QStringLiteral("The document %1 is no longer open.").arg(key), 1);
        m_writer->write(sourceOf(document), paths, request, written);
    } catch (const std::exception& e) {
        event.insert(QStringLiteral("files"), QJsonArray::fromStringList(written));
        event.insert(QStringLiteral("error"), QString::fromUtf8(e.what()));
        m_mediaRecorder->record(QStringLiteral("saveDocument"), event);
        throw;
    }
    event.insert(QStringLiteral("files"), QJsonArray::fromStringList(written));
    m_mediaRecorder->record(QStringLiteral("saveDocument"), event);
}
