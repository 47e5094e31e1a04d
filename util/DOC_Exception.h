#pragma once

#include "util/APP_Exception.h"

// A failure of a device driver or a document.
class SYNC_SHARED DOC_Exception : public APP_Exception
{
public:
    DOC_Exception(const QString& message, int errorCode);
    ~DOC_Exception() override;
};
