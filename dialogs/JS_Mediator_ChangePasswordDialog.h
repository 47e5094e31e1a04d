#pragma once

#include "web/JS_Mediator_Dialog.h"

// The bridge of the page on which the storage unit's password is changed ("changepass"). It
// checks lengths and that the new password was typed the same twice; the camera decides the
// rest.
class JS_Mediator_ChangePasswordDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_ChangePasswordDialog(
        APP_Host* host, const QString& newPassword, const QString& oldPassword, quint32 maxLen);

    QString oldPassword() const { return m_oldPassword; }
    QString newPassword() const { return m_newPassword; }

public slots:
    void onOk(const QString& oldPass, const QString& newPass);
    void onCancel();
    QString getOldPassword();
    QString getNewPassword();
    int getMaxPassLen();
    // Stops at the first failure, the lengths before the comparison.
    bool checkPass(const QString& oldPass, const QString& newPass1, const QString& newPass2);

private:
    bool tooLong(const QString& pass) const;

    QString m_oldPassword;
    QString m_newPassword;
    quint32 m_maxLen;
};
