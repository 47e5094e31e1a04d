#include "plugin/PLG_DeviceInfoPages.h"

#include "dialogs/GUI_AddDeviceDialog.h"
#include "dialogs/GUI_CameraNetworkSettingDialog.h"
#include "dialogs/GUI_CustomInfoDialog.h"
#include "dialogs/GUI_EditDeviceDialog.h"
#include "dialogs/JS_Mediator_EditDeviceDialog.h"
#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_PageRegistry.h"
#include "util/APP_Exception.h"
#include "util/UTL_Messages.h"

#include <QDebug>
#include <QStringList>

namespace {

const int displayCallbackType = 15;

[[noreturn]] void refuse(const PLG_DialogContext& context, const char* page)
{
    throw APP_Exception(QStringLiteral("The dialog \"%1\" can't be opened with \"%2\".")
                            .arg(QLatin1String(page), context.arg),
        0);
}

} // namespace

int PLG_DeviceInfoPages::openCustomInfo(const PLG_DialogContext& context)
{
    QStringList parts = context.arg.split(QLatin1Char(':'));
    // "temporary" alone keeps the display flag.
    if (parts == QStringList { QStringLiteral("temporary") })
        parts.prepend(QString());
    int type = displayCallbackType;
    bool ok = true;
    if (!parts.first().isEmpty())
        type = parts.first().toInt(&ok);
    const bool temporary = parts.size() == 2 && parts.at(1) == QLatin1String("temporary");
    // The display flag, or the file name flag of one of the four kinds of output.
    const bool knownType
        = type == displayCallbackType || type == 2 || type == 5 || type == 8 || type == 11;
    if (!ok || !knownType || parts.size() > 2 || (parts.size() == 2 && !temporary))
        refuse(context, "custominfo");
    auto* dialog = new GUI_CustomInfoDialog(context.host, context.parent, temporary);
    dialog->setCallbackType(type);
    return PLG_PageRegistry::exec(dialog);
}

int PLG_DeviceInfoPages::openAddDevice(const PLG_DialogContext& context)
{
    const bool connect = context.arg.isEmpty() || context.arg == QLatin1String("connect");
    if (!connect && context.arg != QLatin1String("noconnect"))
        refuse(context, "livecontrol_adddevice");
    return PLG_PageRegistry::exec(new GUI_AddDeviceDialog(context.host, connect, context.parent));
}

int PLG_DeviceInfoPages::openEditDevice(const PLG_DialogContext& context)
{
    bool ok = true;
    const int key = context.arg.isEmpty() ? context.currentKey : context.arg.toInt(&ok);
    if (!ok)
        refuse(context, "livecontrol_editdevice");
    DOC_Interface* document = context.host->document(key);
    if (!document || !document->asCamera())
        throw APP_Exception(
            UTL_Messages::translate(context.host, QStringLiteral("Choose a camera to edit.")), 0);
    auto* dialog = new GUI_EditDeviceDialog(context.host, key, context.parent);
    JS_Mediator_EditDeviceDialog* mediator = dialog->editMediator();
    bool networkChanged = false;
    // The mediator goes with the dialog; what it learnt is read before.
    QObject::connect(dialog, &QDialog::finished, dialog,
        [&networkChanged, mediator] { networkChanged = mediator->networkChanged(); });
    const int result = PLG_PageRegistry::exec(dialog);
    // The host takes the new addresses with editDevice; a camera reached at a new address is
    // the host's to reconnect, so the change is only noted.
    if (result == QDialog::Accepted && networkChanged)
        qInfo().noquote() << QStringLiteral("the network settings of document %1 changed").arg(key);
    return result;
}

int PLG_DeviceInfoPages::openSearchSetting(const PLG_DialogContext& context)
{
    if (!context.arg.isEmpty())
        refuse(context, "livecontrol_searchsetting");
    return PLG_PageRegistry::exec(new GUI_CameraNetworkSettingDialog(context.host, context.parent));
}
