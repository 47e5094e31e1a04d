#include "host/HST_CustomData.h"

#include "host/HST_Recorder.h"

#include <QVariantMap>

namespace {

QString flag(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

QVariantMap item(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    return { { QStringLiteral("name"), name }, { QStringLiteral("value"), value },
        { QStringLiteral("unit"), unit }, { QStringLiteral("display"), flag(display) },
        { QStringLiteral("usefilename"), flag(usefilename) } };
}

// The record's fields, made directly: a host loading a file adds thousands of items.
QJsonObject fields(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    return { { QStringLiteral("name"), name }, { QStringLiteral("value"), value },
        { QStringLiteral("unit"), unit }, { QStringLiteral("display"), flag(display) },
        { QStringLiteral("usefilename"), flag(usefilename) } };
}

} // namespace

HST_CustomData::HST_CustomData(const QVariantList& items, HST_Recorder* recorder, int key)
    : m_items(items)
    , m_recorder(recorder)
    , m_key(key)
{
}

int HST_CustomData::indexOf(const QString& name) const
{
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i).toMap().value(QStringLiteral("name")).toString() == name)
            return i;
    }
    return -1;
}

void HST_CustomData::record(const char* op, QJsonObject fields)
{
    if (!m_recorder)
        return;
    fields.insert(QStringLiteral("key"), m_key);
    fields.insert(QStringLiteral("op"), QLatin1String(op));
    m_recorder->record(QStringLiteral("customData"), fields);
}

void HST_CustomData::clear()
{
    m_items.clear();
    record("clear", {});
}

void HST_CustomData::add(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    m_items.append(item(name, value, unit, display, usefilename));
    record("add", fields(name, value, unit, display, usefilename));
}

void HST_CustomData::set(
    const QString& name, const QString& value, const QString& unit, bool display, bool usefilename)
{
    const int index = indexOf(name);
    if (index >= 0)
        m_items[index] = item(name, value, unit, display, usefilename);
    QJsonObject changed = fields(name, value, unit, display, usefilename);
    changed.insert(QStringLiteral("found"), index >= 0);
    record("set", changed);
}

void HST_CustomData::remove(const QString& name)
{
    const int index = indexOf(name);
    if (index >= 0)
        m_items.removeAt(index);
    record("remove", { { QStringLiteral("name"), name }, { QStringLiteral("found"), index >= 0 } });
}

void HST_CustomData::rename(const QString& oldName, const QString& newName)
{
    const int index = indexOf(oldName);
    if (index >= 0) {
        QVariantMap renamed = m_items.at(index).toMap();
        renamed.insert(QStringLiteral("name"), newName);
        m_items[index] = renamed;
    }
    record("rename",
        { { QStringLiteral("name"), oldName }, { QStringLiteral("newName"), newName },
            { QStringLiteral("found"), index >= 0 } });
}
