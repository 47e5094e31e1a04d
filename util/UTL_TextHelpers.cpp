#include "util/UTL_TextHelpers.h"

#include <QDir>
#include <QRegExp>
#include <QStorageInfo>
#include <QStringList>
#include <QVector>

#include <cmath>
#include <limits>

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

bool isValidPathName(const QString& text)
{
    const QRegExp pattern(QStringLiteral("[\\*\\?\\|\\t\\n\"<>%]"));
    return pattern.indexIn(text) < 0;
}

bool isMediaFormat(const QString& format, bool moviesOnly)
{
    for (const char* movie : {"Avi", "Mov", "Wmv", "Mp4"}) {
        if (format.compare(QLatin1String(movie), Qt::CaseInsensitive) == 0)
            return true;
    }
    if (moviesOnly)
        return false;
    return format.compare(QLatin1String("Qraw"), Qt::CaseInsensitive) == 0
           || format.compare(QLatin1String("Zraw"), Qt::CaseInsensitive) == 0;
}

QString formatByteSize(quint64 bytes)
{
    constexpr quint64 kilo = 1024;
    struct Unit { quint64 size; const char* name; };
    const Unit units[] = {{kilo * kilo * kilo * kilo, "TB"},
                          {kilo * kilo * kilo, "GB"},
                          {kilo * kilo, "MB"},
                          {kilo, "KB"}};
    for (const Unit& unit : units) {
        if (bytes >= unit.size || unit.size == kilo) {
            const double value = roundToDigits(double(bytes) / double(unit.size), 3);
            return QString::number(value, 'f', 2) + QLatin1String(unit.name);
        }
    }
    return QString();
}

QString firmwareDateText(quint32 value)
{
    if (value == 0)
        return QString();
    if (value > 0xFFFFFF)
        return QStringLiteral("%1").arg(value & 0xFFFF, 3, 10, QLatin1Char('0'));
    return QStringLiteral("2%1/%2/%3")
        .arg((value >> 16) & 0xFF, 3, 16, QLatin1Char('0'))
        .arg((value >> 8) & 0xFF, 0, 16)
        .arg(value & 0xFF, 0, 16);
}

QString firmwareTimeText(quint32 date, qint32 time)
{
    if (date == 0 && time == 0)
        return QString();
    const quint32 bits = quint32(time);
    return QStringLiteral("%1:%2:%3")
        .arg((bits >> 16) & 0xFF, 2, 16, QLatin1Char('0'))
        .arg((bits >> 8) & 0xFF, 2, 16, QLatin1Char('0'))
        .arg(bits & 0xFF, 2, 16, QLatin1Char('0'));
}

QDateTime parseDateTime(const QString& date, const QString& time)
{
    const QString format = time.size() == 5 ? QStringLiteral("yyyy/M/d HH:mm")
                                            : QStringLiteral("yyyy/M/d HH:mm:ss");
    return QDateTime::fromString(QStringLiteral("%1 %2").arg(date, time), format);
}

double framesToMilliseconds(quint32 frames, quint32 frameRate)
{
    if (frameRate == 0)
        return 1.0;
    return 1000.0 * double(frames) / double(frameRate);
}

quint32 millisecondsToFrames(double milliseconds, quint32 frameRate)
{
    if (frameRate == 0)
        return 1;
    const double frames = milliseconds / 1000.0 * double(frameRate);
    // qRound's half-up rule, without its undefined conversion of values out of range.
    const double rounded = std::floor(frames + 0.5);
    if (!(rounded > 0.0))
        return 0;
    if (rounded >= double(std::numeric_limits<quint32>::max()))
        return std::numeric_limits<quint32>::max();
    return quint32(rounded);
}

qint32 greatestCommonDivisor(quint32 a, quint32 b)
{
    while (b != 0) {
        const quint32 rest = a % b;
        a = b;
        b = rest;
    }
    return qint32(a);
}

namespace {
double digitsFactor(quint32 digits)
{
    return std::pow(10.0, double(digits == 0 ? 0 : digits - 1));
}
} // namespace

double roundToDigits(double value, quint32 digits)
{
    const double factor = digitsFactor(digits);
    return std::round(factor * value) / factor;
}

double roundFraction(double value, quint32 digits)
{
    const double factor = digitsFactor(digits);
    const double whole = std::floor(value);
    // The fraction is never negative, so qRound's rule is plain half-up here.
    const double fraction = std::floor((value - whole) * factor + 0.5);
    return whole + fraction / factor;
}

double nearestValue(double value, const QList<double>& list)
{
    int best = 0;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (int i = 0; i < list.size(); ++i) {
        // Whole numbers held in a double: equal distances tie exactly, and nothing overflows.
        const double distance = std::fabs(std::round((value - list.at(i)) * 10000.0));
        if (distance <= bestDistance) {
            bestDistance = distance;
            best = i;
        }
    }
    return roundFraction(list.value(best), 5);
}

qint64 freeBytes(const QString& path)
{
    const int slash = path.indexOf(QLatin1Char('/'));
    const QString root = slash < 0 ? QString() : path.left(slash + 1);
    const qint64 bytes = QStorageInfo(QDir(root)).bytesFree();
    return bytes < 0 ? 0 : bytes;
}
