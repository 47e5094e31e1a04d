#include "web/JS_Mediator.h"

JS_Mediator::JS_Mediator(QObject* parent)
    : QObject(parent)
{
}

JS_Mediator::~JS_Mediator() = default;
