#pragma once

#include <QString>

class JS_Mediator;

// Scope guard of page operations that change state: "[ENTER]"/"[LEAVE]" lines like
// FunctionLogGuard, and at its end the host refreshes the parts of the UI the mediator names.
class OperationEventHandler
{
public:
    OperationEventHandler(JS_Mediator* mediator, const QString& name, const QString& parameters);
    ~OperationEventHandler();

    OperationEventHandler(const OperationEventHandler&) = delete;
    OperationEventHandler& operator=(const OperationEventHandler&) = delete;

private:
    JS_Mediator* m_mediator;
    QString m_name;
    QString m_parameters;
};
