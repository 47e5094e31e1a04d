#pragma once

#include "util/APP_Exception.h"

// A failure of the utilities.
class SYNC_SHARED UTL_Exception : public APP_Exception
{
public:
    UTL_Exception(const QString& message, int errorCode);
    ~UTL_Exception() override;
};
