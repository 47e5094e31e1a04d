#include "SyncDialogRun.h"

#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

// The checks before the sync dialog opens, then "Sync execute" and "Sync quit" from the button
// to the stored preferences, through the real plug-in file in the reference host, with every
// answer scripted.
class tst_SyncExecution : public QObject
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
    void flow_data();
    void flow();

private:
    struct Run
    {
        int code = -1;
        QList<QJsonObject> events;
        QStringList calls(const QString& call, const QString& field) const;
    };
    static Run run(const QByteArray& scenario, const QJsonArray& steps, const QStringList& clicks,
        int stepTimeoutMs = 3000);
};

QStringList tst_SyncExecution::Run::calls(const QString& call, const QString& field) const
{
    QStringList result;
    for (const QJsonObject& event : events) {
        if (event.value(QStringLiteral("call")).toString() == call)
            result.append(event.value(field).toVariant().toString());
    }
    return result;
}

tst_SyncExecution::Run tst_SyncExecution::run(const QByteArray& scenario, const QJsonArray& steps,
    const QStringList& clicks, int stepTimeoutMs)
{
    QTemporaryDir dir;
    HST_Options options = pressOptions(scenario, dir.filePath(QStringLiteral("prefs.ini")));
    options.steps = steps;
    options.answers = clicks;
    options.stepTimeoutMs = stepTimeoutMs;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    result.events = application.recorder()->events();
    return result;
}

namespace {

QByteArray world(const QString& cameras, const QString& extra = QString())
{
    return QStringLiteral("{\"syncCapableTypes\": [1], \"cameras\": [%1]%2}")
        .arg(cameras, extra)
        .toUtf8();
}

const QString Cameras = QStringLiteral(
    "{\"name\": \"A\", \"ip\": \"10.0.0.3\", \"type\": 1}, "
    "{\"name\": \"B\", \"ip\": \"10.0.0.1\", \"type\": 1, \"exposureTimingClass\": 1}, "
    "{\"name\": \"C\", \"ip\": \"10.0.0.2\", \"type\": 1, \"exposureTimingClass\": 1}");
const QString ErasingCameras = QStringLiteral(
    "{\"ip\": \"10.0.0.1\", \"type\": 1, \"needsErase\": true, \"recorded\": true}, "
    "{\"ip\": \"10.0.0.2\", \"type\": 1}, "
    "{\"ip\": \"10.0.0.3\", \"type\": 1, \"needsErase\": true, \"recorded\": true}");
const char* const Confirm = "Make sure that it is connected as shown in the wiring diagram. Do "
                            "you want to execute the synchronization process?";
const char* const EraseQuestion
    = "There are cameras that need to erase the image data recorded to continue the operation. "
      "Would you like to erase the data and continue the operation?";

const char* const OneCamera = "Because there is only one camera, synchronization is not necessary.";
const char* const LowLight
    = "Synchronization setting is impossible due to the presence of low light camera.";
const char* const DualSlope
    = "Synchronization setting can not be done because there is a dual slope shutter camera.";
const char* const Unsupported = "The selected camera does not support sync setting";
const char* const TriggerModes
    = "Sync setting is possible only when all cameras are in the same trigger mode.";
const char* const MixedWarning
    = "Since the cameras with different exposure timings are mixed, the trigger mode of the start "
      "system can not be used. Consider using manual mode.";
const char* const AutoExposure
    = "Synchronization setting is impossible because there is a camera with automatic exposure "
      "control.";

// Two or three cameras of type 1, trigger mode 1, with the given extra keys per camera.
QByteArray cameraSet(const QStringList& cameras)
{
    QStringList entries;
    int last = 10;
    for (const QString& extra : cameras) {
        QString entry = QStringLiteral("{\"ip\": \"10.0.0.%1\", \"type\": 1").arg(++last);
        if (!extra.isEmpty())
            entry += QStringLiteral(", ") + extra;
        entries.append(entry + QStringLiteral("}"));
    }
    return QStringLiteral("{\"syncCapableTypes\": [1, 2], \"cameras\": [%1]}")
        .arg(entries.join(QStringLiteral(", ")))
        .toUtf8();
}

} // namespace

