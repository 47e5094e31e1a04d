#include "web/OperationEventHandler.h"

#include "plugin/APP_Host.h"
#include "util/FunctionLogGuard.h"
#include "util/UTL_Barrier.h"
#include "web/JS_Mediator.h"

OperationEventHandler::OperationEventHandler(
    JS_Mediator* mediator, const QString& name, const QString& parameters)
    : m_mediator(mediator)
    , m_name(name)
    , m_parameters(FunctionLogGuard::normalized(parameters))
{
    FunctionLogGuard::writeEnter(m_name, m_parameters);
}

OperationEventHandler::~OperationEventHandler()
{
    if (m_mediator && m_mediator->host()) {
        // A destructor may run during unwinding: the update's own failure goes to the host.
        UTL_Barrier::sealed(m_mediator->host(), "OperationEventHandler",
            [this] { m_mediator->host()->updateUI(m_mediator->updateMask(), true); });
    }
    UTL_Barrier::sealed(
        nullptr, "OperationEventHandler", [this] { FunctionLogGuard::writeLeave(m_name); });
}
