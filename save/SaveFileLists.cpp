#include "save/SaveFileLists.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QStringList>

namespace {

QString compact(const QJsonArray& array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

} // namespace

QList<QPair<QString, QString>> SaveFileLists::pairs(const QString& text)
{
    QList<QPair<QString, QString>> found;
    for (const QString& piece : text.split(QLatin1Char('?'), Qt::SkipEmptyParts)) {
        const QStringList parts = piece.split(QLatin1Char('|'), Qt::SkipEmptyParts);
        if (parts.size() == 2)
            found.append({ parts.at(0), parts.at(1) });
    }
    return found;
}

QString SaveFileLists::multiPathsJson(const QString& text)
{
    QJsonArray rows;
    int recid = 1;
    for (const auto& pair : pairs(text))
        rows.append(QJsonObject { { QStringLiteral("recid"), recid++ },
            { QStringLiteral("name"), pair.first }, { QStringLiteral("path"), pair.second } });
    return compact(rows);
}

QString SaveFileLists::multiPathDevicesJson(
    const QString& pathList, const QString& deviceList, const QList<QString>& addresses)
{
    const QList<QPair<QString, QString>> paths = pairs(pathList);
    QMap<QString, QString> chosen;
    for (const auto& pair : pairs(deviceList))
        chosen.insert(pair.first, pair.second);
    QJsonArray pathRows;
    QMap<QString, QString> pathOf;
    for (const auto& pair : paths) {
        pathRows.append(QJsonObject {
            { QStringLiteral("key"), pair.first }, { QStringLiteral("val"), pair.second } });
        if (!pathOf.contains(pair.first))
            pathOf.insert(pair.first, pair.second);
    }
    QJsonArray rows;
    QSet<QString> seen;
    int recid = 0;
    for (const QString& address : addresses) {
        if (seen.contains(address))
            continue;
        seen.insert(address);
        QString selector = chosen.value(address);
        if (!pathOf.contains(selector)) {
            selector = paths.isEmpty() ? QString() : paths.first().first;
            chosen.insert(address, selector);
        }
        rows.append(QJsonObject { { QStringLiteral("recid"), recid++ },
            { QStringLiteral("device"), address }, { QStringLiteral("paths"), pathRows },
            { QStringLiteral("pathselector"), selector },
            { QStringLiteral("path"), pathOf.value(selector) } });
    }
    return compact(rows);
}

bool SaveFileLists::showsFileName(const QString& displayList)
{
    const QString item = QStringLiteral("File name");
    if (!displayList.contains(item))
        return false;
    for (const QString& part : displayList.split(QLatin1Char(','))) {
        const QStringList pieces = part.split(QLatin1Char(':'));
        if (pieces.size() >= 2 && pieces.at(0) == item && pieces.at(1) == QLatin1String("true"))
            return true;
    }
    return false;
}
