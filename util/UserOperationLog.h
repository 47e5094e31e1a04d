#pragma once

#include <QString>

// The user operation log: what the user did, in which dialog.
namespace UserOperationLog {

// "[URL:u] [ID:i] [Control:c] [Operation:o] [Value:v] " (second key "Class" when given).
QString operationText(const QString& url, const QString& secondKey, const QString& secondValue,
                      const QString& control, const QString& operation, const QString& value);

// Writes the "[USER]" line of one operation.
void write(const QString& operationText);

// Writes the "[USER]" line of an operation on a page element: named by its ID, or by its class
// when it has no ID.
void writePageOperation(const QString& url, const QString& operation, const QString& control,
                        const QString& id, const QString& className, const QString& value);

// Writes the "[USER][ERROR]" line.
void writeError(const QString& message);

} // namespace UserOperationLog

// For native dialogs: one "[USER]" line, always with the key "ID".
void logUserOperation(const QString& url, const QString& id, const QString& control,
                      const QString& operation, const QString& value);
