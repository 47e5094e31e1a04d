#include "dialogs/JS_Mediator_AddDeviceDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "save/NamingText.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_TextHelpers.h"
#include "web/OperationEventHandler.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

JS_Mediator_AddDeviceDialog::JS_Mediator_AddDeviceDialog(
    APP_Host* host, const QString& name, bool connect)
    : JS_Mediator_Dialog(host, name)
    , m_connect(connect)
{
}

QString JS_Mediator_AddDeviceDialog::firstFreeDummyAddress()
{
    QStringList taken;
    QList<int> keys;
    for (int key : m_host->documentKeysForList(keys, true)) {
        DOC_Interface* document = m_host->documentForList(key);
        DOC_Camera* camera = document ? document->asCamera() : nullptr;
        if (camera && camera->isDummy())
            taken.append(camera->ipAddress(true));
    }
    for (int n = 1; n <= 255; ++n) {
        QString address = QStringLiteral("999.999.999.%1").arg(n);
        if (!taken.contains(address))
            return address;
    }
    // All taken: the first one, as before the search.
    return QStringLiteral("999.999.999.1");
}

QString JS_Mediator_AddDeviceDialog::getAddDeviceDialogSettings()
{
    return UTL_Barrier::reported(m_host, QString(), [this] {
        QString name;
        QString address;
        m_host->getPrefString(
            address, PREF_KEY_CAMERACONNECTION_ADD_IP_DEFAULT, QStringLiteral("192.168.0.10"));
        const QJsonObject settings { { QStringLiteral("DefaultCameraName"),
                                         m_host->defaultCameraName(name) },
            { QStringLiteral("DefaultIPAddress"), address },
            { QStringLiteral("DefaultDummyIPAddress"), firstFreeDummyAddress() } };
        return QString::fromUtf8(QJsonDocument(settings).toJson(QJsonDocument::Compact));
    });
}

void JS_Mediator_AddDeviceDialog::ok(
    const QString& cameraNeme, const QString& ipAddress, bool isDummy)
{
    OperationEventHandler guard(this, QStringLiteral("JS_Mediator_AddDeviceDialog::ok"),
        FunctionLogGuard::parameter(QStringLiteral("cameraNeme"), cameraNeme)
            + FunctionLogGuard::parameter(QStringLiteral("ipAddress"), ipAddress)
            + FunctionLogGuard::parameter(QStringLiteral("isDummy"), isDummy));
    if (isValidFileName(cameraNeme) && isIpAddress(ipAddress))
        UTL_Barrier::reported(
            m_host, [&] { m_host->addDevice(cameraNeme, ipAddress, isDummy, m_connect); });
    UTL_Barrier::reported(m_host, [this] { emit accept(); });
}

void JS_Mediator_AddDeviceDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_AddDeviceDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [this] { emit reject(); });
}
