#include "../ScenarioHost.h"
#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_HubList.h"
#include "host/HST_Recorder.h"
#include "host/HST_ScriptRunner.h"
#include "util/APP_ConcurrentException.h"
#include "util/APP_Exception.h"

#include <QFutureWatcher>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtConcurrent>
#include <QtTest>

namespace {

const QByteArray threeCameras = "{\"cameras\": [{\"ip\": \"192.168.0.3\", \"documents\": 2}, "
                                "{\"ip\": \"192.168.0.1\", \"needsErase\": true, \"recorded\": "
                                "true, \"syncRequired\": true}, "
                                "{\"ip\": \"192.168.0.2\", \"recorded\": true}], \"files\": 1";

} // namespace

class tst_Host : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void documentsOfOneCameraShareIt();
    void mdiWidgetIsFreshForEachPage();
    void applySync_data();
    void applySync();
    void busyDialogRethrowsWhatTheTaskThrew_data();
    void busyDialogRethrowsWhatTheTaskThrew();
    void preferenceReads_data();
    void preferenceReads();
    void changeAddress_data();
    void changeAddress();
    void translate_data();
    void translate();
    void messageBoxesAreAnsweredAndRecorded_data();
    void messageBoxesAreAnsweredAndRecorded();

private:
    std::unique_ptr<HST_Host> makeHost(const QByteArray& json);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
};

void tst_Host::init()
{
    m_dir.reset(new QTemporaryDir);
    m_recorder.reset(new HST_Recorder);
}

void tst_Host::cleanup()
{
    m_recorder.reset();
    m_dir.reset();
}

std::unique_ptr<HST_Host> tst_Host::makeHost(const QByteArray& json)
{
    QString error;
    std::unique_ptr<HST_Host> host = makeScenarioHost(json, m_recorder.get(), *m_dir, error);
    if (!host)
        qFatal("%s", qPrintable(error));
    return host;
}

void tst_Host::documentsOfOneCameraShareIt()
{
    auto host = makeHost(threeCameras + "}");
    const QList<int> keys = host->documentKeys(0);
    QCOMPARE(keys.size(), 5);
    DOC_Interface* first = host->document(keys.at(0));
    DOC_Interface* second = host->document(keys.at(1));
    QVERIFY(first != second);
    QCOMPARE(first->asCamera(), second->asCamera());
    QCOMPARE(second->asCamera()->ipAddress(true), QStringLiteral("192.168.0.3"));
    // The file answers camera queries but is no camera.
    DOC_Interface* file = host->document(keys.last());
    QCOMPARE(file->asCamera(), nullptr);
    QCOMPARE(file->ipAddress(true), QString());

    QSignalSpy changed(host.get(), &HST_Host::stateChanged);
    host->removeDocument(keys.at(0));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(host->document(keys.at(0)), nullptr);
    QCOMPARE(host->documentKeys(0).size(), 4);
}

// A page deletes the widget it embedded with itself: two pages must never share one.
void tst_Host::mdiWidgetIsFreshForEachPage()
{
    auto host = makeHost(threeCameras + "}");
    std::unique_ptr<QObject> first(host->mdiWidget());
    std::unique_ptr<QObject> second(host->mdiWidget());
    QVERIFY(qobject_cast<QWidget*>(first.get()));
    QVERIFY(first != second);
    QCOMPARE(first->parent(), nullptr);
    QCOMPARE(m_recorder->events(QStringLiteral("mdiWidget")).size(), 2);
}

void tst_Host::applySync_data()
{
    QTest::addColumn<QByteArray>("outcome");
    QTest::addColumn<bool>("external");
    QTest::addColumn<int>("master"); // index into the cameras passed, -1 null
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("thrown");

    QTest::newRow("chain with master succeeds") << QByteArray() << false << 1 << "ok" << QString();
    QTest::newRow("external without master succeeds")
        << QByteArray() << true << -1 << "ok" << QString();
    QTest::newRow("chain without master is refused") << QByteArray() << false << -1 << "refused"
                                                     << "A chain connection needs a master camera.";
    QTest::newRow("scenario failure is thrown") << QByteArray(
        ", \"applySync\": {\"result\": \"error\", \"message\": \"Camera lost.\", "
        "\"delayMs\": 50}") << true << 0 << "error"
                                                << "Camera lost.";
}

