#include "web/JS_Mediator_Plugin.h"

JS_Mediator_Plugin::JS_Mediator_Plugin(APP_Host* host, const QString& name)
    : JS_Mediator(host, name)
{
}
