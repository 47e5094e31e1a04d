#include "dialogs/GUI_InputPasswordDialog.h"

#include "dialogs/JS_Mediator_InputPasswordDialog.h"
#include "web/GUI_WebView.h"

GUI_InputPasswordDialog::GUI_InputPasswordDialog(
    APP_Host* host, const QString& password, quint32 maxLen, QWidget* parent)
    : GUI_WebViewDialog(host, QStringLiteral("Input password"),
        QStringLiteral("qrc:/input_password_dialog.html"),
        new JS_Mediator_InputPasswordDialog(host, password, maxLen), parent)
    , m_passMediator(static_cast<JS_Mediator_InputPasswordDialog*>(mediator()))
{
    setFixedSize(240, 120);
    // The page's box takes the keys at once.
    webView()->setFocus(Qt::OtherFocusReason);
}

bool GUI_InputPasswordDialog::inputPassword(QString& pass)
{
    pass.clear();
    if (exec() != QDialog::Accepted)
        return false;
    pass = m_passMediator->password();
    return true;
}
