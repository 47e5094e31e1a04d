#pragma once

#include <QJsonObject>
#include <QString>
#include <QVariantList>

class HST_Recorder;

// A document's custom items in order, each a map with name, value, unit, and display and
// usefilename as "on" or "off". Items are found by name, the first of a name counting. Every
// change is recorded as a customData event.
class HST_CustomData
{
public:
    HST_CustomData(const QVariantList& items, HST_Recorder* recorder, int key);

    const QVariantList& items() const { return m_items; }
    void clear();
    void add(const QString& name, const QString& value, const QString& unit, bool display,
        bool usefilename);
    // An unknown name changes nothing; the record says so.
    void set(const QString& name, const QString& value, const QString& unit, bool display,
        bool usefilename);
    void remove(const QString& name);
    void rename(const QString& oldName, const QString& newName);

private:
    int indexOf(const QString& name) const;
    void record(const char* op, QJsonObject fields);

    QVariantList m_items;
    HST_Recorder* m_recorder;
    int m_key;
};
