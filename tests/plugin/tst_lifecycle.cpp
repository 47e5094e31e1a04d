// The plug-in's life in the host: unloading in either order of plug-in and host window, and a
// second press in the same host run after the cameras changed.
#include "tests/ScenarioHost.h"
#include "host/HST_Application.h"
#include "host/HST_PluginLoader.h"
#include "host/HST_Recorder.h"
#include "plugin/PLG_Interface.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMainWindow>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

class tst_Lifecycle : public QObject
{
    Q_OBJECT

private slots:
    void unload_data();
    void unload();
    void secondPressStartsClean();
};

void tst_Lifecycle::unload_data()
{
    QTest::addColumn<bool>("windowFirst");
    // The dialog is the host window's child and the plug-in's to delete: either may go first.
    QTest::newRow("host window first") << true;
    QTest::newRow("plug-in first") << false;
}

void tst_Lifecycle::unload()
{
    QFETCH(bool, windowFirst);
    QTemporaryDir dir;
    HST_Recorder recorder;
    QString error;
    auto host = makeScenarioHost(
        R"({"cameras": [{"ip": "10.0.0.1"}, {"ip": "10.0.0.2"}]})", &recorder, dir, error);
    QVERIFY2(host, qPrintable(error));
    auto* window = new QMainWindow;
    host->setMainWindow(window);
    HST_PluginLoader loader(QStringLiteral(SYNC_PLUGIN_FILE));
    QVERIFY2(loader.load(host.get(), error), qPrintable(error));
    QPointer<QObject> dialog = window->findChild<QDialog*>(QStringLiteral("GUI_SyncControl"));
    QVERIFY(dialog);

    if (windowFirst) {
        delete window;
        QVERIFY(!dialog);
        loader.release();
    } else {
        loader.release();
        QVERIFY(!dialog);
        delete window;
    }
    // The dialog's destructor still told the host, once.
    QCOMPARE(recorder.events(QStringLiteral("setPref")).size(), 1);
}

void tst_Lifecycle::secondPressStartsClean()
{
    // A dummy camera keeps "Sync execute" off for that opening only: once it is gone, the
    // next press in the same run can sync.
    QTemporaryDir dir;
    HST_Options options;
    options.scenarioJson = R"({"cameras": [{"ip": "10.0.0.1"}, {"ip": "10.0.0.2", "dummy": true},
        {"ip": "10.0.0.3"}]})";
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = dir.filePath(QStringLiteral("prefs.ini"));
    options.quit = true;
    options.autoAnswer = true;
    const auto step = [](const char* kind, const QJsonValue& value) {
        return QJsonObject { { QLatin1String(kind), value } };
    };
    options.steps = QJsonArray { step("open", QStringLiteral("synccontrol")),
        step("click", QStringLiteral("cancel_button")),
        step("world",
            QJsonObject { { QStringLiteral("cameras"),
                QJsonArray { QJsonObject { { QStringLiteral("ip"), QStringLiteral("10.0.0.1") } },
                    QJsonObject { { QStringLiteral("ip"), QStringLiteral("10.0.0.3") } } } } }),
        step("open", QStringLiteral("synccontrol")),
        step("click", QStringLiteral("ok_button")),
        step("click", QStringLiteral("cancel_button")) };
    options.stepTimeoutMs = 5000;
    HST_Application application(options);
    QCOMPARE(application.run(), 0);
    const QList<QJsonObject> syncs = application.recorder()->events(QStringLiteral("applySync"));
    QCOMPARE(syncs.size(), 1);
    QCOMPARE(syncs.first().value(QStringLiteral("cameras")).toArray(),
        (QJsonArray { QStringLiteral("10.0.0.1"), QStringLiteral("10.0.0.3") }));
}

QTEST_MAIN(tst_Lifecycle)

#include "tst_lifecycle.moc"
