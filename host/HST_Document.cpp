#include "host/HST_Document.h"

#include "host/HST_CameraState.h"
#include "host/HST_DocumentDescription.h"
#include "host/HST_Faults.h"
#include "host/HST_InfoHost.h"
#include "host/HST_Media.h"
#include "host/HST_NumberOption.h"
#include "host/HST_Preview.h"
#include "host/HST_Recorder.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QVariantMap>

HST_Document::HST_Document(int key, HST_CameraState* camera, int documentIndex,
    HST_DocumentContext* context, const HST_DocumentSpec& spec)
    : m_key(key)
    , m_camera(camera)
    , m_documentIndex(documentIndex)
    , m_context(context)
    , m_spec(spec)
    , m_comment(spec.comment)
    , m_customData(spec.customData, context ? context->recorder : nullptr, key)
    , m_currentPartition(spec.partitions.isEmpty() ? 1 : spec.partitions.first().number)
    , m_view(spec.view)
{
}

void HST_Document::hostCall(const char* operation) const
{
    if (m_context && m_context->faults)
        m_context->faults->enter(operation);
}

void HST_Document::record(const QString& call, QJsonObject fields) const
{
    if (!m_context || !m_context->recorder)
        return;
    fields.insert(QStringLiteral("key"), m_key);
    m_context->recorder->record(call, fields);
}

QString HST_Document::fileName() const
{
    return m_spec.baseName.isEmpty() ? QStringLiteral("file-%1").arg(m_documentIndex + 1)
                                     : m_spec.baseName;
}

int HST_Document::headCount()
{
    hostCall("document.headCount");
    return m_camera ? m_camera->spec.headCount : 1;
}

const HST_PartitionSpec* HST_Document::partitionSpec(int partition) const
{
    for (const HST_PartitionSpec& spec : m_spec.partitions) {
        if (spec.number == partition)
            return &spec;
    }
    return nullptr;
}

unsigned HST_Document::partitionFrames(int partition, int)
{
    hostCall("document.partitionFrames");
    const HST_PartitionSpec* spec = partitionSpec(partition);
    return spec ? spec->frames : 0;
}

void HST_Document::setComment(const QString& text)
{
    hostCall("document.setComment");
    m_comment = text;
    record(QStringLiteral("setComment"), { { QStringLiteral("text"), text } });
}

int HST_Document::headNumber()
{
    hostCall("document.headNumber");
    return m_camera ? m_camera->spec.headNumber : 0;
}

DOC_Camera* HST_Document::asCamera()
{
    hostCall("document.asCamera");
    return m_camera ? m_camera->primary : nullptr;
}

void HST_Document::heads(QList<DOC_Interface*>& out, bool)
{
    hostCall("document.heads");
    out.clear();
    out.append(this);
}

QString& HST_Document::filePath(QString& out)
{
    hostCall("document.filePath");
    out = m_spec.filePath;
    return out;
}

QString HST_Document::title() const
{
    return m_camera ? m_camera->spec.name : fileName();
}

bool HST_Document::isConnected()
{
    hostCall("document.isConnected");
    return m_camera && m_camera->spec.connected;
}

bool HST_Document::isMobile()
{
    hostCall("document.isMobile");
    return m_camera && m_camera->spec.mobile;
}

bool HST_Document::isRostraLocked()
{
    hostCall("document.isRostraLocked");
    return m_camera && m_camera->spec.rostraLocked;
}

bool HST_Document::imageFormat(int& depth, int& realDepth)
{
    hostCall("document.imageFormat");
    // A file's image has no format the simulation knows.
    depth = m_camera ? m_camera->spec.bitDepth : 0;
    realDepth = m_camera ? m_camera->spec.realBitDepth : 0;
    return m_camera != nullptr;
}

int HST_Document::supportsWifiConnected()
{
    hostCall("document.supportsWifiConnected");
    return m_camera && m_camera->spec.wifiConnected ? 1 : 0;
}

int HST_Document::supportsLinkSpeed()
{
    hostCall("document.supportsLinkSpeed");
    return m_camera && m_camera->spec.linkSpeed ? 1 : 0;
}

QString& HST_Document::deviceName(QString& out)
{
    hostCall("document.deviceName");
    out = m_camera ? m_camera->spec.deviceName : fileName();
    return out;
}

QString& HST_Document::baseName(QString& out)
{
    hostCall("document.baseName");
    out = m_camera ? m_camera->spec.name : fileName();
    return out;
}

QString& HST_Document::partitionName(QString& out, int partition)
{
    hostCall("document.partitionName");
    const HST_PartitionSpec* spec = partitionSpec(partition);
    out = spec ? spec->name : QString();
    return out;
}

QString& HST_Document::sortName(QString& out)
{
    hostCall("document.sortName");
    return baseName(out);
}

QString HST_Document::ipAddress(bool)
{
    hostCall("document.ipAddress");
    return m_camera ? m_camera->spec.ip : QString();
}

int HST_Document::cameraType()
{
    hostCall("document.cameraType");
    return m_camera ? m_camera->spec.type : 0;
}

