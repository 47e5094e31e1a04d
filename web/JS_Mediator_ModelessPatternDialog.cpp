#include "web/JS_Mediator_ModelessPatternDialog.h"

#include "plugin/APP_Host.h"

JS_Mediator_ModelessPatternDialog::JS_Mediator_ModelessPatternDialog(
    APP_Host* host, const QString& name)
    : JS_Mediator_Dialog(host, name)
{
}

void JS_Mediator_ModelessPatternDialog::setTextBoxFocusState(bool focus)
{
    try {
        m_host->setModelessTextFocus(focus);
    } catch (const std::exception& e) {
        errorHandler(e);
    }
}
