#include "save/NamingText.h"

#include <QLocale>

QString numberText(
    int camera, int head, int session, int cameraDigits, int headDigits, int sessionDigits)
{
    QString text;
    const QChar zero(QLatin1Char('0'));
    if (cameraDigits >= 1)
        text += QStringLiteral("C%1").arg(camera, cameraDigits, 10, zero);
    if (headDigits >= 1)
        text += QStringLiteral("H%1").arg(head, headDigits, 10, zero);
    if (sessionDigits >= 1)
        text += QStringLiteral("S%1").arg(session, sessionDigits, 10, zero);
    return text;
}

bool isValidFileName(const QString& text)
{
    // The character class [\\/*?|\t\n":<>%] by hand: a name list calls this for every name,
    // and building a pattern each time costs more than the rest of the reading.
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '\\':
        case '/':
        case '*':
        case '?':
        case '|':
        case '\t':
        case '\n':
        case '"':
        case ':':
        case '<':
        case '>':
        case '%':
            return false;
        default:
            break;
        }
    }
    return true;
}

QString replaceInvalidCharacters(const QString& text, const QString& replacement)
{
    QString result = text;
    if (!isValidFileName(result)) {
        for (const QChar c : QStringLiteral("\\/:*?\"<>|%"))
            result.replace(c, replacement);
    }
    if (result == QLatin1String(".") || result == QLatin1String(".."))
        result.replace(QLatin1Char('.'), replacement);
    return result;
}

QString formatDateTime(const QDateTime& dateTime, const QString& format)
{
    return QLocale(QLocale::C).toString(dateTime, format);
}

QString currentDateTimeText(const QString& format)
{
    return formatDateTime(QDateTime::currentDateTime(), format);
}

QString withTrailingSeparator(const QString& path)
{
    if (path.isEmpty() || path.endsWith(QLatin1Char('/')))
        return path;
    return path + QLatin1Char('/');
}

QString appendNamePart(const QString& name, const QString& part)
{
    return name.isEmpty() ? part : name + QLatin1Char('_') + part;
}
