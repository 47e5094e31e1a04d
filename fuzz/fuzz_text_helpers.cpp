// The text helpers on arbitrary text and numbers: addresses, path names and formats typed by the
// user or read from files and devices, and numbers from devices and preferences (NaN and the
// infinities included). Beyond not crashing, the rules their comments promise are checked where
// they hold for every input.
//
// Input: [8 bytes double] [8 bytes double] [4 bytes] [4 bytes] [flag] [text... NUL text...]

#include "util/UTL_TextHelpers.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {


template <typename T>
T take(const uint8_t *&data, size_t &size)
{
    T value {};
    const size_t n = size < sizeof value ? size : sizeof value;
    std::memcpy(&value, data, n);
    data += n;
    size -= n;
    return value;
}

bool holdsForbiddenPathChar(const QString &text)
{
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '*': case '?': case '|': case '\t': case '\n': case '"': case '<': case '>': case '%':
            return true;
        default:
            break;
        }
    }
    return false;
}

void address(const QString &text, quint32 number)
{
    // A number written out is an address and reads back as itself.
    const QString written = numberToIp(number);
    check(isIpAddress(written));
    check(ipToNumber(written) == number);

    const bool ip = isIpAddress(text);
    const QStringList parts = text.split(QLatin1Char('.'));
    if (ip)
        check(parts.size() >= 4);
    // A plain dotted quad of octets up to 255 without leading zeros is the spelling of its number.
    bool plain = parts.size() == 4;
    for (const QString &part : parts) {
        bool digits = !part.isEmpty() && part.size() <= 3 && (part.size() == 1 || part[0] != QLatin1Char('0'));
        for (const QChar c : part)
            digits = digits && c >= QLatin1Char('0') && c <= QLatin1Char('9');
        plain = plain && digits && part.toUInt() <= 255;
    }
    if (plain) {
        check(ip);
        check(numberToIp(ipToNumber(text)) == text);
    }
}

void numbers(double a, double b, quint32 u, qint32 i)
{
    for (quint32 digits : {0u, 1u, 2u, 3u, 5u, u % 400u}) {
        const double rounded = roundToDigits(a, digits);
        const double fraction = roundFraction(a, digits);
        if (std::isnan(a)) {
            check(std::isnan(rounded));
            continue;
        }
        const double factor = std::pow(10.0, double(digits == 0 ? 0 : digits - 1));
        // Rounding moves a value by at most half a step, while the scaled value stays exact
        // enough to tell.
        if (std::isfinite(a) && std::fabs(a) * factor < 1e15) {
            const double slack = std::fabs(a) * 1e-12 + 1e-9 / factor;
            check(std::fabs(rounded - a) <= 0.5 / factor + slack);
            // The fraction is taken after the whole part, so it is only as exact as 1.0 is.
            check(std::fabs(fraction - a) <= 0.5 / factor + slack + 1e-15 * std::max(1.0, std::fabs(a)));
        }
    }

    QList<double> list;
    check(nearestValue(a, list) == 0.0);
    list << b << a << double(u) << double(i) << b;
    const double nearest = nearestValue(a, list);
    (void)nearest;

    framesToMilliseconds(u, quint32(i));
    const quint32 frames = millisecondsToFrames(a, u);
    if (u == 0)
        check(frames == 1);
    if (std::isnan(a) && u != 0)
        check(frames == 0);

    if (quint32(i) != 0) {
        const quint32 g = quint32(greatestCommonDivisor(u, quint32(i)));
        check(g != 0 && u % g == 0 && quint32(i) % g == 0);
    }

    formatByteSize(quint64(u) << (i & 31));
    formatByteSize(quint64(-1) - u);

    const QString date = firmwareDateText(u);
    check(date.isEmpty() == (u == 0));
    if (u != 0 && u <= 0xFFFFFF)
        check(date.startsWith(QLatin1Char('2')) && date.count(QLatin1Char('/')) == 2);
    const QString time = firmwareTimeText(u, i);
    check(time.isEmpty() == (u == 0 && i == 0));
    if (!time.isEmpty())
        check(time.size() == 8);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const double a = take<double>(data, size);
    const double b = take<double>(data, size);
    const quint32 u = take<quint32>(data, size);
    const qint32 i = take<qint32>(data, size);
    const uint8_t flag = take<uint8_t>(data, size);
    numbers(a, b, u, i);

    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const int nul = bytes.indexOf('\0');
    const QString first = QString::fromUtf8(nul < 0 ? bytes : bytes.left(nul));
    const QString second = nul < 0 ? QString() : QString::fromUtf8(bytes.mid(nul + 1));

    for (const QString &text : {first, second, QString::fromLatin1(bytes)}) {
        address(text, u);
        check(isValidPathName(text) == !holdsForbiddenPathChar(text));
        const bool movie = isMediaFormat(text, true);
        const bool any = isMediaFormat(text, false);
        check(!movie || any);
        if (any)
            check(text.size() == 3 || text.size() == 4);
    }

    const QDateTime when = parseDateTime(first, second);
    if (when.isValid())
        check(when.date().isValid() && when.time().isValid());
    if (flag & 1)
        parseDateTime(second, first);
    return 0;
}
