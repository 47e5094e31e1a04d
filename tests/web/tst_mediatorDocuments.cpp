// What pages read of the host through any mediator: the control status map, the device lists,
// the selection of documents, the preference setters' update rule, units and range; against
// the reference host in the same process, whose scenario sets the state.
#include "../ScenarioHost.h"

#include "host/HST_Recorder.h"
#include "plugin/SharedKeys.h"
#include "web/JS_Mediator_Page.h"

#include <QAbstractButton>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>

class tst_MediatorDocuments : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void controlStatus_data();
    void controlStatus();
    void deviceListFilter_data();
    void deviceListFilter();
    void deviceEntryInTheHostsOrder();
    void throwingDocumentKeepsItsEntry();
    void setterUpdateRule_data();
    void setterUpdateRule();
    void selection_data();
    void selection();
    void rangeMax_data();
    void rangeMax();
    void calibrationUnitsFollowUnitSystem();

private:
    bool start(const QByteArray& scenario);
    QList<QJsonObject> events(const QString& call) const { return m_recorder->events(call); }
    QJsonObject status();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    std::unique_ptr<JS_Mediator_Page> m_mediator;
    // Every box the host shows is answered with its first button, as a user would.
    QTimer m_boxes;
};

void tst_MediatorDocuments::init()
{
    m_dir.reset(new QTemporaryDir);
    m_recorder.reset(new HST_Recorder);
    m_boxes.setInterval(10);
    connect(&m_boxes, &QTimer::timeout, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->buttons().value(0)->click();
    });
    m_boxes.start();
}

void tst_MediatorDocuments::cleanup()
{
    m_boxes.stop();
    m_mediator.reset();
    m_host.reset();
    m_recorder.reset();
}

bool tst_MediatorDocuments::start(const QByteArray& scenario)
{
    QString error;
    m_host = makeScenarioHost(scenario, m_recorder.get(), *m_dir, error);
    if (!m_host) {
        qWarning("%s", qPrintable(error));
        return false;
    }
    m_mediator.reset(new JS_Mediator_Page(m_host.get(), QStringLiteral("page")));
    m_recorder->clear();
    return true;
}

QJsonObject tst_MediatorDocuments::status()
{
    return QJsonDocument::fromJson(m_mediator->getControlStatus().toUtf8()).object();
}

