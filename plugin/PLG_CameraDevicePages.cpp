#include "plugin/PLG_CameraDevicePages.h"

#include "dialogs/GUI_CameraFileDialog.h"
#include "dialogs/GUI_SelectBox.h"
#include "dialogs/JS_Mediator_CameraSettingsDialog.h"
#include "dialogs/JS_Mediator_DeviceControl.h"
#include "dialogs/JS_Mediator_DeviceList.h"
#include "plugin/PLG_PageRegistry.h"
#include "util/APP_Exception.h"
#include "web/GUI_WebViewDialog.h"

namespace {

[[noreturn]] void refuse(const PLG_DialogContext& context, const char* page)
{
    throw APP_Exception(QStringLiteral("The dialog \"%1\" can't be opened with \"%2\".")
                            .arg(QLatin1String(page), context.arg),
        0);
}

} // namespace

int PLG_CameraDevicePages::openCameraSettings(const PLG_DialogContext& context)
{
    const bool preset = context.arg == QLatin1String("preset");
    if (!preset && !context.arg.isEmpty() && context.arg != QLatin1String("file"))
        refuse(context, "camerasettings");
    auto* dialog = new GUI_WebViewDialog(context.host,
        preset ? QStringLiteral("Write presets") : QStringLiteral("Save camera settings"),
        QStringLiteral("qrc:/camerasettings.html"),
        new JS_Mediator_CameraSettingsDialog(
            context.host, QStringLiteral("camerasettings"), preset ? 1 : 0),
        context.parent);
    dialog->setObjectName(QStringLiteral("GUI_CameraSettingsDialog"));
    dialog->setFixedSize(560, 380);
    return PLG_PageRegistry::exec(dialog);
}

int PLG_CameraDevicePages::openCameraSettingsLoad(const PLG_DialogContext& context)
{
    if (!context.arg.isEmpty())
        refuse(context, "camerasettingsload");
    return PLG_PageRegistry::exec(new GUI_CameraFileDialog(context.host, context.parent));
}

JS_Mediator* PLG_CameraDevicePages::makeDeviceList(const PLG_DialogContext& context)
{
    return new JS_Mediator_DeviceList(context.host, QStringLiteral("devicelist"));
}

JS_Mediator* PLG_CameraDevicePages::makeDeviceControl(const PLG_DialogContext& context)
{
    return new JS_Mediator_DeviceControl(context.host, QStringLiteral("devicecontrol"));
}

QWidget* PLG_CameraDevicePages::makeSelectBox(const PLG_DialogContext& context, QWidget* parent)
{
    return new GUI_SelectBox(context.host, parent);
}
