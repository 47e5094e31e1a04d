#include "dialogs/JS_Mediator_EditDeviceDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "util/APP_Exception.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

const int wifiFunction = 112;
const int serialNumberFunction = 167;

QString serialText(quint64 number)
{
    return QStringLiteral("%1").arg(number, 11, 10, QLatin1Char('0'));
}

QString firmwareText(DOC_Camera* camera)
{
    QString text;
    camera->firmwareVersion(text);
    for (int part = 2; part <= 3; ++part) {
        QString more;
        if (part == 2)
            camera->firmwareVersion2(more);
        else
            camera->firmwareVersion3(more);
        if (!more.isEmpty())
            text += QStringLiteral(" - ") + more;
    }
    return text;
}

} // namespace

JS_Mediator_EditDeviceDialog::JS_Mediator_EditDeviceDialog(
    APP_Host* host, const QString& name, int documentKey)
    : JS_Mediator_Dialog(host, name)
    , m_documentKey(documentKey)
{
}

QString JS_Mediator_EditDeviceDialog::getEditDeviceDialogSettings()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        DOC_Interface* document = m_host->document(m_documentKey);
        if (!document)
            throw APP_Exception(
                UTL_Messages::translate(m_host, QStringLiteral("The device is no longer there.")),
                0);
        DOC_Camera* camera = document;
        QJsonObject settings;
        settings.insert(QStringLiteral("isMemoryMode"), m_host->isMemoryMode());
        settings.insert(QStringLiteral("CameraName"), camera->cameraName(true));
        settings.insert(QStringLiteral("EtherType"), camera->etherType());
        QString ip;
        QString subnetmask;
        QString gateway;
        camera->networkAddresses(ip, subnetmask, gateway);
        settings.insert(QStringLiteral("IPAddress"), ip);
        settings.insert(QStringLiteral("Subnetmask"), subnetmask);
        settings.insert(QStringLiteral("DefaultGateway"), gateway);
        settings.insert(QStringLiteral("ModelName"), camera->modelText(true));
        const QString headName = camera->headName(true);
        settings.insert(QStringLiteral("HeadName"), headName);
        settings.insert(QStringLiteral("FWVer"), firmwareText(camera));
        settings.insert(
            QStringLiteral("IsSupportWifi"), camera->isFunctionSupported(wifiFunction, true));
        settings.insert(QStringLiteral("IsDummy"), camera->isDummy());
        const bool serials = camera->isFunctionSupported(serialNumberFunction, true);
        settings.insert(QStringLiteral("DeviceSerialNumber"),
            serials ? serialText(camera->serialNumber(true)) : QString());
        settings.insert(QStringLiteral("HeadSerialNumber"),
            serials && !headName.isEmpty() ? serialText(camera->serialNumber(false)) : QString());
        return QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact));
    });
}

void JS_Mediator_EditDeviceDialog::ok(const QString& cameraName, const QString& ipAddress,
    const QString& subnetmask, const QString& defaultGateway)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_EditDeviceDialog::ok"),
        FunctionLogGuard::parameter(QStringLiteral("cameraName"), cameraName)
            + FunctionLogGuard::parameter(QStringLiteral("ipAddress"), ipAddress)
            + FunctionLogGuard::parameter(QStringLiteral("subnetmask"), subnetmask)
            + FunctionLogGuard::parameter(QStringLiteral("defaultGateway"), defaultGateway));
    UTL_Barrier::reported(m_host, [&] {
        QString oldIp;
        QString oldSubnetmask;
        QString oldGateway;
        if (DOC_Interface* document = m_host->document(m_documentKey))
            document->networkAddresses(oldIp, oldSubnetmask, oldGateway);
        m_host->editDevice(m_documentKey, cameraName, ipAddress, subnetmask, defaultGateway,
            m_host->isCameraMode());
        m_networkChanged
            = ipAddress != oldIp || subnetmask != oldSubnetmask || defaultGateway != oldGateway;
        emit accept();
    });
}

void JS_Mediator_EditDeviceDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_EditDeviceDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [this] { emit reject(); });
}

void JS_Mediator_EditDeviceDialog::setEditEtherType(int type)
{
    UTL_Barrier::reported(m_host, [&] {
        if (DOC_Interface* document = m_host->document(m_documentKey))
            document->setEtherType(type);
    });
}
