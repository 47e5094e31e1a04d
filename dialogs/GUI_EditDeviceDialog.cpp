#include "dialogs/GUI_EditDeviceDialog.h"

#include "dialogs/JS_Mediator_AutoCameraName.h"
#include "dialogs/JS_Mediator_EditDeviceDialog.h"

GUI_EditDeviceDialog::GUI_EditDeviceDialog(APP_Host* host, int documentKey, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Edit Device"),
        QStringLiteral("qrc:/livecontrol_editdevice.html"),
        new JS_Mediator_EditDeviceDialog(host, QStringLiteral("editdevice"), documentKey), parent)
{
    setFixedSize(420, 400);
    setWindowFlags(windowFlags()
        & ~(Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint
            | Qt::WindowContextHelpButtonHint | Qt::WindowStaysOnTopHint
            | Qt::WindowCloseButtonHint));
    addMediator(new JS_Mediator_AutoCameraName(host, QStringLiteral("editdeviceAutoCameraName")));
}

JS_Mediator_EditDeviceDialog* GUI_EditDeviceDialog::editMediator() const
{
    return static_cast<JS_Mediator_EditDeviceDialog*>(mediator());
}
