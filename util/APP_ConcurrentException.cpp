#include "util/APP_ConcurrentException.h"

APP_ConcurrentException::APP_ConcurrentException() = default;

APP_ConcurrentException::APP_ConcurrentException(const APP_ConcurrentException& other)
    : QException(other)
    , m_exception(other.m_exception)
{
}

APP_ConcurrentException::APP_ConcurrentException(const APP_Exception& exception)
    : m_exception(exception) // NOLINT(bugprone-throw-keyword-missing): kept to be thrown by raise()
{
}

APP_ConcurrentException::~APP_ConcurrentException() = default;

void APP_ConcurrentException::raise() const
{
    throw *this;
}

APP_ConcurrentException* APP_ConcurrentException::clone() const
{
    return new APP_ConcurrentException(*this);
}
