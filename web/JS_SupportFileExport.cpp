#include "web/JS_SupportFileExport.h"

#include "plugin/APP_Host.h"
#include "plugin/DOC_Interface.h"
#include "plugin/SharedKeys.h"
#include "util/APP_Exception.h"
#include "util/UTL_BackgroundTask.h"
#include "util/UTL_Barrier.h"
#include "util/UTL_Messages.h"

#include <QFileDialog>
#include <QFileInfo>

namespace {

// Functions by which a camera says it keeps a log of its own.
const int cameraLogFunctions[] = { 176, 158 };

} // namespace

QStringList JS_SupportFileExport::items(bool withCameraLog)
{
    QStringList items { QStringLiteral("- Camera setting values"),
        QStringLiteral("- Tarvix setting values"), QStringLiteral("- Tarvix operation log"),
        QStringLiteral("- SDK operation log") };
    if (withCameraLog)
        items << QStringLiteral("- Camera log");
    items << QStringLiteral("- PC environment") << QStringLiteral("- Tarvix version")
          << QStringLiteral("- Tarvix full screen capture")
          << QStringLiteral("- Currently displayed image data (1 frame)");
    return items;
}

bool JS_SupportFileExport::anyCameraLog(APP_Host* host)
{
    QList<DOC_Interface*> documents;
    host->allDocuments(documents);
    for (DOC_Interface* doc : qAsConst(documents)) {
        for (int function : cameraLogFunctions) {
            if (doc && doc->isFunctionSupported(function, true))
                return true;
        }
    }
    return false;
}

void JS_SupportFileExport::run(APP_Host* host)
{
    QString path;
    UTL_Barrier::reported(host, [&] {
        QString question = UTL_Messages::translate(host,
                               QStringLiteral("The information below will be output in ZIP file "
                                              "format. Do you want to proceed?"))
            + QStringLiteral("<br>");
        for (const QString& item : items(anyCameraLog(host)))
            question += QStringLiteral("<br>") + UTL_Messages::translate(host, item);
        QWidget* mainWindow = host->getMainWindow();
        if (!host->confirm(question, mainWindow, QVariantMap()))
            return;

        QString folder;
        host->getPrefString(folder, PREF_KEYS_SNAP.dir, QVariant());
        path = QFileDialog::getSaveFileName(mainWindow,
            UTL_Messages::translate(host, QStringLiteral("Export support file")), folder,
            QStringLiteral("zip (*.zip)"), nullptr, QFileDialog::DontConfirmOverwrite);
        if (path.isEmpty())
            return;

        // The task owns its copies; it touches nothing of the page or the dialog.
        const QString zipPath = path;
        const bool saved
            = UTL_BackgroundTask::run(host, QStringLiteral("Saving..."), [host, zipPath] {
                  if (!host->exportSupportFile(zipPath))
                      throw APP_Exception(QStringLiteral("Failed to save support file."), 0);
              });
        if (saved)
            host->showInformation(UTL_Messages::translate(host,
                                      QStringLiteral("Please attach preserved file to a mail.")),
                nullptr);
    });
    // Once a name was chosen the folder is kept, whether or not the export worked.
    if (!path.isEmpty())
        UTL_Barrier::reported(
            host, [&] { host->setPrefString(PREF_KEYS_SNAP.dir, QFileInfo(path).absolutePath()); });
}
