// A drag of the rectangle with every constraint on (position and size grids, minimum and
// maximum size, the image's aspect, both centre locks): the cost of one mouseMoved with the
// button down, through the region of interest plug-in file in the reference host, and of the
// arithmetic alone. Prints the medians; exits 1 when mouseMoved misses 20 us, the budget of a
// 1 kHz mouse that must never fall behind.
#include "bench/BenchTiming.h"
#include "host/HST_Host.h"
#include "host/HST_PluginLoader.h"
#include "host/HST_Recorder.h"
#include "plugin/PLG_Interface.h"
#include "plugin/PLG_RectangleGeometry.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QSpinBox>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const int Moves = 20000;
const double BudgetUs = 20.0;

// The settings as a user sets them on the plug-in's page.
void setEveryConstraint(QWidget* panel)
{
    const std::pair<const char*, int> values[]
        = { { "positionStepXSpin", 4 }, { "positionStepYSpin", 4 }, { "sizeStepWidthSpin", 8 },
              { "sizeStepHeightSpin", 8 }, { "minWidthSpin", 16 }, { "minHeightSpin", 16 },
              { "maxWidthSpin", 900 }, { "maxHeightSpin", 900 } };
    for (const auto& [name, value] : values)
        panel->findChild<QSpinBox*>(QLatin1String(name))->setValue(value);
    for (const char* name :
        { "maxSizeCheck", "fixAspectCheck", "originalAspectCheck", "centerXCheck", "centerYCheck" })
        panel->findChild<QCheckBox*>(QLatin1String(name))->setChecked(true);
}

// The mouse swings between two points, so that every move changes the rectangle.
QPoint swing(int move)
{
    return move % 2 ? QPoint(900, 880) : QPoint(850, 830);
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    std::printf("build type: %s\n", SYNC_BENCH_BUILD_TYPE);

    QTemporaryDir dir;
    HST_Recorder recorder;
    HST_Scenario scenario;
    QString error;
    if (!HST_Scenario::fromJson(R"({"cameras": [{}]})", QStringLiteral("bench"), scenario, error))
        return std::printf("%s\n", qPrintable(error)), 1;
    HST_Host host(scenario, &recorder, dir.filePath(QStringLiteral("p.ini")));
    HST_PluginLoader loader(QStringLiteral(ROI_PLUGIN_FILE));
    if (!loader.load(&host, error))
        return std::printf("%s\n", qPrintable(error)), 1;
    PLG_Interface* plugin = loader.plugin();
    setEveryConstraint(plugin->pageWidget());
    const int key = host.documentKeys().first();

    // Pressed on the bottom-right corner of the middle quarter of the 1024 x 1024 image.
    plugin->mousePressed(QPoint(767, 767), key);
    std::vector<double> plugged;
    plugged.reserve(Moves);
    for (int move = 0; move < Moves; ++move) {
        QElapsedTimer clock;
        clock.start();
        plugin->mouseMoved(swing(move), key);
        plugged.push_back(clock.nsecsElapsed() / 1e3);
    }
    plugin->mouseReleased(swing(Moves), key);
    app.processEvents();
    const QRect dragged = plugin->rectangle(host.document(key));

    PLG_RectangleConstraints constraints;
    constraints.image = QSize(1024, 1024);
    constraints.positionStep = QPoint(4, 4);
    constraints.sizeStep = QSize(8, 8);
    constraints.minSize = QSize(16, 16);
    constraints.maxSize = QSize(900, 900);
    constraints.fixAspect = constraints.originalAspect = true;
    constraints.centerX = constraints.centerY = true;
    const QRect atPress(256, 256, 512, 512);
    QRect rect = atPress;
    std::vector<double> arithmetic;
    arithmetic.reserve(Moves);
    for (int move = 0; move < Moves; ++move) {
        QElapsedTimer clock;
        clock.start();
        rect = PLG_RectangleGeometry::dragged(rect, PLG_RectangleGeometry::BottomRightCorner,
            atPress, QPoint(767, 767), swing(move), 1.0, constraints);
        arithmetic.push_back(clock.nsecsElapsed() / 1e3);
    }

    const double m = median(plugged);
    std::sort(plugged.begin(), plugged.end());
    std::printf("mouseMoved, button down, every constraint on: median %.2f us, 99th percentile "
                "%.2f us over %d moves (budget %.0f us: %.1f%% of it; rectangle %d,%d %dx%d)\n",
        m, plugged[plugged.size() * 99 / 100], Moves, BudgetUs, 100.0 * m / BudgetUs, dragged.x(),
        dragged.y(), dragged.width(), dragged.height());
    std::printf("the arithmetic alone (PLG_RectangleGeometry::dragged): median %.3f us (final "
                "rectangle %d,%d %dx%d)\n",
        median(arithmetic), rect.x(), rect.y(), rect.width(), rect.height());
    return m > 0 && m < BudgetUs ? 0 : 1;
}
