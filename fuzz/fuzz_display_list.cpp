// The display list of the information block on arbitrary text: anything may have written the
// preference. Beyond not crashing: every item is read once, an order a page reports loses no
// item and adds none, what is written reads back the same, and the list's HTML has one line per
// entry whatever the keys hold.
//
// Input: the first line is an order as a page reports it ("HR" for a separator); the rest is
// the list as the preference holds it.

#include "dialogs/InfoDisplayList.h"
#include "dialogs/InfoSettingsHtml.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include "FuzzCheck.h"

#include <cstdint>

namespace {

QStringList itemKeys(const InfoDisplayList& list)
{
    QStringList keys;
    for (const InfoDisplayList::Entry& entry : list.entries()) {
        if (!entry.separator)
            keys.append(entry.key);
    }
    return keys;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const QString order = text.section(QLatin1Char('\n'), 0, 0);
    InfoDisplayList list = InfoDisplayList::parse(text.section(QLatin1Char('\n'), 1));

    QStringList keys = itemKeys(list);
    check(QSet<QString>(keys.begin(), keys.end()).size() == keys.size());
    check(InfoDisplayList::parse(list.toText()).toText() == list.toText());

    const QString html = InfoSettingsHtml::build(
        list, QHash<QString, bool>(), false, [](const QString& key) { return key; },
        QStringLiteral("edit..."));
    check(html.count(QStringLiteral("<li>")) == keys.size());
    check(!html.contains(QStringLiteral("<script")));

    list.reorder(order);
    QStringList reordered = itemKeys(list);
    keys.sort();
    reordered.sort();
    check(keys == reordered);
    return 0;
}
