#include "host/HST_Application.h"
#include "host/HST_Host.h"
#include "host/HST_MainWindow.h"
#include "host/HST_Recorder.h"
#include "plugin/DOC_LinkCore.h"
#include "plugin/PLG_Interface.h"

#include <QAction>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString pluginName = QStringLiteral("synccontrol");

QString scenarioFile(const char* name)
{
    return QStringLiteral(SYNC_SOURCE_DIR "/host/scenarios/") + QLatin1String(name);
}

} // namespace

class tst_Application : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void loaderErrors_data();
    void loaderErrors();
    void enableRuleFollowsState_data();
    void enableRuleFollowsState();
    void exceptionCrossesTheLibraryBoundary_data();
    void exceptionCrossesTheLibraryBoundary();
    void visaOfferedAsTheScenarioSays_data();
    void visaOfferedAsTheScenarioSays();
    void commandLine_data();
    void commandLine();
    void pluginFiles_data();
    void pluginFiles();
    void mdiWidgetIsFreshForEachPage();
    void frequencyPendingUntilApplied_data();
    void frequencyPendingUntilApplied();

private:
    HST_Options options(const QByteArray& scenario) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_Application::init()
{
    m_dir.reset(new QTemporaryDir);
}

HST_Options tst_Application::options(const QByteArray& scenario) const
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir->filePath(QStringLiteral("prefs.ini"));
    // Automation: errors go to stderr and the record, never into a box nobody answers.
    options.quit = true;
    return options;
}

void tst_Application::loaderErrors_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing file") << "/nonexistent/libsynccontrol.so" << 2
                                  << "Plug-in file not found";
    QTest::newRow("not a library")
        << scenarioFile("four-cameras.json") << 2 << "Cannot load the plug-in file";
    QTest::newRow("library without entry")
        << QStringLiteral(HST_NOENTRY_FILE) << 2 << "has no entry makeButtonPlugin";
    QTest::newRow("the real plug-in") << QStringLiteral(SYNC_PLUGIN_FILE) << 0 << QString();
}

void tst_Application::loaderErrors()
{
    QFETCH(QString, file);
    QFETCH(int, code);
    QFETCH(QString, reason);
    HST_Options options = this->options("{}");
    options.pluginFile = file;
    HST_Application application(options);
    QCOMPARE(application.start(), code);
    if (code == 0) {
        QVERIFY(application.plugin());
        QVERIFY(application.mainWindow()->pluginAction(pluginName));
        return;
    }
    QVERIFY2(application.error().contains(reason), qPrintable(application.error()));
    QVERIFY2(application.error().contains(file), qPrintable(application.error()));
    QCOMPARE(application.plugin(), nullptr);
    QCOMPARE(application.recorder()->events(QStringLiteral("hostError")).size(), 1);
}

void tst_Application::enableRuleFollowsState_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<bool>("before");
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("after");

    QTest::newRow("two cameras, leaving camera mode")
        << QByteArray("{\"cameras\": [{}, {}]}") << true << "memory mode" << false;
    QTest::newRow("file mode, entering camera mode")
        << QByteArray("{\"mode\": 2, \"cameras\": [{}, {}]}") << false << "camera mode" << true;
    QTest::newRow("one camera, a file opened")
        << QByteArray("{\"cameras\": [{}]}") << false << "add file" << true;
    QTest::newRow("two documents of one camera, one closed")
        << QByteArray("{\"cameras\": [{\"documents\": 2}]}") << true << "remove first" << false;
    QTest::newRow("no documents, a file opened")
        << QByteArray("{}") << false << "add file" << false;
}

void tst_Application::enableRuleFollowsState()
{
    QFETCH(QByteArray, scenario);
    QFETCH(bool, before);
    QFETCH(QString, change);
    QFETCH(bool, after);

    HST_Application application(options(scenario));
    QCOMPARE(application.start(), 0);
    HST_Host* host = application.host();
    QAction* button = application.mainWindow()->pluginAction(pluginName);
    QCOMPARE(button->isEnabled(), before);
    const int asked = application.recorder()->events(QStringLiteral("isEnabled")).size();
    QVERIFY(asked >= 1);

    if (change == QLatin1String("memory mode"))
        host->setMode(1);
    else if (change == QLatin1String("camera mode"))
        host->setMode(0);
    else if (change == QLatin1String("add file"))
        host->addFileDocument();
    else
        host->removeDocument(host->documentKeys(0).first());
    QTRY_VERIFY(application.recorder()->events(QStringLiteral("isEnabled")).size() > asked);
    QCOMPARE(button->isEnabled(), after);
    QCOMPARE(
        application.recorder()->events(QStringLiteral("isEnabled")).last().value("result").toBool(),
        after);
}

