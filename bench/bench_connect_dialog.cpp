// How fast the generator connect dialog comes up, and what one call from its page to the
// mediator costs. Run by hand: prints the figures beside the aims (warm open under 100 ms, a
// call under 50 us).
#include "bench/BenchTiming.h"
#include "generator/DOC_VIGen.h"
#include "generator/GUI_SyncSignalGeneratorConnect.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_Scenario.h"
#include "web/GUI_WebView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebFrame>
#include <QWebPage>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

// Milliseconds from making the dialog (its page load starts there) to the page's load-finished.
double openOnce(HST_Host* host, DOC_VIGen* driver, double* callMicros)
{
    QElapsedTimer timer;
    timer.start();
    GUI_SyncSignalGeneratorConnect dialog(host, nullptr, driver);
    double elapsed = -1;
    QObject::connect(dialog.webView(), &QWebView::loadFinished, &dialog, [&](bool) {
        elapsed = timer.nsecsElapsed() / 1e6;
        if (callMicros) {
            // The page's clock ticks in milliseconds: 10 batches of 1000 calls, a batch's time
            // over 1000 is one call.
            const QVariant result = dialog.webView()->page()->mainFrame()->evaluateJavaScript(
                "(function () { var m = sync_signalconnect, t = [];"
                " for (var b = 0; b < 10; ++b) { var s = performance.now();"
                " for (var i = 0; i < 1000; ++i) m.getHeight();"
                " t.push(performance.now() - s); }"
                " t.sort(function (x, y) { return x - y; }); return t[5]; })()");
            *callMicros = result.toDouble();
        }
        QTimer::singleShot(0, &dialog, [&dialog] { dialog.done(0); });
    });
    dialog.exec();
    return elapsed;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    QTemporaryDir dir;
    HST_Recorder recorder;
    HST_Host host(HST_Scenario(), &recorder, dir.filePath(QStringLiteral("prefs.ini")));
    DOC_VIGen driver(&host);

    const double cold = openOnce(&host, &driver, nullptr);
    std::vector<double> warm;
    for (int i = 0; i < 20; ++i)
        warm.push_back(openOnce(&host, &driver, nullptr));
    double callMicros = 0;
    openOnce(&host, &driver, &callMicros);

    std::printf("connect dialog open to load-finished: cold %.1f ms, warm median %.1f ms "
                "(aim < 100 ms)\n",
        cold, median(warm));
    std::printf("page-to-mediator call: %.2f us (median of 10 batches of 1000 calls, +-1 us; aim < "
                "50 us)\n",
        callMicros);
    return 0;
}
