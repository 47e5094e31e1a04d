// The custom info and job file reader on arbitrary bytes: such files are written by hand and by
// other programs. Beyond not crashing, an item always has a name, and what the reader gave
// comes back unchanged through the writer and the reader, for texts XML can carry.
//
// Input: the file's bytes.

#include "dialogs/CustomInfoFile.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>

namespace {

// XML keeps printable text; a text of blanks only is dropped by the reader as formatting.
bool survivesXml(const QString& text)
{
    if (!text.isEmpty() && text.trimmed().isEmpty())
        return false;
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u < 0x20 || c.isSurrogate() || u == 0xFFFE || u == 0xFFFF || u == 0x7F)
            return false;
    }
    return true;
}

bool survivesXml(const QVariantList& items)
{
    for (const QVariant& item : items) {
        const QVariantMap map = item.toMap();
        for (const char* key : { "name", "value", "unit" }) {
            if (!survivesXml(map.value(QLatin1String(key)).toString()))
                return false;
        }
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    const CustomInfoFile::TagTable tags = CustomInfoFile::jobTagTable();
    const QVariantList items = CustomInfoFile::read(bytes, tags);
    for (const QVariant& item : items) {
        const QVariantMap map = item.toMap();
        check(map.contains(QStringLiteral("name")));
        check(!tags.contains(map.value(QStringLiteral("name")).toString()));
    }
    if (items.isEmpty() || !survivesXml(items))
        return 0;

    const QVariantList again
        = CustomInfoFile::read(CustomInfoFile::toXml(QStringLiteral("v"), items), tags);
    check(again.size() == items.size());
    for (int i = 0; i < items.size(); ++i) {
        const QVariantMap first = items.at(i).toMap();
        const QVariantMap second = again.at(i).toMap();
        for (const char* key : { "name", "value", "unit" })
            check(first.value(QLatin1String(key)).toString()
                == second.value(QLatin1String(key)).toString());
        check(first.value(QStringLiteral("selected")).toBool()
            == second.value(QStringLiteral("selected")).toBool());
    }
    return 0;
}
