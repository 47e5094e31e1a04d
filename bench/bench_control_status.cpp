// What a page waits for when it asks for the control status map and the device list at an
// update, on 2, 16 and 64 documents in camera mode with the connected-only filter on. Run by
// hand: prints the median time of one call as the page sees it, the growth from 2 to 64
// documents, and exits 1 when a call on 64 documents misses its aim of 0.5 ms.
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "plugin/SharedKeys.h"
#include "web/JS_Mediator_Page.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const double aimMs = 0.5;

struct Figures
{
    double status = 0;
    double devices = 0;
};

// Every other camera disconnected, so that the filter has work to do.
QByteArray scenario(int documents)
{
    QByteArray cameras;
    for (int i = 0; i < documents; ++i)
        cameras += QStringLiteral("%1{\"ip\": \"10.0.%2.%3\", \"connected\": %4}")
                       .arg(i ? QStringLiteral(",") : QString())
                       .arg(i / 200)
                       .arg(i % 200 + 1)
                       .arg(i % 2 ? QStringLiteral("false") : QStringLiteral("true"))
                       .toUtf8();
    return "{\"cameras\": [" + cameras + "]}";
}

// The page's own clock is too coarse for one call: 15 batches of 200 calls in the page, each
// timed here, the median batch over 200 is one call.
double perCall(QWebFrame* frame, const char* call)
{
    const QString batch
        = QStringLiteral("for (var i = 0; i < 200; ++i) %1; 0").arg(QLatin1String(call));
    std::vector<double> times;
    for (int b = 0; b < 15; ++b) {
        QElapsedTimer timer;
        timer.start();
        frame->evaluateJavaScript(batch);
        times.push_back(timer.nsecsElapsed() / 1e6 / 200);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

Figures measure(int documents)
{
    QTemporaryDir dir;
    HST_Recorder recorder;
    HST_Scenario world;
    QString error;
    if (!HST_Scenario::fromJson(scenario(documents), QStringLiteral("bench"), world, error))
        qFatal("%s", qPrintable(error));
    HST_Host host(world, &recorder, dir.filePath(QStringLiteral("prefs.ini")));
    host.setPrefBool(PREF_KEY_DEVICEMANAGER_CONNECTED_CAMERA_ONLY_SHOWING, true);
    JS_Mediator_Page mediator(&host, QStringLiteral("page"));
    QWebView view;
    host.publishMediator(&view, &mediator);
    view.setHtml(QStringLiteral("<html><body></body></html>"));
    QWebFrame* frame = view.page()->mainFrame();
    // Warm the paths up once, then measure.
    frame->evaluateJavaScript(
        QStringLiteral("page.getControlStatus(); page.getDeviceInfoList(true)"));
    return { perCall(frame, "page.getControlStatus()"),
        perCall(frame, "page.getDeviceInfoList(true)") };
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    // The host prints every log line; a quiet run measures the calls, not the console.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    Figures two;
    Figures last;
    for (int documents : { 2, 16, 64 }) {
        last = measure(documents);
        if (documents == 2)
            two = last;
        std::printf("%2d documents: getControlStatus %.3f ms, getDeviceInfoList(true) %.3f ms\n",
            documents, last.status, last.devices);
    }
    std::printf("growth 64/2 documents: status %.1fx, device list %.1fx (aim < %.1f ms a call "
                "on 64)\n",
        last.status / two.status, last.devices / two.devices, aimMs);
    return last.status < aimMs && last.devices < aimMs ? 0 : 1;
}
