#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariantList>

class QXmlStreamReader;

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

    // The items of a file's bytes; none for bytes that are no well-formed XML or are larger
    // than maximumFileSize. Read as a stream, so that no depth of nesting costs stack; an
    // element's text is that of its descendants, blank pieces left out, as a document tree
    // holds it.
    static QVariantList read(const QByteArray& bytes, const TagTable& tags);
    // The reader stands on the root's start; each leaves it behind the root's end.
    static void loadCustomInfo(QXmlStreamReader& root, QVariantList& list, const TagTable& tags);
    static void loadCustomInfoCustom(
        QXmlStreamReader& root, QVariantList& list, const TagTable& tags);
    static void loadCustomInfoJob(QXmlStreamReader& root, QVariantList& list, const TagTable& tags);

    static constexpr qint64 maximumFileSize = qint64(16) * 1024 * 1024;
};