void tst_SyncExecution::refusals_data()
{
    QTest::addColumn<QByteArray>("world");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<bool>("warning");
    QTest::addColumn<bool>("okEnabled");

    QTest::newRow("a valid set opens with Sync execute on")
        << cameraSet({ "", "" }) << QString() << false << true;
    QTest::newRow("two documents of one camera count once")
        << QByteArray("{\"syncCapableTypes\": [1], \"cameras\": [{\"type\": 1, \"documents\": 2}]}")
        << OneCamera << false << false;
    QTest::newRow("low light") << cameraSet({ "", "\"lowLightMode\": 1" }) << LowLight << false
                               << false;
    QTest::newRow("dual slope") << cameraSet({ "\"dualSlopeShutter\": 2", "" }) << DualSlope
                                << false << false;
    QTest::newRow("type not sync-capable")
        << cameraSet({ "", "\"type\": 7" }) << Unsupported << false << false;
    QTest::newRow("trigger modes differ")
        << cameraSet({ "", "\"triggerMode\": 2" }) << TriggerModes << false << false;
    QTest::newRow("automatic exposure")
        << cameraSet({ "\"automaticExposureControl\": 1", "" }) << AutoExposure << false << false;
    QTest::newRow("all at once: low light is told first")
        << cameraSet({ "\"automaticExposureControl\": 1, \"triggerMode\": 3",
               "\"dualSlopeShutter\": 1, \"type\": 9", "\"lowLightMode\": 1" })
        << LowLight << false << false;
    QTest::newRow("dual slope before type")
        << cameraSet({ "\"type\": 9", "\"dualSlopeShutter\": 1" }) << DualSlope << false << false;
    QTest::newRow("type before trigger mode")
        << cameraSet({ "\"triggerMode\": 4", "\"type\": 9" }) << Unsupported << false << false;
    QTest::newRow("trigger mode before automatic exposure")
        << cameraSet({ "\"automaticExposureControl\": 1", "\"triggerMode\": 4" }) << TriggerModes
        << false << false;
    QTest::newRow("mixed exposure in a start-system mode warns, opens with Sync execute off")
        << cameraSet({ "\"triggerMode\": 0, \"exposureTimingFlag\": 1", "\"triggerMode\": 0" })
        << QString() << true << false;
    QTest::newRow("mixed exposure in mode 1 is fine")
        << cameraSet({ "\"exposureTimingFlag\": 1", "" }) << QString() << false << true;
    QTest::newRow("the warning comes before automatic exposure")
        << cameraSet({ "\"triggerMode\": 0, \"exposureTimingFlag\": 1",
               "\"triggerMode\": 0, \"automaticExposureControl\": 1" })
        << AutoExposure << true << false;
    QTest::newRow("a dummy's low light, type and exposure are skipped, but it keeps OK off")
        << cameraSet({ "",
               "\"dummy\": true, \"lowLightMode\": 1, \"type\": 9, "
               "\"automaticExposureControl\": 1, \"dualSlopeShutter\": 1" })
        << QString() << false << false;
    QTest::newRow("a dummy's trigger mode counts")
        << cameraSet({ "", "\"dummy\": true, \"triggerMode\": 5" }) << TriggerModes << false
        << false;
}

void tst_SyncExecution::refusals()
{
    QFETCH(QByteArray, world);
    QFETCH(QString, refusal);
    QFETCH(bool, warning);
    QFETCH(bool, okEnabled);

    QJsonArray steps;
    if (warning)
        steps.append(QJsonObject { { QStringLiteral("click"), QStringLiteral("OK") } });
    if (!refusal.isEmpty()) {
        steps.append(QJsonObject { { QStringLiteral("click"), QStringLiteral("OK") } });
    } else {
        // A disabled button can't be clicked: the step fails and the run ends with code 3.
        // An enabled one asks for confirmation first, which is declined.
        for (const char* button : { "Sync execute", "Cancel", "Sync quit" })
            steps.append(QJsonObject { { QStringLiteral("click"), QLatin1String(button) } });
    }
    const Run result = run(world, steps, {}, 1500);
    QCOMPARE(result.code, refusal.isEmpty() && !okEnabled ? 3 : 0);
    QCOMPARE(result.calls(QStringLiteral("reportException"), QStringLiteral("text")),
        refusal.isEmpty() ? QStringList() : QStringList { refusal });
    QStringList warnings;
    for (const QJsonObject& event : result.events) {
        if (event.value(QStringLiteral("kind")).toString() == QLatin1String("warning"))
            warnings.append(event.value(QStringLiteral("text")).toString());
    }
    QCOMPARE(warnings, warning ? QStringList { MixedWarning } : QStringList());
}

