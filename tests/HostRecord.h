#pragma once

// Script steps as the reference host reads them, and what an in-process run of the host left
// behind: its exit code, its error and its record. The end-to-end tests check runs through it.
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace hoststeps {

// {kind: value}, acting in the named window or dock when window is given.
inline QJsonObject step(
    const QString& kind, const QJsonValue& value, const QString& window = QString())
{
    QJsonObject object { { kind, value } };
    if (!window.isEmpty())
        object.insert(QStringLiteral("window"), window);
    return object;
}

inline QJsonObject js(const QString& code, const QString& window = QString())
{
    return step(QStringLiteral("js"), code, window);
}

inline QJsonObject click(const QString& button)
{
    return step(QStringLiteral("click"), button);
}

inline QJsonObject menu(const QString& path)
{
    return step(QStringLiteral("menu"), path);
}

} // namespace hoststeps

struct HostRecord
{
    int code = -1;
    QString error;
    QList<QJsonObject> events;

    // The record's events of one call, in order.
    QList<QJsonObject> of(const QString& call) const
    {
        QList<QJsonObject> found;
        for (const QJsonObject& event : events) {
            if (event.value(QStringLiteral("call")).toString() == call)
                found.append(event);
        }
        return found;
    }
    // One field of each of those events, as text.
    QStringList texts(const QString& call, const QString& field) const
    {
        QStringList found;
        for (const QJsonObject& event : of(call))
            found << event.value(field).toVariant().toString();
        return found;
    }
    // What the dialog opened by name ended with; -2 when none ended.
    int openResult() const
    {
        int result = -2;
        for (const QJsonObject& event : of(QStringLiteral("open"))) {
            if (event.value(QStringLiteral("phase")).toString() == QLatin1String("end"))
                result = event.value(QStringLiteral("result")).toInt();
        }
        return result;
    }
    // What each js step gave back, in order.
    QStringList jsResults() const { return texts(QStringLiteral("js"), QStringLiteral("result")); }
};
