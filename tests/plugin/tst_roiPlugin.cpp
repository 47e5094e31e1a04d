// The region of interest plug-in file, loaded as the host loads it, driven by mouse and keys
// through the frame against the reference host: the rectangle per document, the undo macro,
// the change notice, the cross cursor, its panel; and the sync plug-in's frame left idle.
#include "host/HST_Faults.h"
#include "host/HST_Host.h"
#include "host/HST_PluginLoader.h"
#include "host/HST_Recorder.h"
#include "plugin/PLG_Interface.h"

#include <QCheckBox>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

// The reference host with the undo macro counted, and the multi-lock and the cross cursor as a
// test sets them; a key event no window passed on belongs to the current document.
class RectangleHost : public HST_Host
{
public:
    using HST_Host::HST_Host;

    void beginMacro(const QString&) override { ++macrosBegun; }
    void endMacro() override { ++macrosEnded; }
    bool isMultiLock() override { return multiLock; }
    bool isToolActive(const QString& name) override
    {
        return crossCursor && name == QLatin1String("t_crosscursor");
    }

    int macrosBegun = 0;
    int macrosEnded = 0;
    bool multiLock = false;
    bool crossCursor = false;
};

// Documents are 1024 x 1024; a new one's rectangle is the middle quarter.
const QRect DefaultRect(256, 256, 512, 512);

struct Run
{
    explicit Run(const QString& pluginFile = QStringLiteral(ROI_PLUGIN_FILE))
        : loader(pluginFile)
    {
        HST_Scenario scenario;
        QString error;
        if (!HST_Scenario::fromJson(
                R"({"cameras": [{}, {}]})", QStringLiteral("test"), scenario, error)
            || !(host = std::make_unique<RectangleHost>(
                     scenario, &recorder, dir.filePath(QStringLiteral("p.ini"))))
            || !loader.load(host.get(), error))
            qFatal("%s", qPrintable(error));
        plugin = loader.plugin();
        keys = host->documentKeys();
    }
    DOC_Interface* doc(int index) const { return host->document(keys.at(index)); }
    void drag(const QPoint& from, const QPoint& to)
    {
        plugin->mousePressed(from, keys.first());
        plugin->mouseMoved(to, keys.first());
        plugin->mouseReleased(to, keys.first());
    }
    // What the host was told since the record was last cleared.
    QList<int> masks() const
    {
        QList<int> masks;
        for (const QJsonObject& event : recorder.events(QStringLiteral("updateUI")))
            masks << event.value(QStringLiteral("mask")).toInt();
        return masks;
    }
    bool refreshedIn(int step) const
    {
        for (const QJsonObject& event : recorder.events(QStringLiteral("hostCall")))
            if (event.value(QStringLiteral("operation")) == QLatin1String("document.refresh")
                && event.value(QStringLiteral("step")).toInt() == step)
                return true;
        return false;
    }

    QTemporaryDir dir;
    HST_Recorder recorder;
    std::unique_ptr<RectangleHost> host;
    HST_PluginLoader loader;
    PLG_Interface* plugin = nullptr;
    QList<int> keys;
};

} // namespace

class tst_RoiPlugin : public QObject
{
    Q_OBJECT

private slots:
    void drag_data();
    void drag();
    void changeNotice_data();
    void changeNotice();
    void keys_data();
    void keys();
    void panelSettingsAndFigures();
    void syncPluginStaysIdle();
};

void tst_RoiPlugin::drag_data()
{
    QTest::addColumn<bool>("crossCursor");
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("the right edge resizes")
        << false << QPoint(767, 500) << QPoint(900, 500) << QRect(256, 256, 645, 512);
    QTest::newRow("the inside moves")
        << false << QPoint(500, 500) << QPoint(600, 450) << QRect(356, 206, 512, 512);
    QTest::newRow("a press outside drags nothing")
        << false << QPoint(100, 100) << QPoint(200, 200) << DefaultRect;
    QTest::newRow("the cross cursor takes the mouse")
        << true << QPoint(767, 500) << QPoint(900, 500) << DefaultRect;
}

void tst_RoiPlugin::drag()
{
    QFETCH(bool, crossCursor);
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(QRect, expected);
    Run run;
    run.host->crossCursor = crossCursor;
    run.drag(from, to);
    QCOMPARE(run.plugin->rectangle(run.doc(0)), expected);
    // Every press opens one macro, and its release closes it.
    QCOMPARE(run.host->macrosBegun, 1);
    QCOMPARE(run.host->macrosEnded, 1);
    QVERIFY(!run.plugin->isMouseDown());
}

