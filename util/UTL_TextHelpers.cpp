#include "util/UTL_TextHelpers.h"

#include <QRegExp>
#include <QStringList>
#include <QVector>

bool isIpAddress(const QString& text)
{
    // QRegExp is not thread-safe to share, so each call has its own.
    const QRegExp pattern(QStringLiteral("[0-9]{1,3}\\.[0-9]{1,3}\\.[0-9]{1,3}\\.[0-9]{1,3}"),
                          Qt::CaseSensitive);
    return pattern.indexIn(text) == 0;
}

quint32 ipToNumber(const QString& text)
{
    quint32 number = 0;
    const QVector<QStringRef> parts = text.splitRef(QLatin1Char('.'), Qt::KeepEmptyParts);
    for (const QStringRef& part : parts) {
        bool ok = false;
        const quint32 value = part.toUInt(&ok, 10);
        number = (number << 8) | (ok ? value : 0u);
    }
    return number;
}

QString numberToIp(quint32 number)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg((number >> 24) & 0xFF)
        .arg((number >> 16) & 0xFF)
        .arg((number >> 8) & 0xFF)
        .arg(number & 0xFF);
}
