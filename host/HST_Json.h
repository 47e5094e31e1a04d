#pragma once

#include <QJsonDocument>
#include <QString>

namespace HST_Json {

// Parses a JSON text the user gave the host (a scenario, a script). On failure, error names
// the source and where the text goes wrong.
inline bool parse(const QByteArray& json, const QString& source, QJsonDocument& document,
    QString& error)
{
    QJsonParseError parseError;
    document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error == QJsonParseError::NoError)
        return true;
    error = QStringLiteral("%1: not JSON: %2 at offset %3")
                .arg(source, parseError.errorString())
                .arg(parseError.offset);
    return false;
}

} // namespace HST_Json
