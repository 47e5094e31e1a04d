#pragma once

#include "util/APP_Exception.h"

#include <QException>

// Carries an APP_Exception out of a QtConcurrent task: a QFuture transports only QException.
// It is deliberately not an APP_Exception; the waiting side unwraps it with exception().
class SYNC_SHARED APP_ConcurrentException : public QException
{
public:
    APP_ConcurrentException();
    APP_ConcurrentException(const APP_ConcurrentException& other);
    explicit APP_ConcurrentException(const APP_Exception& exception);
    ~APP_ConcurrentException() override;

    void raise() const override;
    APP_ConcurrentException* clone() const override;

    APP_Exception exception() const { return m_exception; }

private:
    APP_Exception m_exception;
};
