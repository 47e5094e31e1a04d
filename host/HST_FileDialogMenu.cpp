#include "host/HST_FileDialogMenu.h"

#include "host/HST_DialogOpener.h"
#include "host/HST_Host.h"

#include <QMenu>

namespace {

const struct
{
    const char* page;
    const char* title;
} entries[] = {
    { "fileopendialog", "Open..." },
    { "filesavedialog", "Save..." },
    { "snapshotdialog", "Snapshot..." },
    { "batchconverter", "Convert..." },
    { "reportExportDialog", "Report..." },
};

} // namespace

bool HST_FileDialogMenu::isFileDialog(const QString& page)
{
    for (const auto& entry : entries) {
        if (page == QLatin1String(entry.page))
            return true;
    }
    return false;
}

void HST_FileDialogMenu::add(QMenu* menu, QAction* before, HST_DialogOpener* opener, HST_Host* host)
{
    for (const auto& entry : entries) {
        const QString page = QLatin1String(entry.page);
        if (!opener->hasPage(page))
            continue;
        auto* action = new QAction(host->translatedText(QLatin1String(entry.title)), menu);
        action->setObjectName(QStringLiteral("host_") + page);
        QObject::connect(
            action, &QAction::triggered, opener, [opener, page] { opener->open(page, QString()); });
        menu->insertAction(before, action);
    }
}
