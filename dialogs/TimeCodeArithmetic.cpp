#include "dialogs/TimeCodeArithmetic.h"

#include <cmath>

namespace {

// Far beyond any value the dialog accepts, and safe to multiply by the reset frame limit.
constexpr double value4Limit = 1.0e14;

} // namespace

qint64 TimeCodeArithmetic::value4(double x)
{
    const double product = x * 10000.0;
    if (std::isnan(product))
        return 0;
    const double bounded = qBound(-value4Limit, product, value4Limit);
    double whole = std::trunc(bounded);
    if (bounded - whole > 0.5)
        whole += 1.0;
    return qint64(whole);
}

qint64 TimeCodeArithmetic::frameOfValue(bool resetOn, double oneFrame, double value, double start)
{
    const qint64 a = value4(oneFrame);
    const qint64 b = value4(value);
    const qint64 c = value4(start);
    if (!resetOn || a == 0 || b == c)
        return 1;
    // The value lies behind the start, against the direction of the steps.
    if ((a > 0 && c >= b) || (a < 0 && c <= b))
        return 1;
    const qint64 distance = b - c;
    return distance / a + (distance % a != 0 ? 1 : 0);
}

double TimeCodeArithmetic::valueOfFrame(qint64 frames, double oneFrame, double start)
{
    return double(value4(start) + frames * value4(oneFrame)) * 0.0001;
}

double TimeCodeArithmetic::limitedValueOfFrame(qint64 frames, double oneFrame, double start)
{
    const double value = valueOfFrame(frames, oneFrame, start);
    return std::fabs(value) > valueLimit ? valueOfFrame(frames - 1, oneFrame, start) : value;
}

QString TimeCodeArithmetic::text4(double x)
{
    return QString::number(x, 'f', 4);
}

QString TimeCodeArithmetic::sample(bool negative, int index, double oneFrame, int scopeDisplayIndex,
    int decimalPlaceIndex, bool decimalDivide)
{
    const QString sign = negative ? QStringLiteral("-") : QStringLiteral("+");
    if (index == 0)
        return sign + realTimeSample(scopeDisplayIndex, decimalPlaceIndex, decimalDivide);
    const qint64 magnitude = value4(std::fabs(oneFrame));
    return sign
        + QStringLiteral("%1.%2")
              .arg(magnitude / 10000, 3, 10, QLatin1Char('0'))
              .arg(magnitude % 10000, 4, 10, QLatin1Char('0'));
}

QString TimeCodeArithmetic::realTimeSample(int scope, int decimalPlaceIndex, bool decimalDivide)
{
    const qint64 nanoseconds = 2000000;
    const QLatin1Char zero('0');
    qint64 divisor = 1000000000;
    QString whole;
    QString unit;
    switch (scope) {
    case 1: {
        const qint64 seconds = nanoseconds / divisor;
        whole = QStringLiteral("%1:%2")
                    .arg(seconds / 60 % 60, 2, 10, zero)
                    .arg(seconds % 60, 2, 10, zero);
        break;
    }
    case 2:
        whole = QStringLiteral("%1").arg(nanoseconds / divisor, 3, 10, zero);
        unit = QStringLiteral("sec");
        break;
    case 3:
        divisor = 1000000;
        whole = QStringLiteral("%1").arg(nanoseconds / divisor, 3, 10, zero);
        unit = QStringLiteral("msec");
        break;
    case 4:
        divisor = 1000;
        whole = QStringLiteral("%1").arg(nanoseconds / divisor, 3, 10, zero);
        unit = QStringLiteral("usec");
        break;
    case 5:
        divisor = 1;
        whole = QStringLiteral("%1").arg(nanoseconds, 3, 10, zero);
        unit = QStringLiteral("nsec");
        break;
    default: {
        // 0, and any index the page doesn't offer: hours, minutes and seconds.
        const qint64 seconds = nanoseconds / divisor;
        whole = QStringLiteral("%1:%2:%3")
                    .arg(seconds / 3600, 2, 10, zero)
                    .arg(seconds / 60 % 60, 2, 10, zero)
                    .arg(seconds % 60, 2, 10, zero);
        break;
    }
    }
    // The remainder as a fraction of the unit, nine digits.
    QString digits
        = QStringLiteral("%1").arg((nanoseconds % divisor) * (1000000000 / divisor), 9, 10, zero);
    if (decimalPlaceIndex >= 1)
        digits.truncate(decimalPlaceIndex);
    QString fraction;
    for (int i = 0; i < digits.size(); ++i) {
        if (decimalDivide && i > 0 && i % 3 == 0)
            fraction += QLatin1Char(' ');
        fraction += digits.at(i);
    }
    QString text = whole + QLatin1Char('.') + fraction;
    if (decimalPlaceIndex == 0) {
        while (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return unit.isEmpty() ? text : text + QLatin1Char(' ') + unit;
}
