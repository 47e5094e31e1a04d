#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariantList>

class QDomElement;

// The custom info file (root "custom") as written and read, and the older job file read beside
// it. Items come back as the page's maps: name, value, unit, and selected for the display flag.
class CustomInfoFile
{
public:
    using TagTable = QMap<QString, QString>;

    CustomInfoFile() = delete;

    // Job tags and the item names they stand for, in files of either kind.
    static TagTable jobTagTable();

    // The whole file, UTF-8, from the page's items (name, value, unit, selected).
    static QByteArray toXml(const QString& versionText, const QVariantList& customs);

    // The items of a file's bytes; none for bytes that are no well-formed XML, nest deeper than
    // maximumDepth or are larger than maximumFileSize.
    static QVariantList read(const QByteArray& bytes, const TagTable& tags);
    static void loadCustomInfo(const QDomElement& root, QVariantList& list, const TagTable& tags);
    static void loadCustomInfoCustom(
        const QDomElement& root, QVariantList& list, const TagTable& tags);
    static void loadCustomInfoJob(
        const QDomElement& root, QVariantList& list, const TagTable& tags);

    static constexpr qint64 maximumFileSize = 16 * 1024 * 1024;
    // A custom file nests four levels deep. A document tree is freed recursively, so a much
    // deeper file could take the stack down.
    static constexpr int maximumDepth = 64;
};
