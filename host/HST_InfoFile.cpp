#include "host/HST_InfoFile.h"

#include <QDirIterator>
#include <QFile>
#include <QSaveFile>
#include <QSet>

const QString HST_InfoFile::suffix = QStringLiteral(".inf");

namespace {

// Information files are a few hundred bytes; anything far bigger isn't one.
const qint64 largestFile = 1 << 20;

} // namespace

bool HST_InfoFile::write(const QString& path, const Fields& fields, QString& error)
{
    QByteArray text;
    for (const auto& field : fields) {
        QString value = field.second;
        value.replace(QLatin1Char('\n'), QLatin1Char(' '))
            .replace(QLatin1Char('\r'), QLatin1Char(' '));
        text += field.first.toUtf8() + '=' + value.toUtf8() + '\n';
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        error = file.errorString();
        return false;
    }
    return true;
}

QMap<QString, QString> HST_InfoFile::parse(const QByteArray& bytes)
{
    QMap<QString, QString> fields;
    for (const QByteArray& line : bytes.split('\n')) {
        const int equals = line.indexOf('=');
        if (equals <= 0)
            continue;
        const QString key = QString::fromUtf8(line.left(equals)).trimmed();
        if (!key.isEmpty() && !fields.contains(key))
            fields.insert(key, QString::fromUtf8(line.mid(equals + 1)).trimmed());
    }
    return fields;
}

HST_InfoFile::Fields HST_InfoFile::findSaved(const QString& folder, const Fields& pairs)
{
    QSet<QPair<QString, QString>> saved;
    QDirIterator files(
        folder, { QStringLiteral("*") + suffix }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.size() > largestFile || !file.open(QIODevice::ReadOnly))
            continue;
        const QMap<QString, QString> fields = parse(file.readAll());
        const QString serialNo = fields.value(QStringLiteral("serialno"));
        const QString dataNo = fields.value(QStringLiteral("datano"));
        if (!serialNo.isEmpty() && !dataNo.isEmpty())
            saved.insert({ serialNo, dataNo });
    }
    Fields found;
    for (const auto& pair : pairs) {
        if (saved.contains(pair) && !found.contains(pair))
            found.append(pair);
    }
    return found;
}
