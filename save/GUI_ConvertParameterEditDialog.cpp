#include "save/GUI_ConvertParameterEditDialog.h"

#include "plugin/APP_Host.h"
#include "save/FileDialogKind.h"
#include "save/JS_Mediator_ConvertParameterEditDialog.h"
#include "save/JS_Mediator_SaveFile.h"
#include "util/UTL_Messages.h"

GUI_ConvertParameterEditDialog::GUI_ConvertParameterEditDialog(APP_Host* host, QWidget* parent,
    const QVariantList& dockeyList, int selectDocKey, int selectPartitionNo)
    : GUI_WebViewDialog(host, QStringLiteral("Saved after the automatic conversion"),
        QStringLiteral("qrc:/convertparametereditdialog.html"),
        new JS_Mediator_ConvertParameterEditDialog(
            host, dockeyList, selectDocKey, selectPartitionNo),
        parent)
{
    addMediator(new JS_Mediator_SaveFile(host, QLatin1String(FileDialogKind::convertParameters)));
    setFixedSize(600, 920);
}

bool GUI_ConvertParameterEditDialog::run(APP_Host* host, QWidget* parent,
    const QVariantList& dockeyList, int selectDocKey, int selectPartitionNo)
{
    if (host->isBackgroundConverting()) {
        host->showWarning(UTL_Messages::translate(host,
                              QStringLiteral("You can not edit during the conversion process.")),
            nullptr);
        return false;
    }
    const QString path
        = JS_Mediator_ConvertParameterEditDialog(host, dockeyList, selectDocKey, selectPartitionNo)
              .getExportPath();
    if (path.isEmpty())
        return false;
    GUI_ConvertParameterEditDialog dialog(
        host, parent, dockeyList, selectDocKey, selectPartitionNo);
    return dialog.exec() == 1;
}
