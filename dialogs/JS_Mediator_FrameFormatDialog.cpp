#include "dialogs/JS_Mediator_FrameFormatDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/OperationEventHandler.h"

JS_Mediator_FrameFormatDialog::JS_Mediator_FrameFormatDialog(APP_Host* host)
    : JS_Mediator_Dialog(host, QStringLiteral("frameFormatDialog"))
    , m_insertDelimiter(host->getPrefBool(PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER, QVariant()))
{
}

void JS_Mediator_FrameFormatDialog::ok()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_FrameFormatDialog::ok"), QString());
    UTL_Barrier::reported(m_host, [&] { emit accept(); });
}

void JS_Mediator_FrameFormatDialog::cancel()
{
    OperationEventHandler guard(
        this, QStringLiteral("JS_Mediator_FrameFormatDialog::cancel"), QString());
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefBool(PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER, m_insertDelimiter);
        emit reject();
    });
}

bool JS_Mediator_FrameFormatDialog::isFrameInsertDelimiter()
{
    return UTL_Barrier::reported(m_host, false,
        [&] { return m_host->getPrefBool(PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER, QVariant()); });
}

void JS_Mediator_FrameFormatDialog::setFrameInsertDelimiter(bool val)
{
    OperationEventHandler guard(this,
        QStringLiteral("JS_Mediator_FrameFormatDialog::setFrameInsertDelimiter"),
        FunctionLogGuard::parameter(QStringLiteral("val"), val));
    UTL_Barrier::reported(
        m_host, [&] { m_host->setPrefBool(PREF_KEY_DISPLAY_FRAME_INSERT_DELIMITER, val); });
}
