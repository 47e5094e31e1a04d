#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QJsonArray>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

// The sync dialog through the real plug-in file in the reference host: the checks before it
// opens; its form on the real widgets; its wiring diagram as the user sees it (which labels
// exist where, and whether the wires drawn from their geometry reach them); and "Sync execute"
// and "Sync quit" from the button to the stored preferences, with every answer scripted.
class tst_SyncDialog : public QObject
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
    void flow_data();
    void flow();
    void statesFollowChoices_data();
    void statesFollowChoices();
    void diagram_data();
    void diagram();

private:
    struct Run
    {
        int code = -1;
        QList<QJsonObject> events;
        QStringList calls(const QString& call, const QString& field) const;
    };
    static Run run(const QByteArray& scenario, const QJsonArray& steps, const QStringList& clicks,
        int stepTimeoutMs = 3000);
    static void act(QDialog* dialog, const QString& action);
    static QString state(QDialog* dialog, const QString& query);
};

namespace {

// A run of the real plug-in file in the reference host that presses the sync button and ends
// when the plug-in has returned; preferences in prefsFile.
HST_Options pressOptions(const QByteArray& scenario, const QString& prefsFile)
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = prefsFile;
    options.press = QStringLiteral("synccontrol");
    options.quit = true;
    return options;
}

// Runs the plug-in on a scenario, presses its button and hands the open sync dialog to a check.
// Message boxes that come up meanwhile are answered with their default button. Gives the
// application's exit code.
int runSyncDialog(const QByteArray& scenario, const std::function<void(QDialog*)>& check)
{
    QTemporaryDir dir;
    const HST_Options options = pressOptions(scenario, dir.filePath(QStringLiteral("prefs.ini")));

    // A timer does not fire again while its own slot runs, so boxes that come up during the
    // check are answered by a second one.
    QTimer answer;
    answer.setInterval(20);
    QObject::connect(&answer, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            if (QAbstractButton* button
                = box->defaultButton() ? box->defaultButton() : box->buttons().value(0))
                button->click();
        }
    });
    answer.start();

    bool checked = false;
    QTimer poll;
    poll.setInterval(20);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (checked || !dialog || dialog->objectName() != QLatin1String("GUI_SyncControl"))
            return;
        checked = true;
        check(dialog);
        dialog->reject();
    });
    poll.start();

    HST_Application application(options);
    const int code = application.run();
    return checked ? code : -1;
}

QByteArray scenario(
    const QString& cameras, const QString& prefs = QString(), const QString& hubs = QString())
{
    return QStringLiteral("{\"syncCapableTypes\": [1, 23, 35], \"cameras\": [%1], \"prefs\": {%2}, "
                          "\"hubs\": [%3]}")
        .arg(cameras, prefs, hubs)
        .toUtf8();
}

const QString TwoCameras = QStringLiteral("{\"name\": \"A\", \"ip\": \"10.0.0.2\", \"type\": 1}, "
                                          "{\"name\": \"B\", \"ip\": \"10.0.0.1\", \"type\": 1}");
const QString Hubs = QStringLiteral(
    "{\"ip\": \"10.0.1.1\", \"syncMode\": 0, \"frequency\": 2000, \"frequencies\": [1000, 2000]}, "
    "{\"ip\": \"10.0.1.2\", \"syncMode\": 1}, {\"ip\": \"10.0.1.3\", \"state\": \"disconnected\"}");

const QString DiagramCameras = QStringLiteral(
    "{\"name\": \"A\", \"ip\": \"10.0.0.1\", \"type\": 1, \"model\": \"HX-1 type A model 2\"}, "
    "{\"name\": \"B\", \"ip\": \"10.0.0.2\", \"type\": 1}");
const QString MixedTypes = QStringLiteral("{\"name\": \"A\", \"ip\": \"10.0.0.1\", \"type\": 1}, "
                                          "{\"name\": \"B\", \"ip\": \"10.0.0.2\", \"type\": 35}, "
                                          "{\"name\": \"C\", \"ip\": \"10.0.0.3\", \"type\": 23}");
const QString ExternalPrefs = QStringLiteral("\"sync/external\": true");
const QString ChainPrefs = QStringLiteral("\"sync/external\": false");
const QString SyncingHub
    = QStringLiteral("{\"ip\": \"10.0.1.1\", \"syncMode\": 0, \"frequency\": 1000}");

