#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <functional>
#include <vector>

// The middle sample, 0 for none: one slow run (a page fault, a scheduler hiccup) moves it not.
inline double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Milliseconds of body, the median over runs; before(run) prepares each run off the clock.
inline double medianMs(
    int runs, const std::function<void()>& body, const std::function<void(int)>& before = {})
{
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        if (before)
            before(run);
        QElapsedTimer timer;
        timer.start();
        body();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return median(times);
}
