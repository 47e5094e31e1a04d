#include "dialogs/JS_Mediator_RectimeFormatDialog.h"

#include "plugin/APP_Host.h"
#include "plugin/SharedKeys.h"
#include "util/UTL_Barrier.h"

JS_Mediator_RectimeFormatDialog::JS_Mediator_RectimeFormatDialog(APP_Host* host)
    : JS_Mediator_Dialog(host, QStringLiteral("rectime_format_dlg"))
    , m_recTimeUnit(host->getPrefInt(PREF_KEY_INFO_REC_TIME_UNIT, QVariant()))
{
}

void JS_Mediator_RectimeFormatDialog::ok()
{
    UTL_Barrier::reported(m_host, [&] { emit accept(); });
}

void JS_Mediator_RectimeFormatDialog::cancel()
{
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefInt(PREF_KEY_INFO_REC_TIME_UNIT, m_recTimeUnit);
        m_host->documentsChanged(true);
        emit reject();
    });
}

int JS_Mediator_RectimeFormatDialog::getRecTimeUnit()
{
    return UTL_Barrier::reported(
        m_host, 0, [&] { return m_host->getPrefInt(PREF_KEY_INFO_REC_TIME_UNIT, QVariant()); });
}

void JS_Mediator_RectimeFormatDialog::setRecTimeUnit(int unit)
{
    UTL_Barrier::reported(m_host, [&] {
        m_host->setPrefInt(PREF_KEY_INFO_REC_TIME_UNIT, unit);
        m_host->documentsChanged(true);
    });
}
