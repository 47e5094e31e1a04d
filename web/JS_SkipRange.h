#pragma once

#include <QList>
#include <QMap>

class DOC_Interface;

// The arithmetic behind a save's skip setting: what the chosen partitions allow it to be.
class JS_SkipRange
{
public:
    JS_SkipRange() = delete;

    using Partitions = QMap<DOC_Interface*, QList<int>>;

    // The smallest frame count above 0 over all the partitions; 0 when every one is empty.
    static unsigned lowestFrames(const Partitions& partitions);
    // The different recording rates above 0: each partition's in memory mode, else each
    // document's.
    static QList<quint32> rates(const Partitions& partitions, bool memoryMode);
    // Their greatest common divisor; 0 for none.
    static quint32 commonBase(const QList<quint32>& rates);
    // The multiples of step up to max, then max itself when it isn't one; at most maxSteps of
    // them, so that a huge recording can't take the memory.
    static QList<double> steps(double step, double max);

    static constexpr int maxSteps = 1 << 16;
};
