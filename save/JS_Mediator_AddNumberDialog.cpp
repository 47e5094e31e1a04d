#include "save/JS_Mediator_AddNumberDialog.h"

#include "save/NamingText.h"
#include "util/FunctionLogGuard.h"

JS_Mediator_AddNumberDialog::JS_Mediator_AddNumberDialog(
    APP_Host* host, int callbackType, int deviceCount, int headCount)
    : JS_Mediator_Dialog(host, QStringLiteral("addnumberdialog"))
    , m_callbackType(callbackType)
    , m_autoDeviceDigits(autoDeviceDigits(deviceCount))
    , m_autoHeadDigits(autoHeadDigits(headCount))
{
}

int JS_Mediator_AddNumberDialog::autoDeviceDigits(int deviceCount)
{
    return QString::number(deviceCount).length();
}

int JS_Mediator_AddNumberDialog::autoHeadDigits(int headCount)
{
    return headCount >= 2 ? QString::number(headCount).length() : 0;
}

void JS_Mediator_AddNumberDialog::ok()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_AddNumberDialog::ok"), QString());
    emit accept();
}

void JS_Mediator_AddNumberDialog::cancel()
{
    SYNC_TRACE(QStringLiteral("JS_Mediator_AddNumberDialog::cancel"), QString());
    emit reject();
}

bool JS_Mediator_AddNumberDialog::isFileMode()
{
    return (m_callbackType >= 3 && m_callbackType <= 5) || JS_Mediator_Dialog::isFileMode();
}

int JS_Mediator_AddNumberDialog::getCallbackType()
{
    return m_callbackType;
}

QString JS_Mediator_AddNumberDialog::preview(int deviceDigits, int headDigits, int sessionDigits)
{
    const bool fileMode = isFileMode();
    return numberText(
        1, 1, 1, fileMode ? 0 : deviceDigits, fileMode ? 0 : headDigits, sessionDigits);
}

int JS_Mediator_AddNumberDialog::getAutoDeviceDigits()
{
    return m_autoDeviceDigits;
}

int JS_Mediator_AddNumberDialog::getAutoHeadDigits()
{
    return m_autoHeadDigits;
}
