#include "dialogs/JS_Mediator_RecordRateFormatDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/OperationEventHandler.h"

JS_Mediator_RecordRateFormatDialog::JS_Mediator_RecordRateFormatDialog(APP_Host* host)
    : JS_Mediator_Dialog(host, QStringLiteral("recordRateFormatDialog"))
    , m_insertDelimiter(
          host->getPrefBool(PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER, QVariant()))
{
}

void JS_Mediator_RecordRateFormatDialog::ok()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_RecordRateFormatDialog::ok"), QString());
    UTL_Barrier::reported(m_host, [&] { emit accept(); });
}

void JS_Mediator_RecordRateFormatDialog::cancel()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_RecordRateFormatDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefBool(PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER, m_insertDelimiter);
        emit reject();
    });
}

bool JS_Mediator_RecordRateFormatDialog::isRecordRateInsertDelimiter()
{
    return UTL_Barrier::reported(m_host, false, [&] {
        return m_host->getPrefBool(PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER, QVariant());
    });
}

void JS_Mediator_RecordRateFormatDialog::setRecordRateInsertDelimiter(bool val)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_RecordRateFormatDialog::setRecordRateInsertDelimiter"),
        FunctionLogGuard::parameter(QStringLiteral("val"), val));
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefBool(PREF_KEY_DISPLAY_RECORD_RATE_INSERT_DELIMITER, val); });
}