// "name@x,y,w,h", "name:text", "name!" (absent), "name#N" (how many), "@minHeight=N", and
// "x,y=colour" for a pixel of the rendered diagram.
QString describe(QWidget* diagram, const QString& query)
{
    if (query.at(0).isDigit()) {
        const QStringList xy = query.section(QLatin1Char('='), 0, 0).split(QLatin1Char(','));
        const QColor c = diagram->grab().toImage().pixelColor(xy.at(0).toInt(), xy.at(1).toInt());
        const QString colour = c == QColor(Qt::green) ? QStringLiteral("green")
            : c == QColor(Qt::red)                    ? QStringLiteral("red")
            : c == QColor(Qt::blue)                   ? QStringLiteral("blue")
                                                      : QStringLiteral("other");
        return query.section(QLatin1Char('='), 0, 0) + QLatin1Char('=') + colour;
    }
    if (query.startsWith(QLatin1String("@minHeight")))
        return QStringLiteral("@minHeight=%1").arg(diagram->minimumHeight());
    if (query.contains(QLatin1Char('#'))) {
        const QString name = query.section(QLatin1Char('#'), 0, 0);
        return name + QLatin1Char('#')
            + QString::number(
                diagram->findChildren<QWidget*>(name, Qt::FindDirectChildrenOnly).size());
    }
    const bool absent = query.endsWith(QLatin1Char('!'));
    const QString name = query.section(QRegularExpression(QStringLiteral("[@:!]")), 0, 0);
    QWidget* child = nullptr;
    for (QObject* object : diagram->children()) {
        if (object->objectName() == name) {
            child = qobject_cast<QWidget*>(object);
            break;
        }
    }
    if (absent)
        return child ? name + QStringLiteral(" exists") : name + QLatin1Char('!');
    if (!child)
        return name + QStringLiteral(" missing");
    if (query.contains(QLatin1Char(':')))
        return name + QLatin1Char(':') + qobject_cast<QLabel*>(child)->text().replace('\n', '|');
    const QRect g = child->geometry();
    return QStringLiteral("%1@%2,%3,%4,%5")
        .arg(name)
        .arg(g.x())
        .arg(g.y())
        .arg(g.width())
        .arg(g.height());
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
    return scenario(entries.join(QStringLiteral(", ")));
}

} // namespace

QStringList tst_SyncDialog::Run::calls(const QString& call, const QString& field) const
{
    QStringList result;
    for (const QJsonObject& event : events) {
        if (event.value(QStringLiteral("call")).toString() == call)
            result.append(event.value(field).toVariant().toString());
    }
    return result;
}

tst_SyncDialog::Run tst_SyncDialog::run(const QByteArray& scenario, const QJsonArray& steps,
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

void tst_SyncDialog::refusals_data()
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

void tst_SyncDialog::refusals()
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

void tst_SyncDialog::flow_data()
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
        << scenario(Cameras, "\"sync/masterCamera\": \"10.0.0.2\"")
        << QStringList { "Sync execute", "OK", "OK", "Sync quit" } << QStringList { Confirm }
        << "10.0.0.2,10.0.0.1,10.0.0.3|10.0.0.2|false"
        << QStringList { "Synchronization is complete." }
        << allSyncPrefs + QStringList { "sync/masterCamera" } << QStringList {};
    QTest::newRow("external: address order, master passed but not stored")
        << scenario(Cameras, "\"sync/external\": true")
        << QStringList { "Sync execute", "OK", "OK", "Sync quit" } << QStringList { Confirm }
        << "10.0.0.1,10.0.0.2,10.0.0.3|10.0.0.1|true"
        << QStringList { "Synchronization is complete." } << allSyncPrefs << QStringList {};
    QTest::newRow("declined confirmation: nothing happens")
        << scenario(Cameras) << QStringList { "Sync execute", "Cancel", "Sync quit" }
        << QStringList { Confirm } << QString() << QStringList {} << QStringList {}
        << QStringList {};
    QTest::newRow("erase confirmed: one question, both cameras erased in list order")
        << scenario(ErasingCameras) << QStringList { "Sync execute", "OK", "OK", "OK", "Sync quit" }
        << QStringList { Confirm, EraseQuestion } << "10.0.0.1,10.0.0.2,10.0.0.3|10.0.0.1|false"
        << QStringList { "Synchronization is complete." }
        << allSyncPrefs + QStringList { "sync/masterCamera" }
        << QStringList { "10.0.0.1", "10.0.0.3" };
    QTest::newRow("erase refused: nothing erased, no sync")
        << scenario(ErasingCameras) << QStringList { "Sync execute", "OK", "Cancel", "Sync quit" }
        << QStringList { Confirm, EraseQuestion } << QString() << QStringList {} << QStringList {}
        << QStringList {};
    QTest::newRow("quit with pending changes, Yes: syncs and stays open")
        << scenario(Cameras, "\"sync/nrack\": 1")
        << QStringList { "NRack_comboBox", "Sync quit", "Yes", "OK", "OK", "Sync quit" }
        << QStringList { Confirm } << "10.0.0.1,10.0.0.2,10.0.0.3|10.0.0.1|false"
        << QStringList { "Synchronization is complete." }
        << allSyncPrefs + QStringList { "sync/masterCamera" } << QStringList {};
    QTest::newRow("quit with pending changes, Cancel stays, No leaves unsynced")
        << scenario(Cameras, "\"sync/nrack\": 1")
        << QStringList { "NRack_comboBox", "Sync quit", "Cancel", "Sync quit", "No" }
        << QStringList {} << QString() << QStringList {} << QStringList {} << QStringList {};
}

