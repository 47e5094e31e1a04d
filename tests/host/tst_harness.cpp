// The host's side of the plug-in file's dialogs, end to end through the reference host and the
// real plug-in: dialogs and panels opened by name, the menus and the status page, the support
// file, the preferences dialog, and the script steps that drive them.
#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <KZip>

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QJsonObject step(const QString& kind, const QJsonValue& value, const QString& window = QString())
{
    QJsonObject object { { kind, value } };
    if (!window.isEmpty())
        object.insert(QStringLiteral("window"), window);
    return object;
}

QJsonObject click(const QString& button)
{
    return step(QStringLiteral("click"), button);
}

// A call of the host status page's mediator, as the page makes it.
QJsonObject onStatusPage(const QString& code)
{
    return step(QStringLiteral("js"), code, QStringLiteral("hoststatus"));
}

const QJsonObject showStatusPage = step(QStringLiteral("menu"), QStringLiteral("View/Host status"));
const QJsonObject exportMenu
    = step(QStringLiteral("menu"), QStringLiteral("Help/Export support file..."));

} // namespace

class tst_Harness : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void supportFile_data();
    void supportFile();
    void openByName_data();
    void openByName();
    void preferencesDialog_data();
    void preferencesDialog();
    void worldStepChangesStatus();

private:
    struct Run
    {
        int code = -1;
        QString error;
        QList<QJsonObject> events;
        QList<QJsonObject> of(const QString& call) const;
    };
    Run run(const QByteArray& scenario, const QJsonArray& steps, const QString& open = QString());

    // One folder for the whole test, named in the data rows; each case starts it empty.
    QTemporaryDir m_dir;
};

QList<QJsonObject> tst_Harness::Run::of(const QString& call) const
{
    QList<QJsonObject> found;
    for (const QJsonObject& event : events) {
        if (event.value(QStringLiteral("call")).toString() == call)
            found.append(event);
    }
    return found;
}

void tst_Harness::init()
{
    for (const char* name : { "prefs.ini", "support.zip" })
        QFile::remove(m_dir.filePath(QLatin1String(name)));
}

tst_Harness::Run tst_Harness::run(
    const QByteArray& scenario, const QJsonArray& steps, const QString& open)
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir.filePath(QStringLiteral("prefs.ini"));
    options.steps = steps;
    options.open = open;
    options.quit = true;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    result.error = application.error();
    result.events = application.recorder()->events();
    return result;
}

void tst_Harness::supportFile_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QStringList>("entries"); // empty: no file written
    QTest::addColumn<bool>("folderKept");
    QTest::addColumn<QString>("reported");

    const QString zip = m_dir.filePath(QStringLiteral("support.zip"));
    const QJsonObject chooseFile = step(QStringLiteral("file"), zip);
    const QStringList entries { "camera-settings.json", "host-settings.ini", "operation.log",
        "sdk.log", "pc-environment.txt", "version.txt", "screen-capture.png", "current-image.png" };
    QStringList withLog = entries;
    withLog.insert(4, QStringLiteral("camera.log"));
    const QByteArray plain = R"({"cameras": [{}], "prefs": {"snap/dir": "/nonexistent/before"}})";

    QTest::newRow("declined at the question") << plain << QJsonArray { exportMenu, click("Cancel") }
                                              << QStringList() << false << QString();
    QTest::newRow("cancelled in the file dialog")
        << plain << QJsonArray { exportMenu, click("OK"), step(QStringLiteral("file"), "") }
        << QStringList() << false << QString();
    QTest::newRow("failed: the user told, the folder kept")
        << QByteArray(R"({"cameras": [{}], "exportSupportFile": {"result": "error"}})")
        << QJsonArray { exportMenu, click("OK"), chooseFile, click("OK") } << QStringList() << true
        << "Failed to save support file.";
    QTest::newRow("saved, a camera keeps a log")
        << QByteArray(R"({"cameras": [{}, {"functions": [158]}]})")
        << QJsonArray { exportMenu, click("OK"), chooseFile, click("OK") } << withLog << true
        << QString();
    // The page's own call, whose file dialog the next step answers while the call waits.
    QTest::newRow("saved from the page's call, no camera log")
        << plain
        << QJsonArray { showStatusPage, onStatusPage("hoststatus.openExportSupportFileDialog()"),
               click("OK"), chooseFile, click("OK") }
        << entries << true << QString();
}

