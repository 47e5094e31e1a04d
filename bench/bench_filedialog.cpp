// The file dialog's two costs a user waits for: list() building the table for 64 documents of
// 16 partitions each (aim: a median under 20 ms), and a save's path composition for 16
// documents of 8 partitions into a directory that holds 100 earlier sessions, where each step
// of the naming rule's session search lists the directory by design. Run by hand, with "list"
// or "compose" to run one part; exits 1 when list() misses its aim.
#include "bench/BenchTiming.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "save/FileDialogKind.h"
#include "save/JS_Mediator_FileDialog.h"
#include "save/SaveBatch.h"

#include <QApplication>
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

// Every directory listing opens the directory here first, Qt's included.
extern "C" DIR* opendir(const char* name)
{
    using Open = DIR* (*)(const char*);
    static const Open real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "opendir"));
    ++g_listings;
    return real(name);
}

namespace {

HST_Scenario cameras(int count, int partitions)
{
    HST_Scenario scenario;
    scenario.mode = 1;
    for (int c = 0; c < count; ++c) {
        HST_CameraSpec camera;
        camera.name = QStringLiteral("Camera %1").arg(c + 1);
        camera.ip = QStringLiteral("10.0.%1.%2").arg(c / 200).arg(c % 200 + 1);
        camera.document.partitions.clear();
        for (int p = 1; p <= partitions; ++p) {
            HST_PartitionSpec partition;
            partition.number = p;
            partition.name = QStringLiteral("P%1").arg(p);
            camera.document.partitions.append(partition);
        }
        camera.document.customData
            = { QVariantMap { { "name", "TestNo" }, { "value", "7" }, { "unit", "" },
                    { "display", "on" }, { "usefilename", "off" } },
                  QVariantMap { { "name", "Speed" }, { "value", "3" }, { "unit", "m/s" },
                      { "display", "on" }, { "usefilename", "off" } } };
        scenario.cameras.append(camera);
    }
    return scenario;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    QTemporaryDir dir;

    const QString only = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    bool met = true;
    if (only.isEmpty() || only == QLatin1String("list")) {
        HST_Recorder recorder;
        HST_Host host(cameras(64, 16), &recorder, dir.filePath(QStringLiteral("list.ini")));
        JS_Mediator_FileDialog mediator(&host, QLatin1String(FileDialogKind::save));
        std::vector<double> runs;
        int size = 0;
        for (int i = 0; i < 21; ++i) {
            QElapsedTimer timer;
            timer.start();
            size = mediator.list(false).size();
            runs.push_back(timer.nsecsElapsed() / 1e6);
        }
        const double ms = median(runs);
        met = ms < 20.0;
        std::printf("list() of 64 documents x 16 partitions (1024 rows, %d characters): median "
                    "%.2f ms of 21 runs (aim under 20 ms: %s)\n",
            size, ms, met ? "met" : "missed");
    }

    if (only.isEmpty() || only == QLatin1String("compose")) {
        const QString target = dir.filePath(QStringLiteral("out"));
        QDir().mkpath(target);
        for (int s = 1; s <= 100; ++s) {
            QFile file(
                QStringLiteral("%1/shot_S%2.png").arg(target).arg(s, 4, 10, QLatin1Char('0')));
            file.open(QIODevice::WriteOnly);
        }
        HST_Scenario scenario = cameras(16, 8);
        scenario.prefs = { { QStringLiteral("export/dir"), target },
            { QStringLiteral("export/filename"), QStringLiteral("shot") },
            { QStringLiteral("export/filenameaddnumber"), true },
            { QStringLiteral("export/filenameaddnumbersessionnodigits"), 4 } };
        HST_Recorder recorder;
        HST_Host host(scenario, &recorder, dir.filePath(QStringLiteral("save.ini")));
        const FileDialogKind kind(QLatin1String(FileDialogKind::save));
        std::vector<double> runs;
        long listings = 0;
        for (int i = 0; i < 3; ++i) {
            SaveBatch batch(&host, kind, QDateTime::currentDateTime());
            for (int key = 1; key <= 16; ++key) {
                for (int p = 1; p <= 8; ++p)
                    batch.add(key, p);
            }
            g_listings = 0;
            QElapsedTimer timer;
            timer.start();
            const SaveBatch::Paths paths = batch.compose();
            runs.push_back(timer.nsecsElapsed() / 1e6);
            listings = g_listings.load();
            host.commitPendingNames();
            if (paths.size() != 16)
                std::printf("wrong number of documents: %d\n", paths.size());
        }
        std::printf("a save's paths for 16 documents x 8 partitions over 100 earlier sessions: "
                    "median %.1f ms of 3 runs, %.1f listings per path, %.1f us per path\n",
            median(runs), double(listings) / 128, median(runs) * 1e3 / 128);
    }
    return met ? 0 : 1;
}
