#pragma once

#include "save/JS_Mediator_FileDialog.h"

// The save dialog's bridge. The page names what to save by exportTarget, once per partition,
// after telling how many by exportDocCount, and then asks for saveAction (write and close),
// applyAction (write and stay) or cancelAction; the dialog does the rest.
class JS_Mediator_FileSaveDialog : public JS_Mediator_FileDialog
{
    Q_OBJECT

public:
    JS_Mediator_FileSaveDialog(APP_Host* host, const QString& name);

    int exportCount() const { return m_exportCount; }

signals:
    void exportTarget(int dockey, int partitionNo);
    void saveAction();
    void applyAction();
    void cancelAction();

public slots:
    void exportDocCount(int count);
    // 0 for a document that has gone, which is reported.
    int getHeadNo(int dockey);

private:
    int m_exportCount = 0;
};
