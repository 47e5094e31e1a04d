#include "util/DOC_Exception.h"

DOC_Exception::DOC_Exception(const QString& message, int errorCode)
    : APP_Exception(message, errorCode)
{
}

DOC_Exception::~DOC_Exception() = default;
