#include "util/UserOperationLog.h"

#include <QDebug>

namespace {

QString piece(const QString& key, const QString& value)
{
    return QStringLiteral("[") + key + QStringLiteral(":") + value + QStringLiteral("] ");
}

} // namespace

QString UserOperationLog::operationText(const QString& url, const QString& secondKey,
                                        const QString& secondValue, const QString& control,
                                        const QString& operation, const QString& value)
{
    return piece(QStringLiteral("URL"), url) + piece(secondKey, secondValue)
           + piece(QStringLiteral("Control"), control)
           + piece(QStringLiteral("Operation"), operation) + piece(QStringLiteral("Value"), value);
}

void UserOperationLog::write(const QString& operationText)
{
    QMessageLogger().info() << "[USER]" << operationText;
}

void UserOperationLog::writePageOperation(const QString& url, const QString& operation,
                                          const QString& control, const QString& id,
                                          const QString& className, const QString& value)
{
    const bool byClass = id.isEmpty() && !className.isEmpty();
    write(operationText(url, byClass ? QStringLiteral("Class") : QStringLiteral("ID"),
                        byClass ? className : id, control, operation, value));
}

void UserOperationLog::writeError(const QString& message)
{
    QMessageLogger().critical() << "[USER][ERROR]" << message;
}

void logUserOperation(const QString& url, const QString& id, const QString& control,
                      const QString& operation, const QString& value)
{
    UserOperationLog::write(UserOperationLog::operationText(url, QStringLiteral("ID"), id, control,
                                                            operation, value));
}