void tst_MediatorDocuments::controlStatus_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QVariantMap>("expected");

    QTest::newRow("idle host in camera mode")
        << QByteArray(R"({"cameras": [{}]})")
        << QVariantMap { { "IsLiveMode", true }, { "IsMemoryMode", false }, { "IsFileMode", false },
               { "IsSingleWindow", true }, { "IsNoneDocument", false }, { "IsNotRecording", true },
               { "IsRecording", false }, { "IsNotUndo", true }, { "IsNotRedo", true },
               { "IsNoneWaveformData", true }, { "IsLiveNoAutoDownloadSetting", true },
               { "IsCurrentDisconnected", false }, { "IsModalDialogOpening", false } };
    QTest::newRow("memory mode turns off what needs camera mode")
        << QByteArray(R"({"mode": 1, "cameras": [{"rostraLocked": true}], "status": {
               "IsAutoExpoting": true, "IsNotCurrentAutoFocus": true, "IsRostra": true,
               "IsAllRostraLockDevice": true}})")
        << QVariantMap { { "IsLiveMode", false }, { "IsMemoryMode", true },
               { "IsLiveNoAutoDownloadSetting", false }, { "IsAutoExpoting", false },
               { "IsNotCurrentAutoFocus", false }, { "IsRostra", true },
               { "IsRostraLockDevice", false }, { "IsAllRostraLockDevice", false } };
    QTest::newRow("camera mode passes the add-on's and auto focus states")
        << QByteArray(R"({"cameras": [{"rostraLocked": true}], "status": {
               "IsAutoExpoting": true, "IsNotCurrentAutoFocus": true, "IsRostra": true,
               "IsAllRostraLockDevice": true}})")
        << QVariantMap { { "IsAutoExpoting", true }, { "IsNotCurrentAutoFocus", true },
               { "IsRostraLockDevice", true }, { "IsAllRostraLockDevice", true } };
    QTest::newRow("file mode") << QByteArray(R"({"mode": 2, "files": 1})")
                               << QVariantMap { { "IsFileMode", true }, { "IsLiveMode", false },
                                      { "IsCurrentDisconnected", true } };
    QTest::newRow("no windows, nothing selected")
        << QByteArray("{}")
        << QVariantMap { { "IsNoneWindow", true }, { "IsSingleWindow", false },
               { "IsMultiWindow", false }, { "IsSingleSelectedDocument", false },
               { "IsNoneDocument", true }, { "IsCurrentDisconnected", false } };
    // The single-selection entry follows the windows, not the selection.
    QTest::newRow("two windows, one selected")
        << QByteArray(R"({"cameras": [{}, {}]})")
        << QVariantMap { { "IsNoneWindow", false }, { "IsMultiWindow", true },
               { "IsSingleSelectedDocument", false }, { "IsNoneDocument", false } };
    QTest::newRow("current camera not connected")
        << QByteArray(R"({"cameras": [{"connected": false}]})")
        << QVariantMap { { "IsCurrentDisconnected", true } };
    const struct
    {
        int value;
        const char* name;
    } recording[] = { { 0, "IsNotRecording" }, { 1, "IsCTSReady" }, { 2, "IsReady" },
        { 3, nullptr }, { 4, "IsRecordingError" } };
    for (const auto& row : recording) {
        QVariantMap expected;
        for (const char* name : { "IsNotRecording", "IsCTSReady", "IsReady", "IsRecordingError" })
            expected.insert(QLatin1String(name), row.name && qstrcmp(row.name, name) == 0);
        QTest::addRow("recording status %d", row.value)
            << QStringLiteral(R"({"recordingStatus": %1})").arg(row.value).toUtf8() << expected;
    }
    QTest::newRow("undo and redo, tool and preference from the scenario")
        << QByteArray(R"({"cameras": [{}], "prefs": {"recording/AutoDownload": true},
               "status": {"IsNotUndo": false, "IsNotRedo": false, "IsImageOverlay": true}})")
        << QVariantMap { { "IsNotUndo", false }, { "IsNotRedo", false }, { "IsImageOverlay", true },
               { "IsLiveNoAutoDownloadSetting", false } };
}

void tst_MediatorDocuments::controlStatus()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QVariantMap, expected);
    QVERIFY(start(scenario));
    const QJsonObject map = status();
    QCOMPARE(map.size(), STATUS_COUNT);
    for (const QString& name : STATUS_NAMES)
        QVERIFY2(map.value(name).isBool(), qPrintable(name));
    for (auto it = expected.begin(); it != expected.end(); ++it)
        QVERIFY2(map.value(it.key()).toBool() == it.value().toBool(), qPrintable(it.key()));
}

void tst_MediatorDocuments::deviceListFilter_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("connectedOnly");
    QTest::addColumn<bool>("isMinilist");
    QTest::addColumn<QStringList>("keys");

    const QStringList all { "1", "2", "3" };
    QTest::newRow("camera mode, connected only") << 0 << true << true << QStringList { "1" };
    QTest::newRow("camera mode, all devices") << 0 << false << true << all;
    QTest::newRow("memory mode ignores the filter") << 1 << true << true << all;
    QTest::newRow("file mode ignores the filter") << 2 << true << true << all;
    QTest::newRow("the full list never filters") << 0 << true << false << all;
}

void tst_MediatorDocuments::deviceListFilter()
{
    QFETCH(int, mode);
    QFETCH(bool, connectedOnly);
    QFETCH(bool, isMinilist);
    QFETCH(QStringList, keys);
    QVERIFY(start(QStringLiteral(R"({"mode": %1, "cameras": [{}, {"connected": false}],
        "files": 1})")
                      .arg(mode)
                      .toUtf8()));
    m_mediator->setConnectedCameraShowing(connectedOnly);
    QCOMPARE(m_mediator->getConnectedCameraShowing(), connectedOnly);
    QStringList listed;
    for (const QVariant& entry : m_mediator->getDeviceInfoList(isMinilist))
        listed << QJsonDocument::fromJson(entry.toString().toUtf8())
                      .object()
                      .value(QStringLiteral("key"))
                      .toString();
    QCOMPARE(listed, keys);
}

