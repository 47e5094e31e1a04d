// The two readers of outside data behind the common dialogs: loading a custom info file of
// 10,000 items into a document, and the camera name completion over 100,000 names (1,000 lines
// of 100 names in 10 categories) in UTF-8 and in Shift-JIS. Run by hand; prints medians beside
// the aim (under 100 ms each) and exits 1 when one misses it.
#include "bench/BenchTiming.h"
#include "dialogs/CustomInfoFile.h"
#include "dialogs/JS_Mediator_AutoCameraName.h"
#include "dialogs/JS_Mediator_CustomInfoDialog.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "plugin/SharedKeys.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QVariantMap>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

const double aimMs = 100.0;

// prepare runs before each timed run, untimed.
bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QString nameList()
{
    QString text;
    for (int line = 0; line < 1000; ++line) {
        text += QString::fromUtf8("\u5206\u985e%1").arg(line % 10);
        for (int name = 0; name < 100; ++name)
            text += QString::fromUtf8(",\u30ab\u30e1\u30e9-%1-%2").arg(line).arg(name);
        text += QLatin1Char('\n');
    }
    return text;
}

bool report(const char* what, double ms)
{
    std::printf("%-62s median %7.1f ms (aim < %.0f ms)\n", what, ms, aimMs);
    return ms < aimMs;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    QTemporaryDir dir;
    HST_Recorder recorder;
    HST_Scenario scenario;
    scenario.cameras.append(HST_CameraSpec());
    HST_Host host(scenario, &recorder, dir.filePath(QStringLiteral("prefs.ini")));
    bool met = true;

    QVariantList items;
    for (int i = 0; i < 10000; ++i)
        items.append(QVariantMap { { QStringLiteral("name"), QStringLiteral("item %1").arg(i) },
            { QStringLiteral("value"), QStringLiteral("value %1").arg(i * 7) },
            { QStringLiteral("unit"), QStringLiteral("mm") },
            { QStringLiteral("selected"), i % 2 == 0 } });
    const QString customPath = dir.filePath(QStringLiteral("custom.xml"));
    const QByteArray custom = CustomInfoFile::toXml(QStringLiteral("bench"), items);
    if (!writeFile(customPath, custom))
        return 2;
    JS_Mediator_CustomInfoDialog mediator(&host, nullptr, false);
    const double readOnly
        = medianMs(9, [&] { CustomInfoFile::read(custom, CustomInfoFile::jobTagTable()); });
    // Into a document without items, as a first load finds it.
    const double load = medianMs(
        9, [&] { mediator.loadFromFile({ 1 }, customPath); },
        [&](int) {
            recorder.clear();
            host.document(1)->clearCustomData();
        });
    std::printf("custom info file: %d items, %d bytes; parsing alone %.1f ms\n", items.size(),
        custom.size(), readOnly);
    met = report("loaded into a document: file, parse, the host's 10,000 adds", load) && met;

    const QString names = nameList();
    JS_Mediator_AutoCameraName completion(&host, QStringLiteral("adddeviceAutoCameraName"));
    for (const char* encoding : { "UTF-8", "Shift-JIS" }) {
        const QString path = dir.filePath(QStringLiteral("names-%1.csv").arg(encoding));
        if (!writeFile(path, QTextCodec::codecForName(encoding)->fromUnicode(names)))
            return 2;
        host.setPrefString(PREF_KEY_USERCUSTOM_CAMERA_NAME_FILE_PATH, path);
        int entries = 0;
        const double ms = medianMs(9,
            [&] { entries = completion.autoCompleteCameraList().count(QLatin1String("label")); });
        char what[80];
        std::snprintf(what, sizeof what, "name completion, %d names in %s", entries, encoding);
        met = report(what, ms) && met;
    }
    return met ? 0 : 1;
}
