#include "util/APP_Exception.h"

#include <QDebug>

APP_Exception::APP_Exception(const QString& message, int errorCode)
    : std::runtime_error(message.toStdString())
    , m_errorCode(errorCode)
{
    // The base writes this line for every derived class too, always under its own name.
    const QString text = QStringLiteral("APP_Exception") + QStringLiteral(":")
                         + QStringLiteral("[message:") + message + QStringLiteral("] ")
                         + QStringLiteral("[errorCode:") + QString::number(errorCode)
                         + QStringLiteral("] ");
    QMessageLogger().critical() << text;
}

APP_Exception::APP_Exception()
    : std::runtime_error(std::string())
{
}

APP_Exception::~APP_Exception() = default;
