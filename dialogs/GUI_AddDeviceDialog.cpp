#include "dialogs/GUI_AddDeviceDialog.h"

#include "dialogs/JS_Mediator_AddDeviceDialog.h"
#include "dialogs/JS_Mediator_AutoCameraName.h"

GUI_AddDeviceDialog::GUI_AddDeviceDialog(APP_Host* host, bool connect, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Add Device"),
        QStringLiteral("qrc:/livecontrol_adddevice.html"),
        new JS_Mediator_AddDeviceDialog(host, QStringLiteral("adddevice"), connect), parent)
{
    setFixedSize(395, 195);
    setWindowFlags(windowFlags()
        & ~(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
            | Qt::WindowContextHelpButtonHint | Qt::WindowStaysOnTopHint
            | Qt::WindowCloseButtonHint));
    addMediator(new JS_Mediator_AutoCameraName(host, QStringLiteral("adddeviceAutoCameraName")));
}
