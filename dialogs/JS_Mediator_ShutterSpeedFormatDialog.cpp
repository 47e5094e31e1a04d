#include "dialogs/JS_Mediator_ShutterSpeedFormatDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/OperationEventHandler.h"

JS_Mediator_ShutterSpeedFormatDialog::JS_Mediator_ShutterSpeedFormatDialog(APP_Host* host)
    : JS_Mediator_Dialog(host, QStringLiteral("shutter_format_dlg"))
    , m_format(host->getPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED, QVariant()))
    , m_timeUnit(host->getPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT, QVariant()))
    , m_insertDelimiter(
          host->getPrefBool(PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER, QVariant()))
{
}

void JS_Mediator_ShutterSpeedFormatDialog::ok()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::ok"), QString());
    UTL_Barrier::reported(m_host, [&] { emit accept(); });
}

void JS_Mediator_ShutterSpeedFormatDialog::cancel()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED, m_format);
        m_host->setPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT, m_timeUnit);
        m_host->setPrefBool(PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER, m_insertDelimiter);
        emit reject();
    });
}

int JS_Mediator_ShutterSpeedFormatDialog::getShutterSpeedFormat()
{
    return UTL_Barrier::reported(
        m_host, 0, [&] { return m_host->getPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED, QVariant()); });
}

void JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedFormat(int format)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedFormat"),
        FunctionLogGuard::parameter(QStringLiteral("format"), format));
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED, format); });
}

int JS_Mediator_ShutterSpeedFormatDialog::getShutterSpeedTimeUnit()
{
    return UTL_Barrier::reported(m_host, 0,
        [&] { return m_host->getPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT, QVariant()); });
}

void JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedTimeUnit(int unit)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedTimeUnit"),
        FunctionLogGuard::parameter(QStringLiteral("unit"), unit));
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefInt(PREF_KEY_DISPLAY_SHUTTER_SPEED_UNIT, unit); });
}

bool JS_Mediator_ShutterSpeedFormatDialog::isShutterSpeedInsertDelimiter()
{
    return UTL_Barrier::reported(m_host, false, [&] {
        return m_host->getPrefBool(PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER, QVariant());
    });
}

void JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedInsertDelimiter(bool val)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedInsertDelimiter"),
        FunctionLogGuard::parameter(QStringLiteral("val"), val));
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefBool(PREF_KEY_DISPLAY_SHUTTER_SPEED_INSERT_DELIMITER, val); });
}
