#include "dialogs/JS_Mediator_ChangePasswordDialog.h"

#include "dialogs/JS_Mediator_InputPasswordDialog.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

JS_Mediator_ChangePasswordDialog::JS_Mediator_ChangePasswordDialog(
    APP_Host* host, const QString& newPassword, const QString& oldPassword, quint32 maxLen)
    : JS_Mediator_Dialog(host, QStringLiteral("changepass"))
    , m_oldPassword(oldPassword)
    , m_newPassword(newPassword)
    , m_maxLen(maxLen)
{
}

void JS_Mediator_ChangePasswordDialog::onOk(const QString& oldPass, const QString& newPass)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ChangePasswordDialog::onOk"),
        FunctionLogGuard::parameter(
            QStringLiteral("oldPass"), JS_Mediator_InputPasswordDialog::masked(oldPass))
            + FunctionLogGuard::parameter(
                QStringLiteral("newPass"), JS_Mediator_InputPasswordDialog::masked(newPass)));
    UTL_Barrier::reported(m_host, [&] {
        m_oldPassword = oldPass;
        m_newPassword = newPass;
        emit accept();
    });
}

void JS_Mediator_ChangePasswordDialog::onCancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_ChangePasswordDialog::onCancel"), QString());
    UTL_Barrier::reported(m_host, [&] { emit reject(); });
}

QString JS_Mediator_ChangePasswordDialog::getOldPassword()
{
    return m_oldPassword;
}

QString JS_Mediator_ChangePasswordDialog::getNewPassword()
{
    return m_newPassword;
}

int JS_Mediator_ChangePasswordDialog::getMaxPassLen()
{
    return int(m_maxLen);
}

bool JS_Mediator_ChangePasswordDialog::tooLong(const QString& pass) const
{
    return quint32(JS_Mediator_InputPasswordDialog::byteLength(pass)) > m_maxLen;
}

bool JS_Mediator_ChangePasswordDialog::checkPass(
    const QString& oldPass, const QString& newPass1, const QString& newPass2)
{
    return UTL_Barrier::reported(m_host, false, [&] {
        const QString limit = QString::number(m_maxLen);
        if (tooLong(oldPass)) {
            warn(
                translate(QStringLiteral("Please Old Password input within %1 bytes.")).arg(limit));
            return false;
        }
        if (tooLong(newPass1) || tooLong(newPass2)) {
            warn(
                translate(QStringLiteral("Please New Password input within %1 bytes.")).arg(limit));
            return false;
        }
        if (newPass1 != newPass2) {
            alert(translate(QStringLiteral("New Password is different.")));
            return false;
        }
        return true;
    });
}
