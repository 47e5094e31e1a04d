// One choice in the sync dialog as the user makes it: the click that ends in guiUpdate (form
// states and a rebuilt wiring diagram) plus one paint of the diagram, for 2, 8, 16 and 64
// cameras, through the real plug-in file in the reference host. Prints the medians and how
// the cost grows; exits 1 when 16 cameras miss one 60 Hz frame.
#include "bench/BenchTiming.h"
#include "host/HST_Application.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <vector>

namespace {

const int Runs = 40;
const double FrameMs = 1000.0 / 60.0;

QByteArray scenario(int cameras)
{
    QStringList entries;
    for (int i = 1; i <= cameras; ++i)
        entries.append(QStringLiteral("{\"ip\": \"10.0.0.%1\", \"type\": 1}").arg(i));
    return QStringLiteral("{\"syncCapableTypes\": [1], \"cameras\": [%1]}")
        .arg(entries.join(QLatin1Char(',')))
        .toUtf8();
}

// Times the runs on the open dialog, then leaves it.
std::vector<double> measure()
{
    std::vector<double> samples;
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog->objectName() != QLatin1String("GUI_SyncControl"))
        return samples;
    auto* external = dialog->findChild<QAbstractButton*>(QStringLiteral("sync_external_radio"));
    auto* chain = dialog->findChild<QAbstractButton*>(QStringLiteral("sync_chain_radio"));
    for (int run = 0; run < Runs + 1; ++run) {
        QElapsedTimer clock;
        clock.start();
        QAbstractButton* choice = run % 2 ? external : chain;
        choice->click();
        if (!choice->isChecked()) {
            std::printf("the dialog refused the choice %s\n", qPrintable(choice->objectName()));
            return {};
        }
        // guiUpdate made a new diagram widget; paint it as the screen would.
        if (auto* diagram = dialog->findChild<QWidget*>(QStringLiteral("diagram")))
            diagram->repaint();
        // The first run pays for loading the pictures once.
        if (run > 0)
            samples.push_back(clock.nsecsElapsed() / 1e6);
    }
    return samples;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    // The trace lines of every run would drown the figures.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    std::map<int, double> medians;
    for (const int cameras : { 2, 8, 16, 64 }) {
        QTemporaryDir dir;
        HST_Options options;
        options.scenarioJson = scenario(cameras);
        options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
        options.prefsFile = dir.filePath(QStringLiteral("prefs.ini"));
        options.press = QStringLiteral("synccontrol");
        options.quit = true;
        std::vector<double> samples;
        std::function<void()> poll = [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || dialog->objectName() != QLatin1String("GUI_SyncControl")) {
                QTimer::singleShot(1, poll);
                return;
            }
            samples = measure();
            // Leaving with a change pending asks first; that question is not measured.
            QTimer::singleShot(0, [] {
                if (auto* box = QApplication::activeModalWidget())
                    if (box->objectName() != QLatin1String("GUI_SyncControl"))
                        qobject_cast<QDialog*>(box)->reject();
            });
            dialog->reject();
        };
        QTimer::singleShot(0, poll);
        HST_Application application(options);
        application.run();
        const double m = median(samples);
        medians[cameras] = m;
        std::sort(samples.begin(), samples.end());
        std::printf("guiUpdate + diagram paint, %2d cameras: median %6.2f ms, max %6.2f ms over "
                    "%zu runs\n",
            cameras, m, samples.empty() ? 0.0 : samples.back(), samples.size());
    }
    const double ratio = medians[2] > 0 ? medians[64] / medians[2] : 0.0;
    std::printf("growth 64/2 cameras: %.1fx; 16 cameras: %.2f ms of a %.2f ms frame (ratio %.2f)\n",
        ratio, medians[16], FrameMs, medians[16] / FrameMs);
    return medians[16] > 0 && medians[16] < FrameMs ? 0 : 1;
}