void tst_SyncDialog::flow()
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

// "name=N" sets a combo box's index; "name" clicks a button.
void tst_SyncDialog::act(QDialog* dialog, const QString& action)
{
    const QStringList parts = action.split(QLatin1Char('='));
    QWidget* target = dialog->findChild<QWidget*>(parts.first());
    QVERIFY2(target, qPrintable(action));
    if (auto* combo = qobject_cast<QComboBox*>(target))
        combo->setCurrentIndex(parts.value(1).toInt());
    else if (auto* button = qobject_cast<QAbstractButton*>(target))
        button->click();
}

// "name.enabled", "name.visible", "name.checked", "name.index", "name.count", "name.text",
// "ok_button.blinking".
QString tst_SyncDialog::state(QDialog* dialog, const QString& query)
{
    const QString name = query.section(QLatin1Char('.'), 0, 0);
    const QString property = query.section(QLatin1Char('.'), 1);
    QWidget* target = dialog->findChild<QWidget*>(name);
    if (!target)
        return QStringLiteral("missing");
    const auto flag = [](bool b) { return b ? QStringLiteral("true") : QStringLiteral("false"); };
    if (property == QLatin1String("blinking")) {
        // Blinking runs on a timer of the dialog, whose next tick turns the button coral.
        for (QTimer* timer : dialog->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (timer->isActive() && QTest::qWaitFor([target] {
                    return target->styleSheet().contains(QLatin1String("coral"));
                }))
                return flag(true);
        }
        return flag(false);
    }
    if (property == QLatin1String("enabled"))
        return flag(target->isEnabled());
    if (property == QLatin1String("visible"))
        return flag(target->isVisible());
    if (property == QLatin1String("checked"))
        return flag(qobject_cast<QAbstractButton*>(target)->isChecked());
    if (auto* combo = qobject_cast<QComboBox*>(target)) {
        if (property == QLatin1String("index"))
            return QString::number(combo->currentIndex());
        if (property == QLatin1String("count"))
            return QString::number(combo->count());
        return combo->currentText();
    }
    if (auto* table = qobject_cast<QTableWidget*>(target))
        return QString::number(table->rowCount());
    if (auto* label = qobject_cast<QLabel*>(target))
        return label->text();
    return qobject_cast<QAbstractButton*>(target)->text();
}

