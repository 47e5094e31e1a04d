// The lists the save dialogs read from text the user keeps: the multiple paths and the devices'
// choice among them (preferences), the information overlay's display lists, and the host's
// information files that the saved check reads from disk. Beyond not crashing: what reaches a
// page is valid JSON, every path entry has two parts free of the separators, a device's choice
// is one of the paths or none, and an information file's keys are non-empty single lines.
//
// Input: a selector byte, then the text; for the devices the path list, the device list and the
// addresses are separated by zero bytes.

#include "host/HST_InfoFile.h"
#include "save/SaveFileLists.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringList>

#include "FuzzCheck.h"

#include <cstdint>

namespace {

QJsonArray array(const QString& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
    check(error.error == QJsonParseError::NoError && document.isArray());
    return document.array();
}

void paths(const QString& text)
{
    const auto pairs = SaveFileLists::pairs(text);
    for (const auto& pair : pairs) {
        for (const QString& part : { pair.first, pair.second })
            check(!part.isEmpty() && !part.contains(QLatin1Char('|'))
                && !part.contains(QLatin1Char('?')));
    }
    const QJsonArray rows = array(SaveFileLists::multiPathsJson(text));
    check(rows.size() == pairs.size());
    for (int i = 0; i < rows.size(); ++i)
        check(rows.at(i).toObject().value(QStringLiteral("recid")).toInt() == i + 1);
}

void devices(const QList<QByteArray>& parts)
{
    const QString pathList = QString::fromUtf8(parts.value(0));
    QList<QString> addresses;
    for (int i = 2; i < parts.size(); ++i)
        addresses.append(QString::fromUtf8(parts.at(i)));
    QSet<QString> keys;
    for (const auto& pair : SaveFileLists::pairs(pathList))
        keys.insert(pair.first);
    const QJsonArray rows = array(SaveFileLists::multiPathDevicesJson(
        pathList, QString::fromUtf8(parts.value(1)), addresses));
    check(rows.size() == QSet<QString>(addresses.begin(), addresses.end()).size());
    for (const QJsonValue& row : rows) {
        const QString selector = row.toObject().value(QStringLiteral("pathselector")).toString();
        check(keys.isEmpty() ? selector.isEmpty() : keys.contains(selector));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, int(size - 1));
    switch (data[0] % 4) {
    case 0:
        paths(QString::fromUtf8(bytes));
        break;
    case 1:
        devices(bytes.split('\0'));
        break;
    case 2:
        SaveFileLists::showsFileName(QString::fromUtf8(bytes));
        break;
    default: {
        const QMap<QString, QString> fields = HST_InfoFile::parse(bytes);
        for (auto it = fields.begin(); it != fields.end(); ++it)
            check(!it.key().isEmpty() && !it.key().contains(QLatin1Char('\n'))
                && !it.value().contains(QLatin1Char('\n')));
        break;
    }
    }
    return 0;
}
