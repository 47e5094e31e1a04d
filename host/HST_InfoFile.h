#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>

// The information file a save writes beside its output: one "key=value" line each, UTF-8. The
// saved check reads the serial and data numbers back out of the files under a folder.
class HST_InfoFile
{
public:
    HST_InfoFile() = delete;

    using Fields = QList<QPair<QString, QString>>;

    static const QString suffix;

    // False with the reason when the file can't be written.
    static bool write(const QString& path, const Fields& fields, QString& error);
    // Any bytes: lines without "=" and keys given twice after the first are passed over.
    static QMap<QString, QString> parse(const QByteArray& bytes);
    // Those of the pairs that an information file under the folder names, in their order.
    static Fields findSaved(const QString& folder, const Fields& pairs);
};
