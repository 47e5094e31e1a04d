#pragma once

// What a long-running test watches of its own process: resident memory, threads and open files,
// read from /proc. Soak tests compare a late reading with an early one.
#include <QDir>
#include <QFile>

#include <malloc.h>

namespace ProcessUsage {

// AddressSanitizer keeps freed memory in quarantine, so resident memory grows by design under
// it; there its leak check at exit stands in for the growth check.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryGrowthMeaningful = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool memoryGrowthMeaningful = false;
#else
constexpr bool memoryGrowthMeaningful = true;
#endif
#else
constexpr bool memoryGrowthMeaningful = true;
#endif

struct Usage
{
    qint64 rssKb = 0;
    int threads = 0;
    int files = 0;
};

inline Usage current()
{
    // The allocator keeps freed pages for reuse; nothing of ours holds them.
    malloc_trim(0);
    Usage u;
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (statm.open(QIODevice::ReadOnly))
        u.rssKb = statm.readAll().split(' ').value(1).toLongLong() * 4;
    u.threads = QDir(QStringLiteral("/proc/self/task"))
                    .entryList(QDir::Dirs | QDir::NoDotAndDotDot)
                    .size();
    u.files = QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size();
    return u;
}

inline double growth(const Usage &early, const Usage &late)
{
    return early.rssKb ? double(late.rssKb - early.rssKb) / double(early.rssKb) : 0.0;
}

} // namespace ProcessUsage
