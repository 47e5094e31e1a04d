// The naming rule's session search: composeSavePaths for a document of 10 and of 100
// partitions whose file names carry a session number, in a directory that holds 0, 100 and
// 1,000 earlier sessions (one file each, "shot_S0001.dat" ...). Each step of the search lists
// the directory, by design; the figures show that the listings are the cost. Run by hand;
// exits 1 when 100 partitions over 100 sessions take 1 s or more.
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "save/OutputNaming.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <dirent.h>
#include <dlfcn.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <vector>

namespace {

std::atomic<long> g_listings { 0 };

} // namespace

// Every directory listing, Qt's included, opens the directory here first: the count is of
// real listings, not of the search's steps as the code under test sees them.
extern "C" DIR* opendir(const char* name)
{
    using Open = DIR* (*)(const char*);
    static const Open real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "opendir"));
    ++g_listings;
    return real(name);
}

namespace {

struct Run
{
    double ms;
    long listings;
};

Run composeOnce(HST_Host& host, int partitions)
{
    host.commitPendingNames();
    QMap<int, QString> groups;
    QMap<int, QString> dirs;
    QMap<int, QString> paths;
    g_listings = 0;
    QElapsedTimer timer;
    timer.start();
    composeSavePaths(
        &host, 1, host.document(1), false, groups, dirs, paths, QDateTime::currentDateTime(), 0);
    const Run run { timer.nsecsElapsed() / 1e6, g_listings.load() };
    if (paths.size() != partitions)
        std::printf("wrong number of paths: %d\n", paths.size());
    return run;
}

double listingMicros(const QString& path)
{
    const int times = 200;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < times; ++i) {
        QDirIterator files(path, QDir::Files);
        while (files.hasNext())
            files.next();
    }
    return timer.nsecsElapsed() / 1e3 / times;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    bool met = true;
    for (int sessions : { 0, 100, 1000 }) {
        QTemporaryDir dir;
        const QString target = dir.filePath(QStringLiteral("out"));
        QDir().mkpath(target);
        for (int s = 1; s <= sessions; ++s)
            QFile(QStringLiteral("%1/shot_S%2.dat").arg(target).arg(s, 4, 10, QLatin1Char('0')))
                .open(QIODevice::WriteOnly);
        const double perFullListing = listingMicros(target);
        for (int partitions : { 10, 100 }) {
            HST_Scenario scenario;
            HST_CameraSpec camera;
            camera.document.partitions.clear();
            for (int p = 1; p <= partitions; ++p) {
                HST_PartitionSpec partition;
                partition.number = p;
                partition.name = QStringLiteral("P%1").arg(p);
                camera.document.partitions.append(partition);
            }
            scenario.cameras.append(camera);
            scenario.prefs = { { QStringLiteral("export/dir"), target },
                { QStringLiteral("export/filename"), QStringLiteral("shot") },
                { QStringLiteral("export/filenameaddnumber"), true },
                { QStringLiteral("export/filenameaddnumbersessionnodigits"), 4 } };
            HST_Recorder recorder;
            HST_Host host(scenario, &recorder, dir.filePath(QStringLiteral("prefs.ini")));
            // A thousand sessions take seconds a run; one run tells enough there.
            std::vector<Run> runs;
            for (int i = 0; i < (sessions < 1000 ? 3 : 1); ++i)
                runs.push_back(composeOnce(host, partitions));
            std::sort(
                runs.begin(), runs.end(), [](const Run& a, const Run& b) { return a.ms < b.ms; });
            const Run median = runs[runs.size() / 2];
            std::printf("%3d partitions, %4d sessions: %9.1f ms, %6.1f listings per path, "
                        "%6.1f us per step; a full listing %6.1f us\n",
                partitions, sessions, median.ms, double(median.listings) / partitions,
                median.listings ? median.ms * 1e3 / median.listings : 0.0, perFullListing);
            if (partitions == 100 && sessions == 100 && median.ms >= 1000.0)
                met = false;
        }
    }
    std::printf(
        "aim: 100 partitions over 100 sessions under 1000 ms: %s\n", met ? "met" : "missed");
    return met ? 0 : 1;
}
