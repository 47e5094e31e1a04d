#pragma once

#include "util/DOC_FileException.h"

// A file could not be read.
class SYNC_SHARED DOC_ReadFileException : public DOC_FileException
{
public:
    explicit DOC_ReadFileException(const QString& path);
    ~DOC_ReadFileException() override;
};
