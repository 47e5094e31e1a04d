#pragma once

#include "web/GUI_WebViewDialog.h"

class JS_Mediator_CustomInfoDialog;

// Edits the custom info items of one or more documents at once. Edits apply at once; closing the
// window undoes them, as Cancel does.
class GUI_CustomInfoDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    // A null parent stands for the host's main window. forTemporary: the dialog works on the
    // host's temporary documents.
    GUI_CustomInfoDialog(APP_Host* host, QWidget* parent, bool forTemporary);

    // 15 (the default): the page's flag is the display flag; 2, 5, 8, 11: the file name flag.
    void setCallbackType(int type);
    JS_Mediator_CustomInfoDialog* customInfoMediator() const;

protected:
    void closeEvent(QCloseEvent* event) override;
};
