#pragma once

#include "web/JS_Mediator_Dialog.h"

// The mediator of a modeless dialog's page. The page reports its text boxes' focus, so that the
// host can keep its shortcuts off while the user types.
class JS_Mediator_ModelessPatternDialog : public JS_Mediator_Dialog
{
    Q_OBJECT

public:
    JS_Mediator_ModelessPatternDialog(APP_Host* host, const QString& name);

public slots:
    virtual void onOpen() { }
    virtual void onClose() { }
    void setTextBoxFocusState(bool focus);
};
