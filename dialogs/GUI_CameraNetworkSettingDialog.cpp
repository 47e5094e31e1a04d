#include "dialogs/GUI_CameraNetworkSettingDialog.h"

#include "dialogs/JS_Mediator_CameraNetworkSettingDialog.h"

GUI_CameraNetworkSettingDialog::GUI_CameraNetworkSettingDialog(APP_Host* host, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Camera Network Setting"),
        QStringLiteral("qrc:/livecontrol_searchsetting.html"),
        new JS_Mediator_CameraNetworkSettingDialog(host, QStringLiteral("cameranetworksetting")),
        parent)
{
    setFixedSize(360, 210);
    setWindowFlags(windowFlags()
        & ~(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
            | Qt::WindowContextHelpButtonHint | Qt::WindowStaysOnTopHint
            | Qt::WindowCloseButtonHint));
}

void GUI_CameraNetworkSettingDialog::ok() { }

void GUI_CameraNetworkSettingDialog::cancel()
{
    reject();
    close();
}
