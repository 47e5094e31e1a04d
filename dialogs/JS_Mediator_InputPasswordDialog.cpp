#include "dialogs/JS_Mediator_InputPasswordDialog.h"

#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"

JS_Mediator_InputPasswordDialog::JS_Mediator_InputPasswordDialog(
    APP_Host* host, const QString& password, quint32 maxLen)
    : JS_Mediator_Dialog(host, QStringLiteral("inputpass"))
    , m_password(password)
    , m_maxLen(maxLen)
{
}

int JS_Mediator_InputPasswordDialog::byteLength(const QString& text)
{
    return text.toLocal8Bit().size();
}

QString JS_Mediator_InputPasswordDialog::masked(const QString& text)
{
    return text.isEmpty() ? QString() : QStringLiteral("***");
}

void JS_Mediator_InputPasswordDialog::onOk(const QString& pass)
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_InputPasswordDialog::onOk"),
        FunctionLogGuard::parameter(QStringLiteral("pass"), masked(pass)));
    UTL_Barrier::reported(m_host, [&] {
        m_password = pass;
        emit accept();
    });
}

void JS_Mediator_InputPasswordDialog::onCancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_InputPasswordDialog::onCancel"), QString());
    UTL_Barrier::reported(m_host, [&] { emit reject(); });
}

QString JS_Mediator_InputPasswordDialog::getPassword()
{
    return m_password;
}

int JS_Mediator_InputPasswordDialog::getMaxPassLen()
{
    return int(m_maxLen);
}

bool JS_Mediator_InputPasswordDialog::checkBytes(const QString& pass)
{
    return UTL_Barrier::reported(m_host, true, [&] {
        if (quint32(byteLength(pass)) <= m_maxLen)
            return true;
        warn(translate(QStringLiteral("Please input within %1 bytes.")).arg(m_maxLen));
        return false;
    });
}