void tst_SyncExecution::flow_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QStringList>("questions");
    QTest::addColumn<QString>("request"); // applySync as "cameras|master|external"
    QTest::addColumn<QStringList>("messages"); // information and error boxes
    QTest::addColumn<QStringList>("stored"); // sync/ keys written, in order
    QTest::addColumn<QStringList>("erased");

    const QStringList allSyncPrefs { "sync/nrack", "sync/external", "sync/generator/ctrl",
        "sync/generator/frequency", "sync/generator/input", "sync/triggerSignalPolarity" };

    QTest::newRow("chain: master first, everything stored with the master")
        << world(Cameras, ",\"prefs\": {\"sync/masterCamera\": \"10.0.0.2\"}")
        << QStringList { "Sync execute", "OK", "OK", "Sync quit" } << QStringList { Confirm }
        << "10.0.0.2,10.0.0.1,10.0.0.3|10.0.0.2|false"
        << QStringList { "Synchronization is complete." }
        << allSyncPrefs + QStringList { "sync/masterCamera" } << QStringList {};
    QTest::newRow("external: address order, master passed but not stored")
        << world(Cameras, ",\"prefs\": {\"sync/external\": true}")
        << QStringList { "Sync execute", "OK", "OK", "Sync quit" } << QStringList { Confirm }
        << "10.0.0.1,10.0.0.2,10.0.0.3|10.0.0.1|true"
        << QStringList { "Synchronization is complete." } << allSyncPrefs << QStringList {};
    QTest::newRow("declined confirmation: nothing happens")
        << world(Cameras) << QStringList { "Sync execute", "Cancel", "Sync quit" }
        << QStringList { Confirm } << QString() << QStringList {} << QStringList {}
        << QStringList {};
    QTest::newRow("erase confirmed: one question, both cameras erased in list order")
        << world(ErasingCameras) << QStringList { "Sync execute", "OK", "OK", "OK", "Sync quit" }
        << QStringList { Confirm, EraseQuestion } << "10.0.0.1,10.0.0.2,10.0.0.3|10.0.0.1|false"
        << QStringList { "Synchronization is complete." }
        << allSyncPrefs + QStringList { "sync/masterCamera" }
        << QStringList { "10.0.0.1", "10.0.0.3" };
    QTest::newRow("erase refused: nothing erased, no sync")
        << world(ErasingCameras) << QStringList { "Sync execute", "OK", "Cancel", "Sync quit" }
        << QStringList { Confirm, EraseQuestion } << QString() << QStringList {} << QStringList {}
        << QStringList {};
    QTest::newRow("quit with pending changes, Yes: syncs and stays open")
        << world(Cameras, ",\"prefs\": {\"sync/nrack\": 1}")
        << QStringList { "NRack_comboBox", "Sync quit", "Yes", "OK", "OK", "Sync quit" }
        << QStringList { Confirm } << "10.0.0.1,10.0.0.2,10.0.0.3|10.0.0.1|false"
        << QStringList { "Synchronization is complete." }
        << allSyncPrefs + QStringList { "sync/masterCamera" } << QStringList {};
    QTest::newRow("quit with pending changes, Cancel stays, No leaves unsynced")
        << world(Cameras, ",\"prefs\": {\"sync/nrack\": 1}")
        << QStringList { "NRack_comboBox", "Sync quit", "Cancel", "Sync quit", "No" }
        << QStringList {} << QString() << QStringList {} << QStringList {} << QStringList {};
}

void tst_SyncExecution::flow()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QStringList, clicks);
    QFETCH(QStringList, questions);
    QFETCH(QString, request);
    QFETCH(QStringList, messages);
    QFETCH(QStringList, stored);
    QFETCH(QStringList, erased);

    // "NRack_comboBox" stands for choosing "Do Not Use", a change from the stored N-Rack.
    QStringList answers = clicks;
    QJsonArray steps;
    if (answers.first() == QLatin1String("NRack_comboBox")) {
        answers.removeFirst();
        steps.append(QJsonObject {
            { QStringLiteral("set"), QJsonArray { QStringLiteral("NRack_comboBox"), 0 } } });
    }
    const Run result = run(scenario, steps, answers);
    QCOMPARE(result.code, 0);

    QStringList asked;
    QStringList told;
    for (const QJsonObject& event : result.events) {
        if (event.value(QStringLiteral("call")).toString() != QLatin1String("message"))
            continue;
        const QString kind = event.value(QStringLiteral("kind")).toString();
        (kind == QLatin1String("confirm") ? asked : told)
            .append(event.value(QStringLiteral("text")).toString());
    }
    QCOMPARE(asked, questions);
    QCOMPARE(told, messages);

    QStringList requests;
    for (const QJsonObject& event : result.events) {
        if (event.value(QStringLiteral("call")).toString() != QLatin1String("applySync"))
            continue;
        QStringList cameras;
        for (const QJsonValue& camera : event.value(QStringLiteral("cameras")).toArray())
            cameras.append(camera.toString());
        requests.append(cameras.join(',') + '|' + event.value(QStringLiteral("master")).toString()
            + '|' + (event.value(QStringLiteral("external")).toBool() ? "true" : "false"));
    }
    QCOMPARE(requests, request.isEmpty() ? QStringList() : QStringList { request });

    QStringList keys = result.calls(QStringLiteral("setPref"), QStringLiteral("key"));
    keys.removeAll(QStringLiteral("sync/generator/tryconnect"));
    QCOMPARE(keys, stored);
    QCOMPARE(result.calls(QStringLiteral("eraseRecordedData"), QStringLiteral("camera")), erased);
}

QTEST_MAIN(tst_SyncExecution)
#include "tst_syncexecution.moc"
