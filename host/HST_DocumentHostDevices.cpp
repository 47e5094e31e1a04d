// HST_DocumentHost's multi-head devices, device entries and camera settings files, apart from
// the rest of the documents.
#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_DocumentHost.h"
#include "host/HST_HeadGroups.h"
#include "host/HST_Recorder.h"
#include "host/HST_SettingsFile.h"
#include "util/APP_Exception.h"

#include <QFile>
#include <QJsonArray>
#include <QSaveFile>

namespace {

// Larger than any settings file of 256 cameras.
const qint64 maxSettingsFileSize = qint64(1024) * 1024;

QMap<QString, int> settingsOf(const HST_CameraSpec& spec)
{
    return { { QStringLiteral("triggerMode"), spec.triggerMode },
        { QStringLiteral("lowLightMode"), spec.lowLightMode },
        { QStringLiteral("dualSlopeShutter"), spec.dualSlopeShutter },
        { QStringLiteral("automaticExposureControl"), spec.automaticExposureControl },
        { QStringLiteral("exposureTimingFlag"), spec.exposureTimingFlag },
        { QStringLiteral("exposureTimingClass"), spec.exposureTimingClass },
        { QStringLiteral("etherType"), spec.etherType } };
}

void applySettings(HST_CameraSpec& spec, const QMap<QString, int>& settings)
{
    spec.triggerMode = settings.value(QStringLiteral("triggerMode"));
    spec.lowLightMode = settings.value(QStringLiteral("lowLightMode"));
    spec.dualSlopeShutter = settings.value(QStringLiteral("dualSlopeShutter"));
    spec.automaticExposureControl = settings.value(QStringLiteral("automaticExposureControl"));
    spec.exposureTimingFlag = settings.value(QStringLiteral("exposureTimingFlag"));
    spec.exposureTimingClass = settings.value(QStringLiteral("exposureTimingClass"));
    spec.etherType = settings.value(QStringLiteral("etherType"));
}

} // namespace

HST_CameraState* HST_DocumentHost::addHeadGroup(const HST_CameraSpec& spec)
{
    HST_CameraSpec device = spec;
    device.setup.heads = 0;
    device.headCount = spec.setup.heads;
    device.documents = 1;
    HST_CameraState* owner = addCamera(device);
    QList<int> heads;
    for (int n = 1; n <= spec.setup.heads; ++n) {
        HST_CameraSpec head = device;
        head.name = QStringLiteral("%1 H%2").arg(spec.name).arg(n);
        head.deviceName = head.name;
        head.headNumber = n;
        heads.append(addCamera(head)->primary->key());
    }
    m_headGroups->add(owner->primary->key(), heads);
    return owner;
}

void HST_DocumentHost::removeAllDocuments(int, bool unselectOnly)
{
    hostCall("removeAllDocuments");
    m_documentRecorder->record(
        QStringLiteral("removeAllDocuments"), { { QStringLiteral("unselectOnly"), unselectOnly } });
    if (unselectOnly) {
        setSelection({});
        recordSelection();
        return;
    }
    m_headGroups->clear();
    for (int key : m_documents.keys())
        closeDocument(key);
}

DOC_Interface* HST_DocumentHost::headParent(DOC_Interface* doc)
{
    hostCall("headParent");
    const auto* head = dynamic_cast<HST_Document*>(doc);
    return head ? m_documents.value(m_headGroups->ownerOf(head->key()), nullptr) : nullptr;
}

QList<int> HST_DocumentHost::settingsDocumentKeys()
{
    hostCall("settingsDocumentKeys");
    // One document per camera; an owner stands for its heads, which hold the settings.
    QList<int> keys;
    for (const auto& camera : m_cameras) {
        const int key = camera->primary ? camera->primary->key() : INVALID_DOCKEY;
        if (m_documents.contains(key) && !m_headGroups->isOwner(key))
            keys.append(key);
    }
    return keys;
}

void HST_DocumentHost::saveSettingsFile(const QString& path, int)
{
    hostCall("saveSettingsFile");
    // On a pool thread while the GUI thread waits: the cameras don't change meanwhile.
    QList<HST_SettingsFile::Camera> cameras;
    QJsonArray names;
    for (int key : settingsDocumentKeys()) {
        const HST_CameraSpec& spec = m_documents.value(key)->cameraState()->spec;
        cameras.append({ spec.name, spec.model, settingsOf(spec) });
        names.append(spec.name);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(HST_SettingsFile::write(cameras)) < 0
        || !file.commit())
        throw APP_Exception(
            QStringLiteral("The camera settings file could not be written: %1").arg(path), 1);
    m_documentRecorder->record(QStringLiteral("saveSettingsFile"),
        { { QStringLiteral("path"), path }, { QStringLiteral("cameras"), names } });
}

void HST_DocumentHost::loadSettingsFile(const QString& path)
{
    hostCall("loadSettingsFile");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw APP_Exception(QStringLiteral("The file can't be opened: %1").arg(path), 1);
    if (file.size() > maxSettingsFileSize)
        throw APP_Exception(QStringLiteral("The file is not a camera settings file."), 1);
    QList<HST_SettingsFile::Camera> entries;
    QString error;
    if (!HST_SettingsFile::read(file.readAll(), entries, error))
        throw APP_Exception(error, 1);
    // Every camera is found before any changes: all settings apply, or none.
    QList<HST_CameraState*> targets;
    for (const HST_SettingsFile::Camera& entry : qAsConst(entries)) {
        HST_CameraState* target = nullptr;
        for (int key : settingsDocumentKeys()) {
            HST_CameraState* camera = m_documents.value(key)->cameraState();
            if (camera->spec.name == entry.name && camera->spec.model == entry.model)
                target = camera;
        }
        if (!target)
            throw APP_Exception(
                QStringLiteral("The settings file is for a camera that isn't connected: %1 (%2)")
                    .arg(entry.name, entry.model),
                1);
        targets.append(target);
    }
    QJsonArray names;
    for (int i = 0; i < targets.size(); ++i) {
        applySettings(targets.at(i)->spec, entries.at(i).settings);
        names.append(entries.at(i).name);
    }
    m_documentRecorder->record(QStringLiteral("loadSettingsFile"),
        { { QStringLiteral("path"), path }, { QStringLiteral("cameras"), names } });
    hostStateChanged();
}

void HST_DocumentHost::stopPlayer()
{
    hostCall("stopPlayer");
    m_documentRecorder->record(QStringLiteral("stopPlayer"));
}

void HST_DocumentHost::stopViewRecording()
{
    hostCall("stopViewRecording");
    m_documentRecorder->record(QStringLiteral("stopViewRecording"));
}

void HST_DocumentHost::selectPartition(int partition, bool update)
{
    hostCall("selectPartition");
    for (HST_Document* document : qAsConst(m_documents)) {
        if (document->cameraState())
            document->selectPartition(partition);
    }
    m_documentRecorder->record(QStringLiteral("selectPartition"),
        { { QStringLiteral("partition"), partition }, { QStringLiteral("update"), update } });
    hostStateChanged();
}