void tst_SyncDialog::statesFollowChoices_data()
{
    QTest::addColumn<QByteArray>("world");
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("external without distributor")
        << scenario(TwoCameras) << QStringList { "sync_external_radio" }
        << QStringList { "masterCameras_comboBox.enabled=false", "sync_in_comboBox.enabled=true",
               "signal_generator_control_checkBox.enabled=true",
               "trigger_sig_polarity_comboBox.enabled=true", "tableWidget.visible=false",
               "search_pushButton.visible=false", "sync_chain_label.visible=false",
               "ok_button.enabled=true", "ok_button.text=Sync execute" };
    QTest::newRow("chain with N-Rack shows the hint, after its warning")
        << scenario(TwoCameras) << QStringList { "sync_chain_radio", "NRack_comboBox=1" }
        << QStringList { "masterCameras_comboBox.enabled=true", "sync_in_comboBox.enabled=false",
               "signal_generator_control_checkBox.enabled=false", "sync_chain_label.visible=true",
               "nrack_setting_label.visible=false",
               "sync_chain_label.text=※When using N-RACK synchronize the CAM1 camera "
               "with the master" };
    QTest::newRow("Link Core forces TRIG NEG and shows every hub")
        << scenario(TwoCameras, QString(), Hubs) << QStringList { "NRack_comboBox=2" }
        << QStringList { "trigger_sig_polarity_comboBox.index=1",
               "trigger_sig_polarity_comboBox.enabled=false", "tableWidget.visible=true",
               "tableWidget.rows=3", "update_pushButton.visible=true",
               "nrack_setting_label.text=Link Core settings:", "sync_chain_label.visible=false" };
    QTest::newRow("leaving Link Core frees the polarity, keeps TRIG NEG")
        << scenario(TwoCameras, QString(), Hubs)
        << QStringList { "NRack_comboBox=2", "NRack_comboBox=0" }
        << QStringList { "trigger_sig_polarity_comboBox.index=1",
               "trigger_sig_polarity_comboBox.enabled=true", "tableWidget.visible=false" };
    QTest::newRow("chain set without master candidate: empty master list")
        << scenario(QStringLiteral(
               "{\"ip\": \"10.0.0.1\", \"type\": 1, \"triggerMode\": 2, \"exposureTimingFlag\": 1, "
               "\"exposureTimingClass\": 1}, {\"ip\": \"10.0.0.2\", \"type\": 1, \"triggerMode\": "
               "2}"))
        << QStringList { "sync_chain_radio" }
        << QStringList { "masterCameras_comboBox.count=0", "masterCameras_comboBox.enabled=true",
               "ok_button.enabled=true" };
    QTest::newRow("generator not connected: its row is hidden and unchecked")
        << scenario(TwoCameras,
               QStringLiteral("\"sync/generator/ctrl\": true, "
                              "\"sync/external\": true"))
        << QStringList {}
        << QStringList { "signal_generator_control_checkBox.visible=false",
               "signal_generator_control_checkBox.checked=false",
               "frequency_comboBox.visible=false" };

    // The choices are read from the preferences at every opening.
    QTest::newRow("nothing stored: chain, no distributor, first values")
        << scenario(TwoCameras) << QStringList {}
        << QStringList { "NRack_comboBox.index=0", "sync_chain_radio.checked=true",
               "frequency_comboBox.text=1000", "sync_in_comboBox.index=0",
               "trigger_sig_polarity_comboBox.index=0", "masterCameras_comboBox.text=B(10.0.0.1)" };
    QTest::newRow("older bool distributor")
        << scenario(TwoCameras, "\"sync/nrack\": true") << QStringList {}
        << QStringList { "NRack_comboBox.index=1" };
    QTest::newRow("older text distributor")
        << scenario(TwoCameras, "\"sync/nrack\": \"false\"") << QStringList {}
        << QStringList { "NRack_comboBox.index=0" };
    QTest::newRow("distributor out of the list leaves no item") << scenario(TwoCameras,
        "\"sync/nrack\": 5") << QStringList {} << QStringList { "NRack_comboBox.index=-1" };
    QTest::newRow("stored choices")
        << scenario(TwoCameras,
               "\"sync/external\": true, \"sync/generator/frequency\": 3000, "
               "\"sync/generator/input\": 1, \"sync/triggerSignalPolarity\": 1, "
               "\"sync/masterCamera\": \"10.0.0.2\"")
        << QStringList {}
        << QStringList { "sync_external_radio.checked=true", "frequency_comboBox.text=3000",
               "sync_in_comboBox.index=1", "trigger_sig_polarity_comboBox.index=1",
               "masterCameras_comboBox.text=A(10.0.0.2)" };
    QTest::newRow("unknown master and frequency fall back to the first")
        << scenario(TwoCameras,
               "\"sync/masterCamera\": \"10.9.9.9\", \"sync/generator/frequency\": 1234")
        << QStringList {}
        << QStringList { "masterCameras_comboBox.index=0", "frequency_comboBox.index=0" };

    // "Sync execute" blinks while the form differs from what was last applied.
    QTest::newRow("unchanged form stays plain")
        << scenario(TwoCameras) << QStringList {} << QStringList { "ok_button.blinking=false" };
    QTest::newRow("a changed distributor blinks")
        << scenario(TwoCameras) << QStringList { "NRack_comboBox=1" }
        << QStringList { "ok_button.blinking=true" };
    QTest::newRow("cameras that moved away from the last sync blink")
        << scenario(QStringLiteral("{\"ip\": \"10.0.0.1\", \"type\": 1, \"syncRequired\": true}, "
                                   "{\"ip\": \"10.0.0.2\", \"type\": 1}"))
        << QStringList { "update_pushButton" } << QStringList { "ok_button.blinking=true" };
    QTest::newRow("nothing blinks while a sync is impossible")
        << scenario(TwoCameras + QStringLiteral(", {\"ip\": \"10.0.0.9\", \"dummy\": true}"))
        << QStringList { "NRack_comboBox=1" } << QStringList { "ok_button.blinking=false" };
}

