#include "web/JS_Mediator_Dialog.h"

JS_Mediator_Dialog::JS_Mediator_Dialog(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}
