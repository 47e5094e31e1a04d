#pragma once

#include <QList>
#include <QString>

// The display list of the information block: comma separated entries in display order, each
// "key:true", "key:false" or the separator "<hr>". Read from preferences that anything may have
// written, so the reader keeps what it can: an entry without a state is dropped, a key's second
// entry too, and a state other than "true" reads as hidden.
class InfoDisplayList
{
public:
    struct Entry
    {
        QString key;
        bool on = false;
        bool separator = false;
    };

    static InfoDisplayList parse(const QString& text);
    QString toText() const;
    const QList<Entry>& entries() const { return m_entries; }

    // False when the list has no item of that key.
    bool setState(const QString& key, bool on);
    // The order a page reports, "HR" for a separator: each known item keeps its state; keys
    // the list doesn't hold and repeated keys are dropped, and items the order leaves out
    // follow at the end, so that a faulty order loses nothing.
    void reorder(const QString& idList);

private:
    QList<Entry> m_entries;
};
