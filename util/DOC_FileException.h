#pragma once

#include "util/DOC_Exception.h"

// A file failure. The path goes to the log only; the user reads the message.
class SYNC_SHARED DOC_FileException : public DOC_Exception
{
public:
    DOC_FileException(const QString& message, const QString& path, int errorCode);
    ~DOC_FileException() override;
};