void tst_MediatorDocuments::deviceEntryInTheHostsOrder()
{
    // An empty device name falls back to the model; marks are class names for the page.
    QVERIFY(start(R"({"cameras": [{"name": "Front", "ip": "10.0.0.5", "deviceName": "",
        "model": "HX-9 model 2", "mobile": true, "dummy": true, "functions": [117, 112],
        "wifiConnected": true, "linkSpeed": true}], "files": 1})"));
    const QVariantList entries = m_mediator->getDeviceInfoList(false);
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries.at(0).toString(),
        QStringLiteral(R"({"key":"1","cameraname":"Front","devicename":"HX-9 model 2",)"
                       R"("ipaddress":"10.0.0.5","headno":1,"selected":"ui-selected",)"
                       R"("found":"found","mobile":"mobile","dummy":"dummy",)"
                       R"("shutdown":"sup-shutdown","sup-wifi":"sup-wifi","con-wifi":"connected",)"
                       R"("sup-linkspeed":"sup-linkspeed"})"));
    const QJsonObject file = QJsonDocument::fromJson(entries.at(1).toString().toUtf8()).object();
    QCOMPARE(file.value(QStringLiteral("found")).toString(), QString());
    QCOMPARE(file.value(QStringLiteral("selected")).toString(), QString());
}

void tst_MediatorDocuments::throwingDocumentKeepsItsEntry()
{
    QVERIFY(start(R"({"cameras": [{}, {}],
        "faults": {"document.isMobile": {"text": "camera gone", "steps": [0]}}})"));
    const QVariantList entries = m_mediator->getDeviceInfoList(false);
    QCOMPARE(entries.size(), 2);
    const QJsonObject broken = QJsonDocument::fromJson(entries.at(0).toString().toUtf8()).object();
    QCOMPARE(broken.value(QStringLiteral("key")).toString(), QStringLiteral("1"));
    QCOMPARE(broken.value(QStringLiteral("found")).toString(), QString());
    QVERIFY(!broken.contains(QStringLiteral("mobile")));
    const QJsonObject whole = QJsonDocument::fromJson(entries.at(1).toString().toUtf8()).object();
    QCOMPARE(whole.value(QStringLiteral("found")).toString(), QStringLiteral("found"));
    QCOMPARE(whole.size(), 13);
    QCOMPARE(events(QStringLiteral("reportException")).size(), 1);
    QCOMPARE(
        events(QStringLiteral("reportException")).first().value(QStringLiteral("text")).toString(),
        QStringLiteral("camera gone"));
}

void tst_MediatorDocuments::setterUpdateRule_data()
{
    QTest::addColumn<QString>("setter");
    QTest::addColumn<int>("traced");

    QTest::newRow("int, update left out") << "int" << 1;
    QTest::newRow("int, update false") << "int false" << 0;
    QTest::newRow("string by the variant setter") << "dq" << 1;
    QTest::newRow("bool, update false") << "bool false" << 0;
}

void tst_MediatorDocuments::setterUpdateRule()
{
    QFETCH(QString, setter);
    QFETCH(int, traced);
    QVERIFY(start(R"({"cameras": [{}]})"));
    const QString key = QStringLiteral("t/key");
    if (setter == QLatin1String("int"))
        m_mediator->setPrefInt(key, 5);
    else if (setter == QLatin1String("int false"))
        m_mediator->setPrefInt(key, 5, false);
    else if (setter == QLatin1String("dq"))
        m_mediator->setPrefDQString(key, QStringLiteral("five"));
    else
        m_mediator->setPrefBool(key, true, false);

    QCOMPARE(events(QStringLiteral("setPref")).size(), 1);
    QCOMPARE(events(QStringLiteral("updateUI")).size(), traced);
    int enter = 0;
    int leave = 0;
    for (const QJsonObject& event : events(QStringLiteral("log"))) {
        const QString text = event.value(QStringLiteral("text")).toString();
        enter += text.startsWith(QLatin1String("[ENTER] \"JS_Mediator::setPref"));
        leave += text.startsWith(QLatin1String("[LEAVE] \"JS_Mediator::setPref"));
    }
    QCOMPARE(enter, traced);
    QCOMPARE(leave, traced);
}

