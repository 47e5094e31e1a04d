#pragma once

#include <QString>
#include <QVariant>

// Writes the "[ENTER]" line when made and the "[LEAVE]" line at every way out of the scope,
// an exception passing through included.
class FunctionLogGuard
{
public:
    FunctionLogGuard(const QString& name, const QString& parameters);
    ~FunctionLogGuard();

    FunctionLogGuard(const FunctionLogGuard&) = delete;
    FunctionLogGuard& operator=(const FunctionLogGuard&) = delete;

    // One piece of a parameter text: "[name:value] ", the value converted by way of QVariant.
    static QString parameter(const QString& name, const QVariant& value);

    // The stored form of a parameter text: trimmed, with "docKey:-1" shown as "docKey:Invalid".
    static QString normalized(const QString& parameters);

    static void writeEnter(const QString& name, const QString& parameters);
    static void writeLeave(const QString& name);

private:
    QString m_name;
    QString m_parameters;
};

#define SYNC_TRACE_CONCAT2(a, b) a##b
#define SYNC_TRACE_CONCAT(a, b) SYNC_TRACE_CONCAT2(a, b)
// Traces the enclosing function: SYNC_TRACE("GUI_X::f", FunctionLogGuard::parameter("n", n));
#define SYNC_TRACE(name, parameters) \
    const FunctionLogGuard SYNC_TRACE_CONCAT(functionLogGuard_, __LINE__)((name), (parameters))
