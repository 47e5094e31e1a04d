// The document windows of the reference host with both plug-in files loaded: drags and keys on
// a window reach the region of interest's rectangle at any zoom, turn and mirror, undo and redo
// put it back, a window draws the image pixel its viewToImage names, the sync plug-in's idle
// press still opens and closes its macro, a paged tool's page comes and goes, and a refresh
// waits for the event loop.
#include "host/HST_Application.h"
#include "host/HST_Document.h"
#include "host/HST_DocumentView.h"
#include "host/HST_Host.h"
#include "host/HST_MainWindow.h"
#include "host/HST_PageStack.h"
#include "host/HST_Recorder.h"
#include "host/HST_ToolPages.h"
#include "plugin/PLG_Interface.h"

#include <QDockWidget>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QStringList BothPlugins { QStringLiteral(SYNC_PLUGIN_FILE), QStringLiteral(ROI_PLUGIN_FILE) };

QJsonObject step(const QString& kind, const QJsonValue& value)
{
    return QJsonObject { { kind, value } };
}

QJsonArray pointJson(const QPoint& point)
{
    return QJsonArray { point.x(), point.y() };
}

QRect rectOf(const QJsonValue& value)
{
    const QJsonArray rect = value.toArray();
    return QRect(rect.at(0).toInt(), rect.at(1).toInt(), rect.at(2).toInt(), rect.at(3).toInt());
}

// Counts the paints a widget gets.
class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

// A frame whose every pixel tells where it is.
QImage codedFrame(const QSize& size)
{
    QImage frame(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            frame.setPixel(x, y, qRgb(x & 255, y & 255, ((x >> 8) << 4) | (y >> 8)));
    }
    return frame;
}

QPoint decoded(QRgb colour)
{
    return QPoint(
        qRed(colour) | ((qBlue(colour) >> 4) << 8), qGreen(colour) | ((qBlue(colour) & 15) << 8));
}

} // namespace

class tst_DocumentView : public QObject
{
    Q_OBJECT

private slots:
    void dragKeysAndUndo_data();
    void dragKeysAndUndo();
    void syncPluginAloneOpensAndClosesItsMacro();
    void windowDrawsThePixelItMaps_data();
    void windowDrawsThePixelItMaps();
    void arrowsMoveTheEdgeTheUserSees_data();
    void arrowsMoveTheEdgeTheUserSees();
    void pagedToolShowsAndLeavesItsPage();
    void refreshWaitsForTheEventLoop();

private:
    HST_Options options(const QByteArray& scenario, const QStringList& plugins = BothPlugins) const;
    // An application started and shown, its first document's window ready.
    std::unique_ptr<HST_Application> shown(
        const QByteArray& scenario, const QStringList& plugins = BothPlugins);
    static HST_DocumentView* firstView(HST_Application& application);

    QTemporaryDir m_dir;
};

HST_Options tst_DocumentView::options(const QByteArray& scenario, const QStringList& plugins) const
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFiles = plugins;
    options.prefsFile = m_dir.filePath(QStringLiteral("prefs.ini"));
    options.quit = true;
    return options;
}

std::unique_ptr<HST_Application> tst_DocumentView::shown(
    const QByteArray& scenario, const QStringList& plugins)
{
    auto application = std::make_unique<HST_Application>(options(scenario, plugins));
    if (application->start() != HST_Application::Success)
        return nullptr;
    application->mainWindow()->show();
    if (!QTest::qWaitForWindowExposed(application->mainWindow()))
        return nullptr;
    return application;
}

HST_DocumentView* tst_DocumentView::firstView(HST_Application& application)
{
    HST_Host* host = application.host();
    return qobject_cast<HST_DocumentView*>(
        host->openDocument(host->documentKeys().first())->viewWidget());
}

