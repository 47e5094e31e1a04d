#include "dialogs/JS_Mediator_CameraNetworkSettingDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

JS_Mediator_CameraNetworkSettingDialog::JS_Mediator_CameraNetworkSettingDialog(
    APP_Host* host, const QString& name)
    : JS_Mediator_Dialog(host, name)
{
}

int JS_Mediator_CameraNetworkSettingDialog::getCameraSearchWay()
{
    return UTL_Barrier::reported(m_host, 0, [this] {
        return m_host->getPrefVariant(PREF_KEY_CAMERACONNECTION_SEARCH_WAY, QVariant()).toInt();
    });
}

QString JS_Mediator_CameraNetworkSettingDialog::getCameraSearchIPAddress()
{
    return UTL_Barrier::reported(m_host, DEFAULT_SEARCH_IP, [this] {
        return m_host->getPrefVariant(PREF_KEY_CAMERACONNECTION_SEARCH_IP, QVariant()).toString();
    });
}

void JS_Mediator_CameraNetworkSettingDialog::setCameraSearchWay(int mode)
{
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefVariant(PREF_KEY_CAMERACONNECTION_SEARCH_WAY, mode); });
}

void JS_Mediator_CameraNetworkSettingDialog::setCameraSearchIPAddress(const QString& ipAddress)
{
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefVariant(PREF_KEY_CAMERACONNECTION_SEARCH_IP, ipAddress); });
}

void JS_Mediator_CameraNetworkSettingDialog::ok()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CameraNetworkSettingDialog::ok"), QString());
    UTL_Barrier::reported(m_host, [this] { emit accept(); });
}

void JS_Mediator_CameraNetworkSettingDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_CameraNetworkSettingDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [this] { emit reject(); });
}