void tst_MediatorDocuments::selection_data()
{
    QTest::addColumn<QString>("docKey");
    QTest::addColumn<QList<int>>("selected");

    QTest::newRow("one key") << "2" << QList<int> { 2 };
    QTest::newRow("a text that is no number clears") << "abc" << QList<int>();
    QTest::newRow("an empty text clears") << "" << QList<int>();
    QTest::newRow("a key that has gone selects nothing") << "9" << QList<int>();
    QTest::newRow("all, the current one stays current") << "*" << QList<int> { 1, 2, 3 };
}

void tst_MediatorDocuments::selection()
{
    QFETCH(QString, docKey);
    QFETCH(QList<int>, selected);
    QVERIFY(start(R"({"cameras": [{}, {}, {}]})"));
    m_host->makeCurrent(3);
    if (docKey == QLatin1String("*"))
        m_mediator->selectAllDocs();
    else
        m_mediator->setSelectDoc(docKey);

    QList<int> now;
    for (const QJsonValue key :
        events(QStringLiteral("selection")).last().value(QStringLiteral("keys")).toArray())
        now << key.toInt();
    QCOMPARE(now, selected);
    QCOMPARE(m_host->currentDocumentKey(), 3);
    // One refresh of everything at the end, the mask the operation runs with.
    const QList<QJsonObject> updates = events(QStringLiteral("updateUI"));
    QCOMPARE(updates.size(), 1);
    QCOMPARE(updates.first().value(QStringLiteral("mask")).toInt(), 63);
    QCOMPARE(m_mediator->getSelectedDockey(), (QVariantList { "1", "2", "3" }));
}

void tst_MediatorDocuments::rangeMax_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<int>("expected");

    QTest::newRow("real depth off") << QByteArray(R"({"cameras": [{"bitDepth": 12}]})") << 255;
    QTest::newRow("8-bit format") << QByteArray(
        R"({"prefs": {"display/DisplayWithRealBitDepth": true},
               "cameras": [{"bitDepth": 8, "realBitDepth": 12}]})")
                                  << 255;
    QTest::newRow("above 8 bits the sensor's depth counts")
        << QByteArray(R"({"prefs": {"display/DisplayWithRealBitDepth": true},
               "cameras": [{"bitDepth": 16, "realBitDepth": 10}]})")
        << 1023;
    QTest::newRow("a file has no image format")
        << QByteArray(R"({"prefs": {"display/DisplayWithRealBitDepth": true}, "files": 1})") << 255;
    QTest::newRow("no document") << QByteArray(R"({"prefs":
               {"display/DisplayWithRealBitDepth": true}})")
                                 << 255;
}

void tst_MediatorDocuments::rangeMax()
{
    QFETCH(QByteArray, scenario);
    QFETCH(int, expected);
    QVERIFY(start(scenario));
    QCOMPARE(m_mediator->getRangeMax(), expected);
}

void tst_MediatorDocuments::calibrationUnitsFollowUnitSystem()
{
    QVERIFY(start("{}"));
    QCOMPARE(m_mediator->getCalibrationUnits(),
        QStringLiteral(
            R"x([{"value":"Inches (in)","view":"inch"},)x"
            R"x({"value":"Feet (ft)","view":"feet"},{"value":"Yard (yd)","view":"yard"}])x"));
    m_host->setPrefInt(PREF_KEY_CUSTOMIZE_UNIT_SYSTEM, 1);
    const QJsonArray metric
        = QJsonDocument::fromJson(m_mediator->getCalibrationUnits().toUtf8()).array();
    QCOMPARE(metric.size(), 3);
    QCOMPARE(metric.first().toObject().value(QStringLiteral("value")).toString(),
        QString::fromUtf8("Micro (\xc2\xb5m)"));
    QCOMPARE(metric.first().toObject().value(QStringLiteral("view")).toString(),
        QString::fromUtf8("\xc2\xb5m"));
}

QTEST_MAIN(tst_MediatorDocuments)
#include "tst_mediatorDocuments.moc"
