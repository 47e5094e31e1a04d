#include "dialogs/GUI_ChangePasswordDialog.h"

#include "dialogs/JS_Mediator_ChangePasswordDialog.h"
#include "web/GUI_WebView.h"

GUI_ChangePasswordDialog::GUI_ChangePasswordDialog(APP_Host* host, const QString& newPassword,
    const QString& oldPassword, quint32 maxLen, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Change Password"),
        QStringLiteral("qrc:/change_password_dialog.html"),
        new JS_Mediator_ChangePasswordDialog(host, newPassword, oldPassword, maxLen), parent)
    , m_passMediator(static_cast<JS_Mediator_ChangePasswordDialog*>(mediator()))
{
    setFixedSize(400, 185);
    // The page's first box takes the keys at once.
    webView()->setFocus(Qt::OtherFocusReason);
}

bool GUI_ChangePasswordDialog::changePassword(QString& oldPass, QString& newPass)
{
    oldPass.clear();
    newPass.clear();
    if (exec() != QDialog::Accepted)
        return false;
    oldPass = m_passMediator->oldPassword();
    newPass = m_passMediator->newPassword();
    return true;
}