void tst_DocumentView::dragKeysAndUndo_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QJsonArray>("before");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("initial");
    QTest::addColumn<QRect>("dragged");
    QTest::addColumn<QRect>("keyed");
    const QRect quarter(80, 60, 160, 120);

    // A 320 x 240 image whose rectangle starts as its middle quarter, (80, 60) to (239, 179).
    const QByteArray zoom1 = R"({"cameras": [{"view": {"imageSize": [320, 240], "zoom": 1}}]})";
    QTest::newRow("zoom 1: the corner follows, Shift+Left widens leftwards")
        << zoom1 << QJsonArray() << QPoint(239, 179) << QPoint(259, 199) << quarter
        << QRect(80, 60, 180, 140) << QRect(79, 60, 181, 140);
    // Steps count binned pixels where binning applies: to a camera's image, not a file's.
    QTest::newRow("a camera binned 2 x 2: Shift+Left widens by two")
        << QByteArray(R"({"cameras": [{"view": {"imageSize": [320, 240], "zoom": 1,
                          "binning": 1}}]})")
        << QJsonArray() << QPoint(239, 179) << QPoint(259, 199) << quarter
        << QRect(80, 60, 180, 140) << QRect(78, 60, 182, 140);
    QTest::newRow("a file's binning: Shift+Left widens by one")
        << QByteArray(R"({"files": [{"view": {"imageSize": [320, 240], "zoom": 1,
                          "binning": 1}}]})")
        << QJsonArray() << QPoint(239, 179) << QPoint(259, 199) << quarter
        << QRect(80, 60, 180, 140) << QRect(79, 60, 181, 140);
    // Turned clockwise, the image's bottom edge is on the window's left.
    QTest::newRow("zoom 0.5 turned 90: Shift+Left widens downwards")
        << QByteArray(R"({"view": {"imageSize": [320, 240], "zoom": 0.5, "rotation": 90},
                          "cameras": [{}]})")
        << QJsonArray() << QPoint(30, 119) << QPoint(20, 129) << quarter << QRect(80, 60, 180, 140)
        << QRect(80, 60, 180, 141);
    QTest::newRow("zoom 2 turned 270 and mirrored")
        << QByteArray(R"({"cameras": [{"view": {"imageSize": [160, 120], "zoom": 2,
                          "rotation": 270, "mirrorHorizontally": true}}]})")
        << QJsonArray() << QPoint(61, 81) << QPoint(51, 71) << QRect(40, 30, 80, 60)
        << QRect(40, 30, 85, 65) << QRect(40, 30, 85, 66);
    QTest::newRow("the cross cursor from the View menu takes mouse and keys")
        << zoom1 << QJsonArray { step(QStringLiteral("menu"), QStringLiteral("View/Cross cursor")) }
        << QPoint(239, 179) << QPoint(259, 199) << quarter << quarter << quarter;
    // The right edge dragged: the left one mirrors about the whole image's middle, not the
    // document image's.
    QJsonObject centreLock = step(QStringLiteral("set"), QJsonArray { "centerXCheck", true });
    centreLock.insert(QStringLiteral("window"), QStringLiteral("roi"));
    QTest::newRow("a centre lock on the camera's whole image")
        << QByteArray(R"({"cameras": [{"view": {"imageSize": [320, 240],
                          "fullImageSize": [400, 240], "zoom": 1}}]})")
        << QJsonArray { step(QStringLiteral("press"), QStringLiteral("roi")), centreLock }
        << QPoint(239, 120) << QPoint(249, 120) << quarter << QRect(150, 60, 100, 120)
        << QRect(149, 60, 102, 120);
}

void tst_DocumentView::dragKeysAndUndo()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QJsonArray, before);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, initial);
    QFETCH(QRect, dragged);
    QFETCH(QRect, keyed);

    HST_Options options = this->options(scenario);
    options.steps = before;
    options.steps.append(step(QStringLiteral("drag"),
        QJsonObject { { QStringLiteral("from"), pointJson(from) },
            { QStringLiteral("to"), pointJson(to) }, { QStringLiteral("steps"), 4 } }));
    options.steps.append(step(QStringLiteral("key"), QStringLiteral("Shift+Left")));
    options.steps.append(step(QStringLiteral("menu"), QStringLiteral("Edit/Undo")));
    options.steps.append(step(QStringLiteral("menu"), QStringLiteral("Edit/Redo")));
    HST_Application application(options);
    QCOMPARE(application.run(), 0);
    HST_Recorder* recorder = application.recorder();

    const QList<QJsonObject> inputs = recorder->events(QStringLiteral("input"));
    QCOMPARE(inputs.size(), 2);
    for (const QJsonObject& input : inputs)
        QCOMPARE(input.value(QStringLiteral("rectangle")).toObject().value(QStringLiteral("name")),
            QJsonValue(QStringLiteral("roi")));
    const auto rectangleAfter = [&](int index) {
        return rectOf(inputs.at(index)
                          .value(QStringLiteral("rectangle"))
                          .toObject()
                          .value(QStringLiteral("rect")));
    };
    QCOMPARE(rectangleAfter(0), dragged);
    QCOMPARE(rectangleAfter(1), keyed);

    // The drag is one step, the key move none: undo goes back to before the drag, redo to its
    // end, the key move lost.
    QList<QPair<QString, QRect>> restored;
    for (const QJsonObject& event : recorder->events(QStringLiteral("setRectangle")))
        restored.append({ event.value(QStringLiteral("op")).toString(),
            rectOf(event.value(QStringLiteral("rect"))) });
    const QList<QPair<QString, QRect>> expected = dragged == initial
        ? QList<QPair<QString, QRect>>()
        : QList<QPair<QString, QRect>> { { "undo", initial }, { "redo", dragged } };
    QCOMPARE(restored, expected);
    // Each plug-in's press opens a macro and its release closes it; they nest into one step.
    int begun = 0, ended = 0;
    for (const QJsonObject& event : recorder->events(QStringLiteral("undoStack"))) {
        begun += event.value(QStringLiteral("op")) == QLatin1String("beginMacro");
        ended += event.value(QStringLiteral("op")) == QLatin1String("endMacro");
    }
    QCOMPARE(begun, 2);
    QCOMPARE(ended, 2);
}

