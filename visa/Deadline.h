#pragma once

#include <chrono>
#include <cstdint>

// A point in time after which a call gives up; every blocking step takes one.
class Deadline
{
public:
    using Clock = std::chrono::steady_clock;

    Deadline() = default; // long past

    static Deadline in(std::chrono::milliseconds duration)
    {
        return Deadline(Clock::now() + duration);
    }
    static Deadline inMs(int64_t ms) { return in(std::chrono::milliseconds(ms)); }

    bool expired() const { return Clock::now() >= m_end; }
    int64_t remainingMs() const
    {
        const auto left
            = std::chrono::duration_cast<std::chrono::milliseconds>(m_end - Clock::now());
        return left.count() > 0 ? left.count() : 0;
    }

private:
    explicit Deadline(Clock::time_point end)
        : m_end(end)
    {
    }
    Clock::time_point m_end {};
};
