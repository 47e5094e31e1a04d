#include "host/HST_Document.h"

#include "host/HST_CameraState.h"
#include "host/HST_Faults.h"
#include "host/HST_Recorder.h"

#include <QDate>
#include <QVariantMap>

HST_Document::HST_Document(int key, HST_CameraState* camera, int documentIndex, HST_Faults* faults)
    : m_key(key)
    , m_camera(camera)
    , m_documentIndex(documentIndex)
    , m_faults(faults)
{
}

void HST_Document::hostCall(const char* operation) const
{
    if (m_faults)
        m_faults->enter(operation);
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
    out = m_camera ? QString() : QStringLiteral("/simulated/file-%1.dat").arg(m_documentIndex + 1);
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
    out = m_camera ? m_camera->spec.deviceName : QString();
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
    out = QStringLiteral("Partition %1").arg(partition);
    return out;
}

QString& HST_Document::sortName(QString& out)
{
    hostCall("document.sortName");
    return baseName(out);
}

QSize HST_Document::imageSize(QSize& out)
{
    hostCall("document.imageSize");
    out = imageSizeValue();
    return out;
}

QSize HST_Document::imageSizeValue() const
{
    return QSize(1024, 1024);
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

void HST_Document::firmwareVersion(QString& out)
{
    hostCall("document.firmwareVersion");
    out = m_camera ? QStringLiteral("1.00") : QString();
}

int HST_Document::customIndex(const QString& name) const
{
    for (int i = 0; i < m_customData.size(); ++i) {
        if (m_customData.at(i).toMap().value(QStringLiteral("name")).toString() == name)
            return i;
    }
    return -1;
}

void HST_Document::addCustomData(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    hostCall("document.addCustomData");
    m_customData.append(QVariantMap { { QStringLiteral("name"), name },
        { QStringLiteral("value"), value }, { QStringLiteral("unit"), unit },
        { QStringLiteral("display"), display }, { QStringLiteral("usefilename"), usefilename } });
}

void HST_Document::setCustomData(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    hostCall("document.setCustomData");
    const int index = customIndex(name);
    if (index < 0)
        return;
    m_customData[index] = QVariantMap { { QStringLiteral("name"), name },
        { QStringLiteral("value"), value }, { QStringLiteral("unit"), unit },
        { QStringLiteral("display"), display }, { QStringLiteral("usefilename"), usefilename } };
}

void HST_Document::removeCustomData(const QString& name)
{
    hostCall("document.removeCustomData");
    const int index = customIndex(name);
    if (index >= 0)
        m_customData.removeAt(index);
}

void HST_Document::renameCustomData(const QString& oldName, const QString& newName)
{
    hostCall("document.renameCustomData");
    const int index = customIndex(oldName);
    if (index < 0)
        return;
    QVariantMap item = m_customData.at(index).toMap();
    item.insert(QStringLiteral("name"), newName);
    m_customData[index] = item;
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

void HST_Document::networkAddresses(QString& ip, QString& subnetmask, QString& gateway)
{
    hostCall("document.networkAddresses");
    ip = ipAddress(true);
    subnetmask = m_camera ? QStringLiteral("255.255.255.0") : QString();
    gateway.clear();
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
    out = m_camera ? QList<int> { 1 } : QList<int>();
    return out;
}

QString& HST_Document::numberOptionText(
    QString& out, int, int, int, bool* usesSession, const QDateTime*)
{
    hostCall("document.numberOptionText");
    if (usesSession)
        *usesSession = false;
    out.clear();
    return out;
}