void tst_DocumentView::syncPluginAloneOpensAndClosesItsMacro()
{
    HST_Options options
        = this->options(R"({"cameras": [{}, {}]})", { QStringLiteral(SYNC_PLUGIN_FILE) });
    options.steps = QJsonArray {
        step(QStringLiteral("mouse"),
            QJsonObject { { QStringLiteral("press"), pointJson({ 10, 10 }) } }),
        step(QStringLiteral("mouse"),
            QJsonObject { { QStringLiteral("release"), pointJson({ 10, 10 }) } }),
    };
    HST_Application application(options);
    QCOMPARE(application.run(), 0);
    QStringList ops;
    for (const QJsonObject& event : application.recorder()->events(QStringLiteral("undoStack")))
        ops << event.value(QStringLiteral("op")).toString();
    QCOMPARE(ops, QStringList({ "beginMacro", "endMacro" }));
    QVERIFY(application.host()->undoStack()->canUndo());
    // No rectangle anywhere, so nothing to read back or put back.
    for (const QJsonObject& input : application.recorder()->events(QStringLiteral("input")))
        QVERIFY(input.value(QStringLiteral("rectangle")).isNull());
    QVERIFY(application.recorder()->events(QStringLiteral("setRectangle")).isEmpty());
}

void tst_DocumentView::windowDrawsThePixelItMaps_data()
{
    QTest::addColumn<QByteArray>("view");
    // Zooms at which no window pixel's middle falls on an image pixel's border.
    QTest::newRow("zoom 1") << QByteArray(R"({"zoom": 1})");
    QTest::newRow("zoom 2 turned 90") << QByteArray(R"({"zoom": 2, "rotation": 90})");
    QTest::newRow("zoom 3 turned 180, mirrored vertically")
        << QByteArray(R"({"zoom": 3, "rotation": 180, "mirrorVertically": true})");
    QTest::newRow("zoom 2 turned 270, mirrored both ways, binned 2 x 2")
        << QByteArray(R"({"zoom": 2, "rotation": 270, "mirrorHorizontally": true,
                          "mirrorVertically": true, "binning": 1})");
    QTest::newRow("zoom 1, binned 4 x 4, scale factor 2")
        << QByteArray(R"({"zoom": 1, "binning": 2, "scaleFactor": 2})");
}

void tst_DocumentView::windowDrawsThePixelItMaps()
{
    QFETCH(QByteArray, view);
    QJsonObject viewJson = QJsonDocument::fromJson(view).object();
    viewJson.insert(QStringLiteral("imageSize"), QJsonArray { 96, 64 });
    const QJsonObject scenario { { QStringLiteral("cameras"),
        QJsonArray { QJsonObject { { QStringLiteral("view"), viewJson } } } } };
    // The sync plug-in alone: no rectangle over the pixels.
    const auto application
        = shown(QJsonDocument(scenario).toJson(), { QStringLiteral(SYNC_PLUGIN_FILE) });
    QVERIFY(application);
    HST_DocumentView* window = firstView(*application);
    HST_Document* document = application->host()->openDocument(window->key());
    const HST_ViewState& state = document->view();
    window->setFrame(codedFrame(state.shownFrameSize()));
    // Only the frame's own pixels: the information block would cover some.
    application->host()->setDisplayInfoShowing(false);
    const QImage drawn = window->grab().toImage();
    const QSize extent = state.extent(window->size());
    QVERIFY(extent.width() <= drawn.width() && extent.height() <= drawn.height());
    const int pixel = state.pixelSize();
    int checked = 0;
    for (int y = 0; y < extent.height(); y += 5) {
        for (int x = 0; x < extent.width(); x += 7) {
            QPoint image;
            document->viewToImage(image, QPoint(x, y), false);
            // The frame pixel that covers the image pixel.
            QCOMPARE(decoded(drawn.pixel(x, y)), QPoint(image.x() / pixel, image.y() / pixel));
            ++checked;
        }
    }
    QVERIFY(checked > 50);
    // The frame's zoom factor is the one the window draws at.
    QCOMPARE(document->zoomFactor(true), float(viewJson.value(QStringLiteral("zoom")).toDouble()));
}

