#pragma once

#include "web/GUI_WebViewDialog.h"

class JS_Mediator_ChangePasswordDialog;

// Asks for the storage unit's old password and a new one, typed twice.
class GUI_ChangePasswordDialog : public GUI_WebViewDialog
{
    Q_OBJECT

public:
    GUI_ChangePasswordDialog(APP_Host* host, const QString& newPassword, const QString& oldPassword,
        quint32 maxLen, QWidget* parent);

    // Both are empty unless the user pressed OK.
    bool changePassword(QString& oldPass, QString& newPass);

private:
    JS_Mediator_ChangePasswordDialog* m_passMediator;
};
