#include "dialogs/GUI_CameraNetworkSettingDialog.h"

#include "dialogs/JS_Mediator_CameraNetworkSettingDialog.h"

#include <QCloseEvent>

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

void GUI_CameraNetworkSettingDialog::closeEvent(QCloseEvent* event)
{
    // Hidden means ended, by cancel's reject among others: closing it must not reject it again.
    if (!isVisible()) {
        event->accept();
        return;
    }
    GUI_WebViewDialog::closeEvent(event);
}
