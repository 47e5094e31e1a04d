#pragma once

#include "web/GUI_WebViewDialog.h"

class JS_Mediator_ModelessPatternDialog;

// The modeless web dialog that some plug-ins of the frame live in. The frame sees only this:
// it tells when it was shown and closed, and may refuse to close.
class GUI_ModelessPatternDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_ModelessPatternDialog(APP_Host* host, const QString& title, const QString& url,
        JS_Mediator_ModelessPatternDialog* mediator, QWidget* parent);

    // The dialog's own test whether it may close now.
    virtual bool canClose() { return true; }
    // The host changed its mode while the dialog is visible.
    virtual void modeChanged(int mode) { Q_UNUSED(mode); }

signals:
    void shown();
    void closed();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};
