#include "util/DOC_ReadFileException.h"

DOC_ReadFileException::DOC_ReadFileException(const QString& path)
    : DOC_FileException(QStringLiteral("File read failed."), path, 1)
{
}

DOC_ReadFileException::~DOC_ReadFileException() = default;
