#pragma once

#include "web/JS_Mediator_Dialog.h"

// The bridge of the page that asks for the storage unit's password ("inputpass"). It checks
// only the length; whether the password is right is the camera's to say.
class JS_Mediator_InputPasswordDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_InputPasswordDialog(APP_Host* host, const QString& password, quint32 maxLen);

    QString password() const { return m_password; }

    // What a password takes in the local 8-bit encoding, which is what the camera stores.
    static int byteLength(const QString& text);
    // How a password shows in a trace line: never its text.
    static QString masked(const QString& text);

public slots:
    void onOk(const QString& pass);
    void onCancel();
    QString getPassword();
    int getMaxPassLen();
    bool checkBytes(const QString& pass);

private:
    QString m_password;
    quint32 m_maxLen;
};
