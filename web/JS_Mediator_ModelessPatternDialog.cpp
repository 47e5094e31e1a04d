#include "web/JS_Mediator_ModelessPatternDialog.h"

#include "plugin/APP_Host.h"
#include "util/UTL_Barrier.h"

JS_Mediator_ModelessPatternDialog::JS_Mediator_ModelessPatternDialog(
    APP_Host* host, const QString& name)
    : JS_Mediator_Dialog(host, name)
{
}

void JS_Mediator_ModelessPatternDialog::setTextBoxFocusState(bool focus)
{
    UTL_Barrier::reported(m_host, [&] { m_host->setModelessTextFocus(focus); });
}
