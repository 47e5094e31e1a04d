#include "SyncDialogRun.h"

#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest>

// The checks before the sync dialog opens, run through the real plug-in file as the reference
// host loads it.
class tst_Preconditions : public QObject
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
};

namespace {

const char* const OneCamera =
    "Because there is only one camera, synchronization is not necessary.";
const char* const LowLight =
    "Synchronization setting is impossible due to the presence of low light camera.";
const char* const DualSlope =
    "Synchronization setting can not be done because there is a dual slope shutter camera.";
const char* const Unsupported = "The selected camera does not support sync setting";
const char* const TriggerModes =
    "Sync setting is possible only when all cameras are in the same trigger mode.";
const char* const MixedWarning =
    "Since the cameras with different exposure timings are mixed, the trigger mode of the start "
    "system can not be used. Consider using manual mode.";
const char* const AutoExposure =
    "Synchronization setting is impossible because there is a camera with automatic exposure "
    "control.";

// Two or three cameras of type 1, trigger mode 1, with the given extra keys per camera.
QByteArray scenario(const QStringList& cameras)
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

void tst_Preconditions::refusals_data()
{
    QTest::addColumn<QByteArray>("world");
    QTest::addColumn<QString>("refusal");
    QTest::addColumn<bool>("warning");
    QTest::addColumn<bool>("okEnabled");

    QTest::newRow("a valid set opens with Sync execute on")
        << scenario({"", ""}) << QString() << false << true;
    QTest::newRow("two documents of one camera count once")
        << QByteArray("{\"syncCapableTypes\": [1], \"cameras\": [{\"type\": 1, \"documents\": 2}]}")
        << OneCamera << false << false;
    QTest::newRow("low light") << scenario({"", "\"lowLightMode\": 1"}) << LowLight << false << false;
    QTest::newRow("dual slope") << scenario({"\"dualSlopeShutter\": 2", ""}) << DualSlope << false
                                << false;
    QTest::newRow("type not sync-capable") << scenario({"", "\"type\": 7"}) << Unsupported << false
                                           << false;
    QTest::newRow("trigger modes differ") << scenario({"", "\"triggerMode\": 2"}) << TriggerModes
                                          << false << false;
    QTest::newRow("automatic exposure") << scenario({"\"automaticExposureControl\": 1", ""})
                                        << AutoExposure << false << false;
    QTest::newRow("all at once: low light is told first")
        << scenario({"\"automaticExposureControl\": 1, \"triggerMode\": 3",
                     "\"dualSlopeShutter\": 1, \"type\": 9", "\"lowLightMode\": 1"})
        << LowLight << false << false;
    QTest::newRow("dual slope before type")
        << scenario({"\"type\": 9", "\"dualSlopeShutter\": 1"}) << DualSlope << false << false;
    QTest::newRow("type before trigger mode")
        << scenario({"\"triggerMode\": 4", "\"type\": 9"}) << Unsupported << false << false;
    QTest::newRow("trigger mode before automatic exposure")
        << scenario({"\"automaticExposureControl\": 1", "\"triggerMode\": 4"}) << TriggerModes
        << false << false;
    QTest::newRow("mixed exposure in a start-system mode warns, opens with Sync execute off")
        << scenario({"\"triggerMode\": 0, \"exposureTimingFlag\": 1", "\"triggerMode\": 0"})
        << QString() << true << false;
    QTest::newRow("mixed exposure in mode 1 is fine")
        << scenario({"\"exposureTimingFlag\": 1", ""}) << QString() << false << true;
    QTest::newRow("the warning comes before automatic exposure")
        << scenario({"\"triggerMode\": 0, \"exposureTimingFlag\": 1",
                     "\"triggerMode\": 0, \"automaticExposureControl\": 1"})
        << AutoExposure << true << false;
    QTest::newRow("a dummy's low light, type and exposure are skipped, but it keeps OK off")
        << scenario({"", "\"dummy\": true, \"lowLightMode\": 1, \"type\": 9, "
                         "\"automaticExposureControl\": 1, \"dualSlopeShutter\": 1"})
        << QString() << false << false;
    QTest::newRow("a dummy's trigger mode counts")
        << scenario({"", "\"dummy\": true, \"triggerMode\": 5"}) << TriggerModes << false << false;
}

void tst_Preconditions::refusals()
{
    QFETCH(QByteArray, world);
    QFETCH(QString, refusal);
    QFETCH(bool, warning);
    QFETCH(bool, okEnabled);

    QTemporaryDir dir;
    HST_Options options = pressOptions(world, dir.filePath(QStringLiteral("prefs.ini")));
    options.stepTimeoutMs = 1500;
    QJsonArray steps;
    if (warning)
        steps.append(QJsonObject{{QStringLiteral("click"), QStringLiteral("OK")}});
    if (!refusal.isEmpty()) {
        steps.append(QJsonObject{{QStringLiteral("click"), QStringLiteral("OK")}});
    } else {
        // A disabled button can't be clicked: the step fails and the run ends with code 3.
        // An enabled one asks for confirmation first, which is declined.
        steps.append(QJsonObject{{QStringLiteral("click"), QStringLiteral("Sync execute")}});
        steps.append(QJsonObject{{QStringLiteral("click"), QStringLiteral("Cancel")}});
        steps.append(QJsonObject{{QStringLiteral("click"), QStringLiteral("Sync quit")}});
    }
    options.steps = steps;

    HST_Application application(options);
    const int code = application.run();
    QCOMPARE(code, refusal.isEmpty() && !okEnabled ? 3 : 0);

    const HST_Recorder* record = application.recorder();
    QStringList reports;
    for (const QJsonObject& event : record->events(QStringLiteral("reportException")))
        reports.append(event.value(QStringLiteral("text")).toString());
    QCOMPARE(reports, refusal.isEmpty() ? QStringList() : QStringList{refusal});

    QStringList warnings;
    for (const QJsonObject& event : record->events(QStringLiteral("message"))) {
        if (event.value(QStringLiteral("kind")).toString() == QLatin1String("warning"))
            warnings.append(event.value(QStringLiteral("text")).toString());
    }
    QCOMPARE(warnings, warning ? QStringList{MixedWarning} : QStringList());
}

QTEST_MAIN(tst_Preconditions)
#include "tst_preconditions.moc"
