#pragma once

#include <QList>
#include <QPair>
#include <QString>

// A JSON object written as compact text with its keys in the order they were added: pages read
// the control status and the device entries in the order the host defines, which QJsonObject
// (sorted keys) would lose.
class JS_OrderedJson
{
public:
    void add(const QString& key, bool value);
    void add(const QString& key, int value);
    void add(const QString& key, const QString& value);
    // Replaces the value of a key already added, or adds it at the end.
    void set(const QString& key, const QString& value);

    QString text() const;

    // A string as a JSON literal, quotes included.
    static QString quoted(const QString& value);

private:
    // Each value already in its JSON form.
    QList<QPair<QString, QString>> m_members;
};
