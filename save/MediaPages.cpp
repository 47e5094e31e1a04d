#include "save/MediaPages.h"

#include "dialogs/GUI_ChangePasswordDialog.h"
#include "dialogs/GUI_InputPasswordDialog.h"
#include "plugin/PLG_PageRegistry.h"
#include "save/JS_Mediator_SaveCFast.h"
#include "save/JS_Mediator_SaveSD.h"
#include "save/JS_Mediator_SaveVaultPack.h"

namespace {

// What the storage unit takes, in bytes of the local encoding.
const quint32 passwordBytes = 8;

} // namespace

JS_Mediator* MediaPages::makeSdMediator(const PLG_DialogContext& context)
{
    return new JS_Mediator_SaveSD(context.host, QStringLiteral("savesd"));
}

JS_Mediator* MediaPages::makeVaultPackMediator(const PLG_DialogContext& context)
{
    return new JS_Mediator_SaveVaultPack(context.host, QStringLiteral("savevaultpack"));
}

JS_Mediator* MediaPages::makeCFastMediator(const PLG_DialogContext& context)
{
    return new JS_Mediator_SaveCFast(context.host, QStringLiteral("savecfast"));
}

int MediaPages::openInputPasswordDialog(const PLG_DialogContext& context)
{
    return PLG_PageRegistry::exec(
        new GUI_InputPasswordDialog(context.host, QString(), passwordBytes, context.parent));
}

int MediaPages::openChangePasswordDialog(const PLG_DialogContext& context)
{
    return PLG_PageRegistry::exec(new GUI_ChangePasswordDialog(
        context.host, QString(), QString(), passwordBytes, context.parent));
}