void tst_Harness::supportFile()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QJsonArray, steps);
    QFETCH(QStringList, entries);
    QFETCH(bool, folderKept);
    QFETCH(QString, reported);

    const Run result = run(scenario, steps);
    QVERIFY2(result.code == 0, qPrintable(result.error));
    const QList<QJsonObject> confirms = result.of(QStringLiteral("message"));
    QVERIFY(!confirms.isEmpty());
    QCOMPARE(confirms.first().value(QStringLiteral("kind")).toString(), QStringLiteral("confirm"));
    QCOMPARE(confirms.first()
                 .value(QStringLiteral("text"))
                 .toString()
                 .contains(QLatin1String("<br>- Camera log")),
        entries.contains(QStringLiteral("camera.log")));

    QStringList folders;
    for (const QJsonObject& event : result.of(QStringLiteral("setPref"))) {
        if (event.value(QStringLiteral("key")).toString() == QLatin1String("snap/dir"))
            folders << event.value(QStringLiteral("value")).toString();
    }
    QCOMPARE(folders, folderKept ? QStringList { m_dir.path() } : QStringList());
    const QList<QJsonObject> reports = result.of(QStringLiteral("reportException"));
    QCOMPARE(reports.isEmpty(), reported.isEmpty());
    if (!reported.isEmpty())
        QCOMPARE(reports.first().value(QStringLiteral("text")).toString(), reported);

    KZip archive(m_dir.filePath(QStringLiteral("support.zip")));
    QCOMPARE(archive.open(QIODevice::ReadOnly), !entries.isEmpty());
    if (entries.isEmpty())
        return;
    // The archive's directory keeps no order of its own.
    QStringList written = archive.directory()->entries();
    written.sort();
    entries.sort();
    QCOMPARE(written, entries);
    const auto* image = dynamic_cast<const KArchiveFile*>(
        archive.directory()->entry(QStringLiteral("current-image.png")));
    QVERIFY(image && !QImage::fromData(image->data(), "PNG").isNull());
    QCOMPARE(result.of(QStringLiteral("busy")).size(), 1);
    QCOMPARE(result.of(QStringLiteral("message")).last().value(QStringLiteral("text")).toString(),
        QStringLiteral("Please attach preserved file to a mail."));
}

void tst_Harness::openByName_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("arg");

    // A dialog that is a web dialog of the plug-in file, its Cancel pressed in its page.
    QTest::newRow("a dialog of the plug-in file, with an argument")
        << "sync_signal_generator_connect:ignored"
        << QJsonArray { step(
               QStringLiteral("js"), QStringLiteral("$('#signal_generator_cancel').click()")) }
        << 0 << 0 << "ignored";
    QTest::newRow("a panel: the host's page with the plug-in's mediator")
        << "hoststatus" << QJsonArray { onStatusPage("hoststatus.getSelectedDockey().join(',')") }
        << 0 << 1 << QString();
    QTest::newRow("a dialog the steps leave open is closed, and the run fails")
        << "sync_signal_generator_connect"
        << QJsonArray { step(QStringLiteral("js"), QStringLiteral("1")) } << 3 << 0 << QString();
    QTest::newRow("a name nobody registered")
        << "nosuchpage" << QJsonArray() << 3 << -2 << QString();
}

void tst_Harness::openByName()
{
    QFETCH(QString, open);
    QFETCH(QJsonArray, steps);
    QFETCH(int, code);
    QFETCH(int, result);
    QFETCH(QString, arg);

    const Run run = this->run(R"({"cameras": [{}, {}]})", steps, open);
    QCOMPARE(run.code, code);
    const QList<QJsonObject> opened = run.of(QStringLiteral("open"));
    if (result == -2) {
        QVERIFY2(run.error.contains(QLatin1String("no dialog or panel named \"nosuchpage\"")),
            qPrintable(run.error));
        QVERIFY(opened.isEmpty());
        return;
    }
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened.last().value(QStringLiteral("phase")).toString(), QStringLiteral("end"));
    QCOMPARE(opened.last().value(QStringLiteral("result")).toInt(), result);
    QCOMPARE(opened.last().value(QStringLiteral("arg")).toString(), arg);
    if (code != 0)
        QVERIFY2(run.error.contains(QLatin1String("is still open")), qPrintable(run.error));
    // Every step acted, its result recorded.
    QCOMPARE(run.of(QStringLiteral("js")).size(), 1);
    if (open == QLatin1String("hoststatus"))
        QCOMPARE(run.of(QStringLiteral("js")).first().value(QStringLiteral("result")).toString(),
            QStringLiteral("1,2"));
}

