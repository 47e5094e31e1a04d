#pragma once

#include "web/GUI_WebViewDialog.h"

#include <QList>
#include <QPair>

class JS_Mediator_FileSaveDialog;
class JS_Mediator_SaveFile;

// The save, snapshot, convert, report and open dialogs: one page of the host's with the file
// dialog's bridge under the kind's name and the settings page's ("savefile") beside it. A save
// composes the paths of what the page named and has the host write them; a name the naming
// rule refuses is reported and nothing is written. The open dialog only imports.
class GUI_FileSaveDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    // name: the kind, e.g. "filesavedialog" or "snapshotdialog" (FileDialogKind).
    GUI_FileSaveDialog(APP_Host* host, QWidget* parent, const QString& name);

    JS_Mediator_FileSaveDialog* fileMediator() const;
    JS_Mediator_SaveFile* saveFileMediator() const { return m_saveFile; }

    // The title of a kind's dialog, a source text.
    static QString titleOf(const QString& name);

private slots:
    void exportTarget(int dockey, int partitionNo);
    void saveAndClose();
    void saveAndStay();

private:
    // True when the host wrote everything.
    bool save();

    JS_Mediator_SaveFile* m_saveFile = nullptr;
    QList<QPair<int, int>> m_targets;
};