void tst_Host::applySync()
{
    QFETCH(QByteArray, outcome);
    QFETCH(bool, external);
    QFETCH(int, master);
    QFETCH(QString, result);
    QFETCH(QString, thrown);

    auto host = makeHost(threeCameras + outcome + "}");
    QList<DOC_Camera*> cameras;
    for (int key : host->documentKeys(0)) {
        DOC_Camera* camera = host->document(key)->asCamera();
        if (camera && !cameras.contains(camera))
            cameras.prepend(camera);
    }
    QCOMPARE(cameras.size(), 3);
    QVERIFY(host->isSyncRequired());
    DOC_Camera* masterCamera = master < 0 ? nullptr : cameras.at(master);

    // On a worker, as the plug-in calls it; the exception must reach the caller as thrown.
    QString caught;
    QtConcurrent::run([&] {
        try {
            host->applySync(cameras, masterCamera, 2, external, true, 1, 5000, 1);
        } catch (const APP_Exception& e) {
            caught = QString::fromUtf8(e.what());
        }
    }).waitForFinished();
    QCOMPARE(caught, thrown);

    const QList<QJsonObject> calls = m_recorder->events(QStringLiteral("applySync"));
    QCOMPARE(calls.size(), 1);
    const QJsonObject call = calls.first();
    QCOMPARE(call.value("result").toString(), result);
    QCOMPARE(call.value("cameras").toArray(),
        QJsonArray({ "192.168.0.2", "192.168.0.1", "192.168.0.3" }));
    if (master < 0)
        QVERIFY(call.value("master").isNull());
    else
        QCOMPARE(call.value("master").toString(), cameras.at(master)->ipAddress(true));
    QCOMPARE(call.value("distributor").toInt(), 2);
    QCOMPARE(call.value("external").toBool(), external);
    QCOMPARE(call.value("generatorControl").toBool(), true);
    QCOMPARE(call.value("syncIn").toInt(), 1);
    QCOMPARE(call.value("frequency").toInt(), 5000);
    QCOMPARE(call.value("polarity").toInt(), 1);

    // Only a sync that worked moves the cameras, and it empties those that must be empty.
    const bool ok = result == QLatin1String("ok");
    QCOMPARE(host->isSyncRequired(), !ok);
    QCOMPARE(cameras.at(1)->hasRecordedData(), !ok);
    QCOMPARE(cameras.at(0)->hasRecordedData(), true);
}

void tst_Host::busyDialogRethrowsWhatTheTaskThrew_data()
{
    QTest::addColumn<QString>("thrown");
    QTest::newRow("task succeeds") << QString();
    QTest::newRow("task throws") << QStringLiteral("Hub refused.");
}

void tst_Host::busyDialogRethrowsWhatTheTaskThrew()
{
    QFETCH(QString, thrown);
    auto host = makeHost("{}");
    QSemaphore release;
    QFutureWatcher<void> watcher;
    watcher.setFuture(QtConcurrent::run([&release, thrown] {
        release.acquire();
        if (!thrown.isEmpty())
            throw APP_ConcurrentException(APP_Exception(thrown, 1));
    }));
    // The task finishes only once the busy dialog is up, modal, and has no answer to give.
    bool sawDialog = false;
    QTimer::singleShot(50, [&] {
        auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        sawDialog = dialog && dialog->labelText() == QLatin1String("Reflecting")
            && dialog->findChildren<QPushButton*>().isEmpty();
        release.release();
    });
    QString caught;
    try {
        host->runWithBusyDialog(QStringLiteral("Reflecting"), &watcher);
    } catch (const APP_ConcurrentException& e) {
        caught = QString::fromUtf8(e.exception().what());
    }
    QVERIFY(sawDialog);
    QCOMPARE(caught, thrown);
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

void tst_Host::preferenceReads_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("defaultValue");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("host default for invalid default")
        << "env/style" << QVariant() << QVariant("light");
    QTest::newRow("host default bool") << "sync/external" << QVariant() << QVariant(false);
    QTest::newRow("caller default wins") << "env/style" << QVariant("dark") << QVariant("dark");
    QTest::newRow("unknown key without default") << "x/y" << QVariant() << QVariant();
    QTest::newRow("scenario value keeps its type") << "sync/nrack" << QVariant(0) << QVariant(true);
}

void tst_Host::preferenceReads()
{
    QFETCH(QString, key);
    QFETCH(QVariant, defaultValue);
    QFETCH(QVariant, expected);
    auto host = makeHost("{\"prefs\": {\"sync/nrack\": true}}");
    const QVariant value = host->getPrefVariant(key, defaultValue);
    QCOMPARE(value, expected);
    QCOMPARE(value.type(), expected.type());
    QVERIFY(m_recorder->events(QStringLiteral("setPref")).isEmpty());

    host->setPrefInt(key, 3);
    QCOMPARE(host->getPrefVariant(key, defaultValue), QVariant(3));
    const QList<QJsonObject> writes = m_recorder->events(QStringLiteral("setPref"));
    QCOMPARE(writes.size(), 1);
    QCOMPARE(writes.first().value("key").toString(), key);
    QCOMPARE(writes.first().value("value").toInt(), 3);
    // The written value is in the file for the next run, as text.
    QSettings file(m_dir->filePath(QStringLiteral("p.ini")), QSettings::IniFormat);
    QCOMPARE(file.value(key).toString(), QStringLiteral("3"));
}