void tst_Application::exceptionCrossesTheLibraryBoundary_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("errorCode");

    // The plug-in throws its APP_Exception; the host's dynamic_cast must still see the type,
    // which needs one type identity on both sides of the library boundary.
    QTest::newRow("plug-in's refusal reaches the host as APP_Exception")
        << QByteArray("{\"cameras\": [{\"documents\": 2}]}")
        << "Because there is only one camera, synchronization is not necessary." << 0;
    // The host throws inside a call the plug-in makes while it checks its cameras; it unwinds
    // through the plug-in's frames and guards and must arrive as the host's own object.
    QTest::newRow("host's exception crosses the plug-in unchanged")
        << QByteArray("{\"cameras\": [{}, {}], "
                      "\"faults\": {\"syncCapableTypes\": \"Type list unavailable.\"}}")
        << "Type list unavailable." << 1;
}

void tst_Application::exceptionCrossesTheLibraryBoundary()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QString, text);
    QFETCH(int, errorCode);
    HST_Options options = this->options(scenario);
    options.press = pluginName;
    options.answers = QStringList { QStringLiteral("OK") };
    HST_Application application(options);
    QCOMPARE(application.run(), 0);
    HST_Recorder* recorder = application.recorder();
    const QList<QJsonObject> reports = recorder->events(QStringLiteral("reportException"));
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().value("text").toString(), text);
    QCOMPARE(reports.first().value("type").toString(), QStringLiteral("APP_Exception"));
    QCOMPARE(reports.first().value("errorCode").toInt(), errorCode);
    // The plug-in's scope guards ran during the unwinding.
    bool left = false;
    for (const QJsonObject& line : recorder->events(QStringLiteral("log"))) {
        const QString logged = line.value("text").toString();
        left |= logged.startsWith(QLatin1String("[LEAVE]"))
            && logged.contains(QLatin1String("GUI_SyncControl::init"));
    }
    QVERIFY(left);
}

void tst_Application::visaOfferedAsTheScenarioSays_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<bool>("offered");
    // In this order: a run that hid the library must not hide it from the next one.
    QTest::newRow("not offered by default") << QByteArray("{}") << false;
    QTest::newRow("offered") << QByteArray("{\"visa\": true}") << true;
    QTest::newRow("hidden again") << QByteArray("{\"visa\": false}") << false;
}

void tst_Application::visaOfferedAsTheScenarioSays()
{
    QFETCH(QByteArray, scenario);
    QFETCH(bool, offered);
    HST_Application application(options(scenario));
    QCOMPARE(application.start(), 0);
    const QString library = QString::fromLocal8Bit(qgetenv(HST_Application::visaLibraryVariable()));
    if (offered) {
        QCOMPARE(library, HST_Application::visaLibraryFile());
    } else {
        QVERIFY(!library.isEmpty());
        QVERIFY(!QFileInfo::exists(library));
    }
}

void tst_Application::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("stderrHas");

    QTest::newRow("bad scenario names file and key") << QStringList {
        "--scenario", SYNC_SOURCE_DIR "/tests/host/fixtures/duplicate-address.json"
    } << 1 << "duplicate-address.json: \"cameras[1].ip\": duplicate camera address";
    // Qt's application object has a "-plugin" option of its own that must not swallow ours.
    QTest::newRow("missing plug-in file") << QStringList { "--plugin", "/nonexistent/p.so" } << 2
                                          << "Plug-in file not found: /nonexistent/p.so";
    QTest::newRow("unknown option") << QStringList { "--colour" } << 1 << "colour";
    QTest::newRow("refusal answered") << QStringList { "--scenario",
        scenarioFile("one-camera-two-documents.json"), "--press", "synccontrol", "--answer", "OK" }
                                      << 0 << QString();
}

