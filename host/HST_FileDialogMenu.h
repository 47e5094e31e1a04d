#pragma once

#include <QString>

class HST_DialogOpener;
class HST_Host;
class QAction;
class QMenu;

// The File menu's entries for the plug-in file's file dialogs: Open, Save, Snapshot, Convert
// and Report, each opening the dialog of its kind for the selected documents.
class HST_FileDialogMenu
{
public:
    HST_FileDialogMenu() = delete;

    // A kind the File menu shows rather than the Tools menu.
    static bool isFileDialog(const QString& page);
    // The entries of the kinds the opener knows, before the action given.
    static void add(QMenu* menu, QAction* before, HST_DialogOpener* opener, HST_Host* host);
};
