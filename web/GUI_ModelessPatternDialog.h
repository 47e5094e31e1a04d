#pragma once

#include "web/GUI_Dialog.h"

// The modeless dialog that some plug-ins of the frame live in. Only the frame's view of it is
// here: it tells when it was shown and closed, and may refuse to close.
class GUI_ModelessPatternDialog : public GUI_Dialog
{
    Q_OBJECT

public:
    explicit GUI_ModelessPatternDialog(QWidget* parent);

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