void tst_Application::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, stderrHas);
    const QString record = m_dir->filePath(QStringLiteral("record.jsonl"));
    arguments << "--prefs" << m_dir->filePath(QStringLiteral("p.ini")) << "--record" << record
              << "--quit";
    QProcess process;
    process.start(QStringLiteral(HST_HOST_EXECUTABLE), arguments);
    QVERIFY(process.waitForFinished(60000));
    const QString errors = QString::fromLocal8Bit(process.readAllStandardError());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QVERIFY2(process.exitCode() == code, qPrintable(errors));
    QVERIFY2(errors.contains(stderrHas), qPrintable(errors));
    // The preferences' path is told as soon as the host exists.
    if (code != 1)
        QVERIFY(QString::fromLocal8Bit(process.readAllStandardOutput())
                    .contains(QLatin1String("p.ini")));
    if (code != 0)
        return;
    QFile file(record);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    bool reported = false;
    for (const QByteArray& line : lines) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        reported |= event.value("call") == QLatin1String("reportException")
            && event.value("text").toString().startsWith(QLatin1String("Because"));
    }
    QVERIFY(reported);
}

void tst_Application::pluginFiles_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("names"); // loaded, in order
    const QString sync = QStringLiteral(SYNC_PLUGIN_FILE);
    const QString roi = QStringLiteral(ROI_PLUGIN_FILE);
    QTest::newRow("none given: both of the build")
        << QStringList() << QStringList { "synccontrol", "roi" };
    QTest::newRow("one given: that one alone")
        << QStringList { "--plugin", roi } << QStringList { "roi" };
    QTest::newRow("given twice: in that order") << QStringList { "--plugin", roi, "--plugin", sync }
                                                << QStringList { "roi", "synccontrol" };
    QTest::newRow("a list") << QStringList { "--plugins", sync + QLatin1Char(',') + roi }
                            << QStringList { "synccontrol", "roi" };
}

void tst_Application::pluginFiles()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, names);
    HST_Options options = this->options("{}");
    QString error;
    QVERIFY(HST_Application::parseArguments(
        QStringList { QStringLiteral("tarvix4host") } + arguments, options, error));
    options.pluginFile.clear();
    HST_Application application(options);
    QCOMPARE(application.start(), 0);
    QStringList started, buttons;
    for (const QJsonObject& event : application.recorder()->events(QStringLiteral("start")))
        started << event.value(QStringLiteral("name")).toString();
    for (PLG_Interface* plugin : application.plugins()) {
        if (application.mainWindow()->pluginAction(plugin->pageName()))
            buttons << plugin->pageName();
    }
    QCOMPARE(started, names);
    QCOMPARE(buttons, names);
}

// A page deletes the widget it embedded with itself: two pages must never share one.
void tst_Application::mdiWidgetIsFreshForEachPage()
{
    HST_Application application(options("{}"));
    QCOMPARE(application.start(), 0);
    std::unique_ptr<QObject> first(application.host()->mdiWidget());
    std::unique_ptr<QObject> second(application.host()->mdiWidget());
    QVERIFY(qobject_cast<QWidget*>(first.get()));
    QVERIFY(first != second);
    QCOMPARE(first->parent(), nullptr);
}

// Any chosen hub frequency, the applied one too, keeps "Sync execute" blinking until the sync.
void tst_Application::frequencyPendingUntilApplied_data()
{
    QTest::addColumn<int>("chosen");
    QTest::newRow("another frequency") << 5000;
    QTest::newRow("the applied frequency chosen again") << 1000;
}

void tst_Application::frequencyPendingUntilApplied()
{
    QFETCH(int, chosen);
    HST_Application application(
        options("{\"hubs\": [{\"ip\": \"10.0.0.1\", \"frequency\": 1000}]}"));
    QCOMPARE(application.start(), 0);
    HST_Host* host = application.host();
    DOC_LinkCore* hub = host->device(QStringLiteral("10.0.0.1"));
    QVERIFY(!host->hasUnappliedChanges());
    hub->setFrequency(chosen);
    QVERIFY(host->hasUnappliedChanges());
    QCOMPARE(hub->frequency(), chosen);
    host->applyChanges();
    QVERIFY(!host->hasUnappliedChanges());
    QCOMPARE(hub->frequency(), chosen);
}

QTEST_MAIN(tst_Application)
#include "tst_application.moc"
