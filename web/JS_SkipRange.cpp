#include "web/JS_SkipRange.h"

#include "plugin/DOC_Interface.h"
#include "util/UTL_TextHelpers.h"

unsigned JS_SkipRange::lowestFrames(const Partitions& partitions)
{
    unsigned lowest = 0;
    for (auto it = partitions.begin(); it != partitions.end(); ++it) {
        for (int partition : it.value()) {
            const unsigned frames = it.key()->partitionFrames(partition);
            if (frames != 0 && (lowest == 0 || frames < lowest))
                lowest = frames;
        }
    }
    return lowest;
}

QList<quint32> JS_SkipRange::rates(const Partitions& partitions, bool memoryMode)
{
    QList<quint32> found;
    const auto add = [&found](int rate) {
        if (rate > 0 && !found.contains(quint32(rate)))
            found.append(quint32(rate));
    };
    for (auto it = partitions.begin(); it != partitions.end(); ++it) {
        if (!memoryMode) {
            add(it.key()->recordingRate());
            continue;
        }
        for (int partition : it.value())
            add(it.key()->partitionRate(partition));
    }
    return found;
}

quint32 JS_SkipRange::commonBase(const QList<quint32>& rates)
{
    if (rates.isEmpty())
        return 0;
    quint32 base = rates.first();
    for (int i = 1; i < rates.size(); ++i)
        base = quint32(greatestCommonDivisor(rates.at(i), base));
    return base;
}

QList<double> JS_SkipRange::steps(double step, double max)
{
    QList<double> list;
    if (step <= 0.0)
        return list;
    for (int n = 1; n <= maxSteps; ++n) {
        const double value = roundFraction(n * step, 5);
        if (value > max)
            break;
        list.append(value);
    }
    if (!list.contains(max))
        list.append(max);
    return list;
}