void tst_Harness::preferencesDialog_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QJsonArray>("answer");
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("written");

    const QJsonObject check
        = step(QStringLiteral("set"), QJsonArray { "recording_LoopRecord", true });
    QTest::newRow("a page by name, OK writes what changed")
        << 0 << "hoststatus.openPrefsDialog('s_record')" << QJsonArray { check, click("OK") }
        << "s_record" << 1 << QStringList { "recording/LoopRecord" };
    QTest::newRow("Cancel writes nothing")
        << 0 << "hoststatus.openPrefsDialog('s_record')" << QJsonArray { check, click("Cancel") }
        << "s_record" << 0 << QStringList();
    QTest::newRow("Ethernet settings on their page, outside camera mode")
        << 1 << "hoststatus.openPrefsEthernetSettings()"
        << QJsonArray { step(QStringLiteral("set"),
                            QJsonArray { "cameraconnection_SearchIP", "10.1.2.3" }),
               click("OK") }
        << "s_ethernet" << 1 << QStringList { "cameraconnection/SearchIP" };
}

void tst_Harness::preferencesDialog()
{
    QFETCH(int, mode);
    QFETCH(QString, call);
    QFETCH(QJsonArray, answer);
    QFETCH(QString, page);
    QFETCH(int, result);
    QFETCH(QStringList, written);

    QJsonArray steps { showStatusPage, onStatusPage(call) };
    for (const QJsonValue& value : answer)
        steps.append(value);
    const Run run
        = this->run(QStringLiteral(R"({"mode": %1, "cameras": [{}]})").arg(mode).toUtf8(), steps);
    QCOMPARE(run.code, 0);
    const QList<QJsonObject> dialogs = run.of(QStringLiteral("prefsDialog"));
    QCOMPARE(dialogs.size(), 1);
    QCOMPARE(dialogs.first().value(QStringLiteral("page")).toString(), page);
    QCOMPARE(dialogs.first().value(QStringLiteral("result")).toInt(), result);
    QStringList keys;
    for (const QJsonObject& event : run.of(QStringLiteral("setPref"))) {
        const QString key = event.value(QStringLiteral("key")).toString();
        if (!key.startsWith(QLatin1String("sync/")))
            keys << key;
    }
    QCOMPARE(keys, written);
    // The page's call pauses the live view first, in camera mode only.
    const bool viaMediator = call.contains(QLatin1String("openPrefsDialog"));
    QCOMPARE(run.of(QStringLiteral("pauseLive")).size(), viaMediator && mode == 0 ? 1 : 0);
}

void tst_Harness::worldStepChangesStatus()
{
    const QString read = QStringLiteral("var s = JSON.parse(hoststatus.getControlStatus());"
                                        " [s.IsRecording, s.IsCTSReady, s.IsNotRecording].join()");
    const Run run = this->run(R"({"cameras": [{}]})",
        { showStatusPage, onStatusPage(read),
            step(QStringLiteral("world"),
                QJsonObject { { "status", QJsonObject { { "IsRecording", true } } },
                    { "recordingStatus", 1 } }),
            onStatusPage(read) });
    QCOMPARE(run.code, 0);
    const QList<QJsonObject> reads = run.of(QStringLiteral("js"));
    QCOMPARE(reads.size(), 2);
    QCOMPARE(
        reads.at(0).value(QStringLiteral("result")).toString(), QStringLiteral("false,false,true"));
    QCOMPARE(
        reads.at(1).value(QStringLiteral("result")).toString(), QStringLiteral("true,true,false"));
}

QTEST_MAIN(tst_Harness)
#include "tst_harness.moc"
