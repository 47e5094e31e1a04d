// From the click on "Sync execute" to the success message, with the host's applySync taking
// no time, through the real plug-in file in the reference host. Prints the figures; exits 1
// when the median misses its budget.
#include "bench/BenchTiming.h"
#include "host/HST_Application.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const int Runs = 30;
const double BudgetMs = 50.0;

QByteArray scenario(int cameras)
{
    QStringList entries;
    for (int i = 1; i <= cameras; ++i)
        entries.append(
            QStringLiteral("{\"ip\": \"10.0.%1.%2\", \"type\": 1}").arg(i / 200).arg(i % 200 + 1));
    return QStringLiteral("{\"syncCapableTypes\": [1], \"cameras\": [%1], "
                          "\"applySync\": {\"result\": \"ok\", \"delayMs\": 0}}")
        .arg(entries.join(','))
        .toUtf8();
}

// Answers every message box the moment it shows and times the runs; the boxes' own time on
// screen is therefore near zero and the figure is the code's, the host's boxes included.
class Driver : public QObject
{
public:
    std::vector<double> samples;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (!box || event->type() != QEvent::Show)
            return false;
        const bool done = box->text() == QLatin1String("Synchronization is complete.");
        if (done && m_clock.isValid()) {
            samples.push_back(m_clock.nsecsElapsed() / 1e6);
            m_clock.invalidate();
        }
        QTimer::singleShot(0, box, [box] {
            QAbstractButton* b = box->defaultButton();
            if (!b)
                b = box->buttons().value(0);
            if (b)
                b->click();
        });
        if (done)
            QTimer::singleShot(0, this, [this] { next(); });
        return false;
    }

    void next()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog->objectName() != QLatin1String("GUI_SyncControl")) {
            QTimer::singleShot(1, this, [this] { next(); });
            return;
        }
        auto* ok = dialog->findChild<QAbstractButton*>(QStringLiteral("ok_button"));
        if (int(samples.size()) >= Runs) {
            dialog->reject();
            return;
        }
        m_clock.start();
        ok->click();
    }

private:
    QElapsedTimer m_clock;
};

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM",
        qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);
    // The lines of every run would drown the figures.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    bool ok = true;
    for (const int cameras : { 2, 16 }) {
        QTemporaryDir dir;
        HST_Options options;
        options.scenarioJson = scenario(cameras);
        options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
        options.prefsFile = dir.filePath(QStringLiteral("prefs.ini"));
        options.press = QStringLiteral("synccontrol");
        options.quit = true;
        Driver driver;
        app.installEventFilter(&driver);
        QTimer::singleShot(0, &driver, [&driver] { driver.next(); });
        HST_Application application(options);
        application.run();
        app.removeEventFilter(&driver);
        const double m = median(driver.samples);
        std::sort(driver.samples.begin(), driver.samples.end());
        const double worst = driver.samples.empty() ? 0.0 : driver.samples.back();
        std::printf("sync click to success, %2d cameras: median %.2f ms, max %.2f ms over %zu runs "
                    "(budget %.0f ms, ratio %.2f)\n",
            cameras, m, worst, driver.samples.size(), BudgetMs, m / BudgetMs);
        ok = ok && int(driver.samples.size()) == Runs && m < BudgetMs;
    }
    return ok ? 0 : 1;
}