void tst_DocumentView::arrowsMoveTheEdgeTheUserSees_data()
{
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("mirrorH");
    QTest::addColumn<bool>("mirrorV");
    for (int rotation : { 0, 90, 180, 270 }) {
        QTest::addRow("%d degrees", rotation) << rotation << false << false;
        QTest::addRow("%d degrees, mirrored horizontally", rotation) << rotation << true << false;
    }
    QTest::newRow("90 degrees, mirrored vertically") << 90 << false << true;
    QTest::newRow("0 degrees, mirrored both ways") << 0 << true << true;
}

// Shift with an arrow moves, by one pixel, the rectangle's edge that the user sees on that
// side, outward; the other three stay where they show.
void tst_DocumentView::arrowsMoveTheEdgeTheUserSees()
{
    QFETCH(int, rotation);
    QFETCH(bool, mirrorH);
    QFETCH(bool, mirrorV);
    const QJsonObject view { { QStringLiteral("imageSize"), QJsonArray { 320, 240 } },
        { QStringLiteral("zoom"), 1 }, { QStringLiteral("rotation"), rotation },
        { QStringLiteral("mirrorHorizontally"), mirrorH },
        { QStringLiteral("mirrorVertically"), mirrorV } };
    const auto application = shown(QJsonDocument(
        QJsonObject { { QStringLiteral("cameras"),
            QJsonArray { QJsonObject { { QStringLiteral("view"),
                view } } } } }).toJson());
    QVERIFY(application);
    HST_DocumentView* window = firstView(*application);
    HST_Host* host = application->host();
    const QTransform toView = host->openDocument(window->key())->view().imageToView(window->size());
    const auto shownRect
        = [&] { return toView.mapRect(QRectF(*host->rectangleFor(window->key()))); };

    const struct
    {
        Qt::Key key;
        QMarginsF grown;
    } arrows[] = { { Qt::Key_Left, { 1, 0, 0, 0 } }, { Qt::Key_Up, { 0, 1, 0, 0 } },
        { Qt::Key_Right, { 0, 0, 1, 0 } }, { Qt::Key_Down, { 0, 0, 0, 1 } } };
    for (const auto& arrow : arrows) {
        const QRectF before = shownRect();
        QTest::keyClick(window, arrow.key, Qt::ShiftModifier);
        QCOMPARE(shownRect(), before.marginsAdded(arrow.grown));
    }
}

void tst_DocumentView::pagedToolShowsAndLeavesItsPage()
{
    const auto application = shown(R"({"cameras": [{}]})");
    QVERIFY(application);
    HST_Host* host = application->host();
    PLG_Interface* roi = host->plugins().byName(QStringLiteral("roi"));
    QVERIFY(roi);
    QVERIFY(application->mainWindow()->press(QStringLiteral("roi")));
    QDockWidget* dock = application->mainWindow()->toolPages()->dock(QStringLiteral("roi"));
    QVERIFY(dock && dock->isVisible());
    QCOMPARE(dock->widget(), roi->pageWidget());
    QCOMPARE(host->currentPage(), roi);
    QVERIFY(roi->isActive());

    // Closing the page leaves the tool, which takes the panel back to the default page.
    dock->close();
    QVERIFY(!roi->isActive());
    QCOMPARE(host->currentPage(), nullptr);
    QStringList ops;
    for (const QJsonObject& event : application->recorder()->events(QStringLiteral("page")))
        ops << event.value(QStringLiteral("op")).toString();
    QCOMPARE(ops, QStringList({ "show", "default" }));
}

void tst_DocumentView::refreshWaitsForTheEventLoop()
{
    const auto application = shown(R"({"cameras": [{}]})");
    QVERIFY(application);
    HST_DocumentView* window = firstView(*application);
    PaintCounter counter;
    window->installEventFilter(&counter);
    // Settle whatever showing the window asked for.
    QCoreApplication::processEvents();
    const int before = counter.paints;
    application->host()->openDocument(window->key())->refresh(true);
    application->host()->updateUI(4, false);
    QCOMPARE(counter.paints, before);
    QTRY_VERIFY(counter.paints > before);
}

QTEST_MAIN(tst_DocumentView)
#include "tst_documentView.moc"
