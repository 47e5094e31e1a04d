#pragma once

#include "web/JS_Mediator.h"

// A plain page, with neither dialog nor plug-in behaviour.
class JS_Mediator_Page : public JS_Mediator
{
    Q_OBJECT

public:
    JS_Mediator_Page(APP_Host* host, const QString& name);
};