void tst_Host::changeAddress_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("thrown");

    QTest::newRow("hub takes the address") << "10.0.0.1"
                                           << "10.0.0.9" << QString();
    QTest::newRow("scenario refusal") << "10.0.0.2"
                                      << "10.0.0.9"
                                      << "Refused.";
    QTest::newRow("address in use") << "10.0.0.1"
                                    << "10.0.0.2"
                                    << "The address 10.0.0.2 is already in use.";
    QTest::newRow("hub not connected") << "10.0.0.3"
                                       << "10.0.0.9"
                                       << "No hub answers at 10.0.0.3.";
}

void tst_Host::changeAddress()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, thrown);
    auto host = makeHost("{\"hubs\": [{\"ip\": \"10.0.0.1\"}, {\"ip\": \"10.0.0.2\", "
                         "\"changeAddress\": {\"result\": \"error\", \"message\": \"Refused.\"}}, "
                         "{\"ip\": \"10.0.0.3\", \"state\": \"disconnected\"}]}");
    QString caught;
    QtConcurrent::run([&] {
        try {
            host->changeAddress(from, to);
        } catch (const APP_Exception& e) {
            caught = QString::fromUtf8(e.what());
        }
    }).waitForFinished();
    QCOMPARE(caught, thrown);
    QStringList addresses;
    host->addresses(addresses, true);
    const bool moved = thrown.isEmpty();
    QCOMPARE(addresses.contains(to), moved || to == QLatin1String("10.0.0.2"));
    QCOMPARE(addresses.contains(from), !moved);
    QCOMPARE(host->device(to) != nullptr, moved || to == QLatin1String("10.0.0.2"));
}

void tst_Host::translate_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no file: identity") << QString() << "Cancel"
                                       << "Cancel";
    QTest::newRow("translated") << HST_TEST_QM_FILE << "Synchronization is complete."
                                << "Synchronisation abgeschlossen.";
    QTest::newRow("missing from file: source") << HST_TEST_QM_FILE << "Syncing"
                                               << "Syncing";
    QTest::newRow("unreadable file") << "/nonexistent/x.qm"
                                     << "Cancel" << QString();
}

void tst_Host::translate()
{
    QFETCH(QString, file);
    QFETCH(QString, source);
    QFETCH(QString, expected);
    auto host = makeHost("{}");
    QString error;
    if (!file.isEmpty() && !host->loadTranslations(file, error)) {
        QVERIFY(expected.isEmpty());
        QVERIFY2(error.startsWith(file), qPrintable(error));
        return;
    }
    QCOMPARE(host->translate(source), expected);
    // The plug-in's own boxes translate in the same context, through the application.
    QCOMPARE(QCoreApplication::translate("tarvix4", qPrintable(source)), expected);
}

void tst_Host::messageBoxesAreAnsweredAndRecorded_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("click");
    QTest::addColumn<bool>("confirmed");

    QTest::newRow("confirm OK goes on") << "confirm"
                                        << "OK" << true;
    QTest::newRow("confirm Cancel stops") << "confirm"
                                          << "Cancel" << false;
    QTest::newRow("warning") << "warning"
                             << "OK" << false;
    QTest::newRow("error list") << "errorList"
                                << "OK" << false;
}

void tst_Host::messageBoxesAreAnsweredAndRecorded()
{
    QFETCH(QString, kind);
    QFETCH(QString, click);
    QFETCH(bool, confirmed);
    auto host = makeHost("{}");
    HST_ScriptRunner runner(m_recorder.get());
    runner.setSteps(HST_ScriptRunner::answerSteps({ click }));
    runner.setStepTimeout(2000);
    runner.start();
    const QString text = QStringLiteral("Go on?");
    bool result = false;
    if (kind == QLatin1String("confirm"))
        result = host->confirm(text, nullptr, {});
    else if (kind == QLatin1String("warning"))
        host->showWarning(text, nullptr);
    else
        host->showErrorList(text, { QStringLiteral("a"), QStringLiteral("b") });
    QVERIFY2(!runner.hasFailed(), qPrintable(runner.failure()));
    QCOMPARE(result, confirmed);
    const QList<QJsonObject> messages = m_recorder->events(QStringLiteral("message"));
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().value("kind").toString(), kind);
    QCOMPARE(messages.first().value("text").toString(), text);
    QCOMPARE(messages.first().value("answer").toString(), click);
}

QTEST_MAIN(tst_Host)
#include "tst_host.moc"
