#pragma once

#include "plugin/SyncGlobal.h"

#include <QString>

#include <stdexcept>

class APP_ConcurrentException;

// An error with a text for the user. Every construction leaves a critical log line, so that even
// an exception nobody shows leaves a trace; copies don't log again.
class SYNC_SHARED APP_Exception : public std::runtime_error
{
public:
    APP_Exception(const QString& message, int errorCode);
    APP_Exception(const APP_Exception& other) = default;
    APP_Exception& operator=(const APP_Exception& other) = default;
    ~APP_Exception() override;

    int errorCode() const { return m_errorCode; }

protected:
    // Empty and silent: only for holders that need a value before they have an exception.
    APP_Exception();
    friend class APP_ConcurrentException;

private:
    int m_errorCode = 0;
};