void tst_SyncDialog::statesFollowChoices()
{
    QFETCH(QByteArray, world);
    QFETCH(QStringList, actions);
    QFETCH(QStringList, expected);
    QStringList seen;
    const int code = runSyncDialog(world, [&](QDialog* dialog) {
        for (const QString& action : actions)
            act(dialog, action);
        for (const QString& row : expected) {
            const QString query = row.section(QLatin1Char('='), 0, 0);
            seen.append(query + QLatin1Char('=') + state(dialog, query));
        }
    });
    QCOMPARE(code, 0);
    QCOMPARE(seen, expected);
}

void tst_SyncDialog::diagram_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("two cameras, external, no distributor: rows, ports and both signal boxes")
        << scenario(DiagramCameras, ExternalPrefs)
        << QStringList { "eTriggerLabel@430,0,120,40", "syncLabel@560,0,120,40",
               "side0@50,90,100,80", "side1@50,225,100,80", "back0@150,90,100,80",
               "port0-0@250,90,130,30", "port0-1@250,120,130,30", "port0-2!",
               "port0-0:SYNC IN|ON CAM POS", "port1-1:TRIG TTL IN|TRIG POS", "masterLabel!",
               "nrackPanel!", "@minHeight=390",
               // Green and red buses at the centre of their boxes, arrows stopping at
               // the ports' right edge (x 380).
               "490,60=green", "490,200=green", "382,135=green", "382,270=green", "620,60=red",
               "620,105=red", "382,105=red", "382,240=red" };
    QTest::newRow("chain: master badge, OFF on its input, no sync box")
        << scenario(DiagramCameras, ChainPrefs)
        << QStringList { "syncLabel!", "masterLabel@50,90,50,40", "port0-0:SYNC IN|OFF",
               "port0-2:GENERAL OUT1|SYNC POS", "port1-0:SYNC IN|ON CAM POS",
               // A red loop from each output to the next input, turning at 430.
               "430,180=red", "400,165=red", "400,240=red", "382,270=green" };
    QTest::newRow("chain of mixed types: family 2 stays ON CAM POS, others ON OTHERS POS")
        << scenario(MixedTypes, ChainPrefs)
        << QStringList { "port1-0:SYNC IN|ON CAM POS", "port1-2:SYNC OUT|SYNC POS",
               "port2-0:INPUT1|ON OTHERS POS" };
    QTest::newRow("N-Rack: panel with three pictures, no back or port labels, blue bus at 290")
        << scenario(DiagramCameras, ExternalPrefs + QStringLiteral(", \"sync/nrack\": 1"))
        << QStringList { "nrackPanel@430,90,220,340", "syncLabel@560,0,120,40", "back0!",
               "port0-0!", "290,200=blue", "152,130=blue", "152,265=blue", "400,260=blue",
               "490,70=green", "620,70=red" };
    QTest::newRow("Link Core with a syncing hub: no sync box even when external")
        << scenario(
               DiagramCameras, ExternalPrefs + QStringLiteral(", \"sync/nrack\": 2"), SyncingHub)
        << QStringList { "nrackPanel@430,90,220,340", "syncLabel!", "side0#1", "eTriggerLabel#1" };
}

void tst_SyncDialog::diagram()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QStringList, expected);
    QStringList seen;
    QCOMPARE(runSyncDialog(scenario,
                 [&](QDialog* dialog) {
                     QWidget* diagram = dialog->findChild<QWidget*>(QStringLiteral("diagram"));
                     QVERIFY(diagram);
                     for (const QString& query : expected)
                         seen.append(describe(diagram, query));
                 }),
        0);
    QCOMPARE(seen, expected);
}

QTEST_MAIN(tst_SyncDialog)
#include "tst_syncdialog.moc"