QString HST_Document::cameraName(bool)
{
    hostCall("document.cameraName");
    return m_camera ? m_camera->spec.name : QString();
}

QString HST_Document::modelText(bool)
{
    hostCall("document.modelText");
    return m_camera ? m_camera->spec.model : QString();
}

int HST_Document::deviceNumber()
{
    hostCall("document.deviceNumber");
    return m_camera ? m_camera->index : 0;
}

QString& HST_Document::recordingDate(QString& out)
{
    hostCall("document.recordingDate");
    out = QDate::currentDate().toString(QStringLiteral("yyyy/M/d"));
    return out;
}

QString& HST_Document::recordingTime(QString& out)
{
    hostCall("document.recordingTime");
    out = QStringLiteral("12:00:00");
    return out;
}

int HST_Document::triggerMode()
{
    hostCall("document.triggerMode");
    return m_camera ? m_camera->spec.triggerMode : 0;
}

bool HST_Document::isFunctionSupported(int functionId, bool)
{
    hostCall("document.isFunctionSupported");
    // 116: recorded data must be erased before a sync; the others as the camera lists them.
    if (!m_camera)
        return false;
    return functionId == 116 ? m_camera->spec.needsErase
                             : m_camera->spec.functions.contains(functionId);
}

QString HST_Document::firmwarePart(int index) const
{
    return m_camera ? m_camera->spec.firmware.value(index) : QString();
}

void HST_Document::firmwareVersion(QString& out)
{
    hostCall("document.firmwareVersion");
    out = firmwarePart(0);
}

void HST_Document::firmwareVersion2(QString& out)
{
    hostCall("document.firmwareVersion2");
    out = firmwarePart(1);
}

void HST_Document::firmwareVersion3(QString& out)
{
    hostCall("document.firmwareVersion3");
    out = firmwarePart(2);
}

void HST_Document::addCustomData(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    hostCall("document.addCustomData");
    m_customData.add(name, value, unit, display, usefilename);
}

void HST_Document::setCustomData(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    hostCall("document.setCustomData");
    m_customData.set(name, value, unit, display, usefilename);
}

void HST_Document::removeCustomData(const QString& name)
{
    hostCall("document.removeCustomData");
    m_customData.remove(name);
}

void HST_Document::renameCustomData(const QString& oldName, const QString& newName)
{
    hostCall("document.renameCustomData");
    m_customData.rename(oldName, newName);
}

int HST_Document::exposureTimingFlag()
{
    hostCall("document.exposureTimingFlag");
    return m_camera ? m_camera->spec.exposureTimingFlag : 0;
}

int HST_Document::exposureTimingClass()
{
    hostCall("document.exposureTimingClass");
    return m_camera ? m_camera->spec.exposureTimingClass : 0;
}

bool HST_Document::isDummy()
{
    hostCall("document.isDummy");
    return m_camera && m_camera->spec.dummy;
}

bool HST_Document::hasRecordedData()
{
    hostCall("document.hasRecordedData");
    return m_camera && m_camera->recorded.load();
}

void HST_Document::eraseRecordedData(int)
{
    hostCall("document.eraseRecordedData");
    if (!m_camera)
        return;
    m_camera->recorded.store(false);
    if (m_camera->recorder)
        m_camera->recorder->record(QStringLiteral("eraseRecordedData"),
            { { QStringLiteral("camera"), m_camera->spec.ip } });
}

int HST_Document::etherType()
{
    hostCall("document.etherType");
    return m_camera ? m_camera->spec.etherType : 0;
}

void HST_Document::setEtherType(int type)
{
    hostCall("document.setEtherType");
    if (!m_camera)
        return;
    m_camera->spec.etherType = type;
    record(QStringLiteral("setEtherType"), { { QStringLiteral("type"), type } });
}

void HST_Document::networkAddresses(QString& ip, QString& subnetmask, QString& gateway)
{
    hostCall("document.networkAddresses");
    ip = ipAddress(true);
    subnetmask = m_camera ? m_camera->spec.subnetmask : QString();
    gateway = m_camera ? m_camera->spec.gateway : QString();
}

quint64 HST_Document::serialNumber(bool device)
{
    hostCall("document.serialNumber");
    if (!m_camera)
        return 0;
    return (device ? 100000u : 200000u) + quint64(m_camera->index);
}

int HST_Document::dualSlopeShutter()
{
    hostCall("document.dualSlopeShutter");
    return m_camera ? m_camera->spec.dualSlopeShutter : 0;
}

int HST_Document::automaticExposureControl()
{
    hostCall("document.automaticExposureControl");
    return m_camera ? m_camera->spec.automaticExposureControl : 0;
}

int HST_Document::lowLightMode()
{
    hostCall("document.lowLightMode");
    return m_camera ? m_camera->spec.lowLightMode : 0;
}

QList<int>& HST_Document::partitions(QList<int>& out)
{
    hostCall("document.partitions");
    out.clear();
    for (const HST_PartitionSpec& spec : m_spec.partitions)
        out.append(spec.number);
    return out;
}

