#pragma once

#include "web/GUI_WebViewDialog.h"

class JS_Mediator_InputPasswordDialog;

// Asks for the password that opens a locked storage unit.
class GUI_InputPasswordDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_InputPasswordDialog(
        APP_Host* host, const QString& password, quint32 maxLen, QWidget* parent);

    // pass is empty unless the user gave one and pressed OK.
    bool inputPassword(QString& pass);

private:
    JS_Mediator_InputPasswordDialog* m_passMediator;
};
