#include "web/JS_Mediator_Page.h"

JS_Mediator_Page::JS_Mediator_Page(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}