QString& HST_Document::numberOptionText(
    QString& out, int mode, int partition, int session, bool* usesSession, const QDateTime*)
{
    hostCall("document.numberOptionText");
    HST_NumberOption::Document document;
    if (m_camera) {
        document.deviceNumber = m_camera->index;
        document.headNumber = m_camera->spec.headNumber;
        document.recordingRate = 1000;
    }
    out = HST_NumberOption::text(
        m_context ? m_context->prefs : nullptr, mode, partition, session, document, usesSession);
    return out;
}

// What a save takes of a document.

int HST_Document::rateOf(int partition) const
{
    const HST_PartitionSpec* spec = partitionSpec(partition);
    if (spec && spec->rate >= 0)
        return spec->rate;
    return m_camera ? 1000 : 0;
}

void HST_Document::selectPartition(int partition)
{
    hostCall("document.selectPartition");
    if (partition == m_currentPartition || !partitionSpec(partition))
        return;
    m_currentPartition = partition;
    record(QStringLiteral("selectPartition"), { { QStringLiteral("partition"), partition } });
}

QVariantMap HST_Document::documentDescription(bool convert)
{
    hostCall("document.documentDescription");
    return HST_DocumentDescription::of(*this, convert);
}

bool HST_Document::isMultiSkipA()
{
    hostCall("document.isMultiSkipA");
    return m_spec.multiSkipA;
}

bool HST_Document::isMultiSkipB()
{
    hostCall("document.isMultiSkipB");
    return m_spec.multiSkipB;
}

bool HST_Document::isOnSd()
{
    hostCall("document.isOnSd");
    return m_spec.media.kind == HST_MediaKind::Sd;
}

bool HST_Document::isOnStorageUnit()
{
    hostCall("document.isOnStorageUnit");
    return m_spec.media.kind == HST_MediaKind::StorageUnit;
}

bool HST_Document::isOnCFast()
{
    hostCall("document.isOnCFast");
    return m_spec.media.kind == HST_MediaKind::CFast;
}

bool HST_Document::canDeleteFile()
{
    hostCall("document.canDeleteFile");
    return m_spec.media.kind == HST_MediaKind::None && !m_spec.filePath.isEmpty()
        && QFileInfo(m_spec.filePath).isFile();
}

bool HST_Document::deleteFile()
{
    hostCall("document.deleteFile");
    const QString path = m_spec.filePath;
    const bool deleted = m_spec.media.kind == HST_MediaKind::None && !path.isEmpty()
        && QFileInfo(path).isFile() && QFile::remove(path);
    record(QStringLiteral("deleteFile"),
        { { QStringLiteral("path"), path }, { QStringLiteral("deleted"), deleted } });
    if (deleted && m_context && m_context->closeDocument)
        m_context->closeDocument(m_key);
    return deleted;
}

bool HST_Document::isSavable()
{
    hostCall("document.isSavable");
    return m_spec.savable;
}

void HST_Document::setSaveOption(const char* operation, const char* name, bool& option, bool on)
{
    hostCall(operation);
    if (option == on)
        return;
    option = on;
    record(QStringLiteral("saveOption"),
        { { QStringLiteral("option"), QLatin1String(name) }, { QStringLiteral("on"), on } });
}

void HST_Document::setSaveInfo(bool on)
{
    setSaveOption("document.setSaveInfo", "info", m_saveInfo, on);
}

void HST_Document::setSaveCorrect(bool on)
{
    setSaveOption("document.setSaveCorrect", "correct", m_saveCorrect, on);
}

void HST_Document::setSaveScale(bool on)
{
    setSaveOption("document.setSaveScale", "scale", m_saveScale, on);
}

void HST_Document::setDataName(const QString& name)
{
    hostCall("document.setDataName");
    if (m_spec.media.kind != HST_MediaKind::None) {
        m_spec.baseName = name;
        if (m_context && m_context->media)
            m_context->media->rename(m_spec.media, name);
    }
    record(QStringLiteral("setDataName"), { { QStringLiteral("name"), name } });
}

bool HST_Document::canCheckSaved()
{
    hostCall("document.canCheckSaved");
    return !m_spec.media.serialNo.isEmpty();
}

QPixmap HST_Document::previewPixmap(
    int, int width, int height, int partition, int set, const QDateTime&)
{
    hostCall("document.previewPixmap");
    // A document the scenario gives no partitions shows its plain frame for any.
    if (!m_spec.partitions.isEmpty() && !partitionSpec(partition))
        return QPixmap();
    // Sizes a page can't show are held to what it can.
    const QSize size = QSize(width, height).expandedTo(QSize(1, 1)).boundedTo(QSize(8192, 8192));
    if (!m_context || !m_context->info)
        return QPixmap(size);
    return m_context->info->informationPreview(*this, size, partition, set);
}

void HST_Document::reloadLogo()
{
    hostCall("document.reloadLogo");
    record(QStringLiteral("reloadLogo"), {});
    if (m_context && m_context->info)
        m_context->info->reloadLogos();
}
