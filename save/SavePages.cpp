#include "save/SavePages.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/PLG_PageRegistry.h"
#include "save/GUI_AddNumberDialog.h"
#include "save/GUI_ConvertParameterEditDialog.h"
#include "save/GUI_FileSaveDialog.h"
#include "util/UTL_Exception.h"

namespace {

// ARG as a number, or the fallback when left out; anything else is refused.
int numberArgument(const PLG_DialogContext& context, int fallback, int minimum, int maximum)
{
    if (context.arg.isEmpty())
        return fallback;
    bool ok = false;
    const int value = context.arg.toInt(&ok);
    if (!ok || value < minimum || value > maximum)
        throw UTL_Exception(QStringLiteral("\"%1\" is not a number from %2 to %3.")
                                .arg(context.arg)
                                .arg(minimum)
                                .arg(maximum),
            0);
    return value;
}

} // namespace

int SavePages::openFileDialogOf(const char* kind, const PLG_DialogContext& context)
{
    return PLG_PageRegistry::exec(
        new GUI_FileSaveDialog(context.host, context.parent, QLatin1String(kind)));
}

int SavePages::openAddNumberDialog(const PLG_DialogContext& context)
{
    const int callbackType = numberArgument(context, 0, 0, 15);
    DOC_Interface* current = context.host->document(context.currentKey);
    return PLG_PageRegistry::exec(new GUI_AddNumberDialog(context.host, context.parent,
        callbackType, context.selectedKeys.size(), current ? current->headCount() : 1));
}

int SavePages::openConvertParameterEditDialog(const PLG_DialogContext& context)
{
    const int partition = numberArgument(context, 1, 0, 9999);
    QVariantList keys;
    for (int key : context.selectedKeys)
        keys.append(QString::number(key));
    return GUI_ConvertParameterEditDialog::run(
               context.host, context.parent, keys, context.currentKey, partition)
        ? 1
        : 0;
}
