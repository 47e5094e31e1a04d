#include "dialogs/InfoDisplayList.h"

#include "plugin/SharedKeys.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

namespace {

// How a page names a separator in an order it reports.
constexpr QLatin1String pageSeparator("HR", 2);

} // namespace

InfoDisplayList InfoDisplayList::parse(const QString& text)
{
    InfoDisplayList list;
    QSet<QString> seen;
    for (const QStringRef& piece : text.splitRef(QLatin1Char(','))) {
        if (piece == INFO_KEY_SEPARATOR) {
            list.m_entries.append({ QString(), false, true });
            continue;
        }
        const int colon = piece.indexOf(QLatin1Char(':'));
        if (colon <= 0)
            continue;
        const QString key = piece.left(colon).toString();
        if (seen.contains(key))
            continue;
        seen.insert(key);
        const QStringRef state = piece.mid(colon + 1).split(QLatin1Char(':')).first();
        list.m_entries.append({ key, state == QLatin1String("true"), false });
    }
    return list;
}

QString InfoDisplayList::toText() const
{
    QStringList pieces;
    pieces.reserve(m_entries.size());
    for (const Entry& entry : m_entries) {
        if (entry.separator)
            pieces.append(INFO_KEY_SEPARATOR);
        else
            pieces.append(
                entry.key + (entry.on ? QStringLiteral(":true") : QStringLiteral(":false")));
    }
    return pieces.join(QLatin1Char(','));
}

bool InfoDisplayList::setState(const QString& key, bool on)
{
    for (Entry& entry : m_entries) {
        if (!entry.separator && entry.key == key) {
            entry.on = on;
            return true;
        }
    }
    return false;
}

void InfoDisplayList::reorder(const QString& idList)
{
    QHash<QString, int> index;
    for (int i = 0; i < m_entries.size(); ++i) {
        if (!m_entries.at(i).separator)
            index.insert(m_entries.at(i).key, i);
    }
    QVector<bool> placed(m_entries.size(), false);
    QList<Entry> ordered;
    for (const QString& id : idList.split(QLatin1Char(','))) {
        if (id == pageSeparator || id == INFO_KEY_SEPARATOR) {
            ordered.append({ QString(), false, true });
            continue;
        }
        const int at = index.value(id, -1);
        if (at < 0 || placed.at(at))
            continue;
        placed[at] = true;
        ordered.append(m_entries.at(at));
    }
    for (int i = 0; i < m_entries.size(); ++i) {
        if (!m_entries.at(i).separator && !placed.at(i))
            ordered.append(m_entries.at(i));
    }
    m_entries = ordered;
}