void tst_RoiPlugin::changeNotice_data()
{
    QTest::addColumn<bool>("multiLock");
    QTest::addColumn<bool>("applyToLocked");
    QTest::addColumn<bool>("applyOnChange");
    QTest::addColumn<bool>("crossCursor");
    QTest::addColumn<QList<int>>("masks");
    QTest::addColumn<bool>("refreshed");
    // One notice for the move, one for the release.
    QTest::newRow("one document: its view repaints")
        << false << true << true << false << QList<int> { 4, 4 } << true;
    QTest::newRow("multi-lock: all locked views")
        << true << true << true << false << QList<int> { 1, 4, 1, 4 } << false;
    QTest::newRow("multi-lock, not applied to locked")
        << true << false << true << false << QList<int> { 4, 4 } << true;
    QTest::newRow("apply on change off: nobody is told")
        << false << true << false << false << QList<int>() << false;
    QTest::newRow("the cross cursor on: the release still tells")
        << false << true << true << true << QList<int> { 4 } << true;
}

void tst_RoiPlugin::changeNotice()
{
    QFETCH(bool, multiLock);
    QFETCH(bool, applyToLocked);
    QFETCH(bool, applyOnChange);
    QFETCH(bool, crossCursor);
    QFETCH(QList<int>, masks);
    QFETCH(bool, refreshed);
    Run run;
    run.host->multiLock = multiLock;
    run.host->crossCursor = crossCursor;
    run.plugin->setApplyToLocked(applyToLocked);
    run.plugin->setApplyOnChange(applyOnChange);
    run.recorder.clear();
    run.host->faults()->setStep(1);
    run.drag(QPoint(767, 500), QPoint(900, 500));
    QCOMPARE(
        run.plugin->rectangle(run.doc(0)), crossCursor ? DefaultRect : QRect(256, 256, 645, 512));
    QCOMPARE(run.masks(), masks);
    QCOMPARE(run.refreshedIn(1), refreshed);
}

void tst_RoiPlugin::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("an arrow moves a pixel")
        << int(Qt::Key_Left) << int(Qt::NoModifier) << QRect(255, 256, 512, 512);
    QTest::newRow("shift widens to the right")
        << int(Qt::Key_Right) << int(Qt::ShiftModifier) << QRect(256, 256, 513, 512);
    QTest::newRow("shift control lowers the top")
        << int(Qt::Key_Up) << int(Qt::ShiftModifier | Qt::ControlModifier)
        << QRect(256, 257, 512, 511);
    QTest::newRow("another key does nothing")
        << int(Qt::Key_A) << int(Qt::ShiftModifier) << DefaultRect;
}

void tst_RoiPlugin::keys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QRect, expected);
    Run run;
    run.host->setCurrentDocument(run.keys.first());
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    run.plugin->keyPressed(&event);
    QVERIFY(run.plugin->isKeyHeld());
    QCOMPARE(run.plugin->rectangle(run.doc(0)), expected);
    QCOMPARE(run.plugin->rectangle(run.doc(1)), DefaultRect);
}

void tst_RoiPlugin::panelSettingsAndFigures()
{
    Run run;
    QWidget* panel = run.plugin->pageWidget();
    QVERIFY(panel);
    auto* table = panel->findChild<QTableWidget*>(QStringLiteral("parametersTable"));
    QVERIFY(table);
    QCOMPARE(table->item(0, 0)->text(), QStringLiteral("Width"));
    QCOMPARE(table->item(0, 1)->text(), QStringLiteral("512"));
    // A centre lock set on the panel holds the right edge opposite the dragged left one.
    panel->findChild<QCheckBox*>(QStringLiteral("centerXCheck"))->click();
    run.drag(QPoint(256, 500), QPoint(200, 500));
    QCOMPARE(run.plugin->rectangle(run.doc(0)), QRect(200, 256, 624, 512));
    QTRY_COMPARE(table->item(0, 1)->text(), QStringLiteral("624"));
}

void tst_RoiPlugin::syncPluginStaysIdle()
{
    Run run(QStringLiteral(SYNC_PLUGIN_FILE));
    QVERIFY(!run.plugin->hasRectangle(run.doc(0)));
    run.recorder.clear();
    run.host->faults()->setStep(1);
    // Another plug-in's cursor: every release gives the cursor back, rectangle or not.
    QGuiApplication::setOverrideCursor(QCursor(Qt::SizeAllCursor));
    run.drag(QPoint(767, 500), QPoint(900, 500));
    QVERIFY(!QGuiApplication::overrideCursor());
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Left, Qt::ShiftModifier);
    run.plugin->keyPressed(&event);
    // No rectangle moves; the press still opens its macro, and the release closes it and
    // tells the host, as every plug-in's release does.
    QCOMPARE(run.masks(), QList<int> { 4 });
    QVERIFY(run.refreshedIn(1));
    QCOMPARE(run.host->macrosBegun, 1);
    QCOMPARE(run.host->macrosEnded, 1);
}

QTEST_MAIN(tst_RoiPlugin)

#include "tst_roiPlugin.moc"
