#include "util/UTL_Exception.h"

UTL_Exception::UTL_Exception(const QString& message, int errorCode)
    : APP_Exception(message, errorCode)
{
}

UTL_Exception::~UTL_Exception() = default;
