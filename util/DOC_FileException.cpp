#include "util/DOC_FileException.h"

#include <QDebug>

DOC_FileException::DOC_FileException(const QString& message, const QString& path, int errorCode)
    : DOC_Exception(message, errorCode)
{
    const QString text = QStringLiteral("DOC_FileException") + QStringLiteral(":")
                         + QStringLiteral("[message:") + message + QStringLiteral("] ")
                         + QStringLiteral("[path:") + path + QStringLiteral("] ")
                         + QStringLiteral("[errorCode:") + QString::number(errorCode)
                         + QStringLiteral("] ");
    QMessageLogger().critical() << text;
}

DOC_FileException::~DOC_FileException() = default;
