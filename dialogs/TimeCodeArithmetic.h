#pragma once

#include <QString>
#include <QtGlobal>

// The time code dialog's arithmetic: values in ten-thousandths, so that steps, starts and
// reset values compare exactly, and the sample of how a time will look.
class TimeCodeArithmetic
{
public:
    TimeCodeArithmetic() = delete;

    static constexpr qint64 maximumResetFrames = 99999;
    // A value whose magnitude passes this is pulled back by one step.
    static constexpr double valueLimit = 9.999e8;

    // x times 10000 as a whole number, raised by 1 when the fraction of the product is above
    // 0.5. Values beyond any time code (and NaN) are held at the ends of the range.
    static qint64 value4(double x);
    // The frames from start to value, rounded up in magnitude; 1 when they can't be counted.
    static qint64 frameOfValue(bool resetOn, double oneFrame, double value, double start);
    static double valueOfFrame(qint64 frames, double oneFrame, double start);
    // valueOfFrame, one step back when the result passes valueLimit.
    static double limitedValueOfFrame(qint64 frames, double oneFrame, double start);
    // The form of every number text of the dialog.
    static QString text4(double x);

    // What the time looks like: the counted form shows one step, the real time form a fixed
    // two milliseconds in the scope's units.
    static QString sample(bool negative, int index, double oneFrame, int scopeDisplayIndex,
        int decimalPlaceIndex, bool decimalDivide);

private:
    static QString realTimeSample(int scope, int decimalPlaceIndex, bool decimalDivide);
};
