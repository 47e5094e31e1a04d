#include "host/HST_Scenario.h"

#include <QDir>
#include <QtTest>

class tst_Scenario : public QObject
{
    Q_OBJECT

private slots:
    void refusesBrokenScenario_data();
    void refusesBrokenScenario();
    void defaultsFillOmittedKeys();
    void shippedScenariosLoad_data();
    void shippedScenariosLoad();
    void missingFileIsNamed();
};

void tst_Scenario::refusesBrokenScenario_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("problem");

    QTest::newRow("not JSON") << QByteArray("{\"mode\": 1,") << QString() << "not JSON";
    QTest::newRow("top level is a list") << QByteArray("[]") << "(top level)"
                                         << "expected an object";
    QTest::newRow("unknown top-level key") << QByteArray("{\"camera\": []}") << "\"camera\""
                                           << "unknown key";
    QTest::newRow("unknown camera key")
        << QByteArray("{\"cameras\": [{\"ip\": \"10.0.0.1\", \"colour\": 1}]}")
        << "\"cameras[0].colour\""
        << "unknown key";
    QTest::newRow("mode as text") << QByteArray("{\"mode\": \"live\"}") << "\"mode\""
                                  << "expected an integer, found a string";
    QTest::newRow("mode out of range") << QByteArray("{\"mode\": 3}") << "\"mode\""
                                       << "outside 0 to 2";
    QTest::newRow("fractional trigger mode")
        << QByteArray("{\"cameras\": [{\"triggerMode\": 1.5}]}") << "\"cameras[0].triggerMode\""
        << "expected an integer";
    QTest::newRow("flag as number")
        << QByteArray("{\"cameras\": [{\"dummy\": 1}]}") << "\"cameras[0].dummy\""
        << "expected a boolean";
    QTest::newRow("type list holds text")
        << QByteArray("{\"syncCapableTypes\": [1, \"2\"]}") << "\"syncCapableTypes[1]\""
        << "expected an integer";
    QTest::newRow("cameras not a list") << QByteArray("{\"cameras\": {}}") << "\"cameras\""
                                        << "expected a list, found an object";
    QTest::newRow("duplicate camera address") << QByteArray(
        "{\"cameras\": [{\"ip\": \"10.0.0.1\"}, {\"ip\": \"10.0.0.2\"}, "
        "{\"ip\": \"10.0.0.1\"}]}") << "\"cameras[2].ip\""
                                              << "duplicate camera address 10.0.0.1";
    // The second camera's default address collides with the first one's explicit address.
    QTest::newRow("default address collides")
        << QByteArray("{\"cameras\": [{\"ip\": \"192.168.0.11\"}, {}]}") << "\"cameras[1].ip\""
        << "duplicate camera address";
    QTest::newRow("address not dotted")
        << QByteArray("{\"cameras\": [{\"ip\": \"10.0.0.256\"}]}") << "\"cameras[0].ip\""
        << "not a dotted IPv4 address";
    QTest::newRow("sync result unknown")
        << QByteArray("{\"applySync\": {\"result\": \"fail\"}}") << "\"applySync.result\""
        << "neither \"ok\" nor \"error\"";
    QTest::newRow("negative delay")
        << QByteArray("{\"applySync\": {\"delayMs\": -1}}") << "\"applySync.delayMs\""
        << "outside";
    QTest::newRow("hub state unknown")
        << QByteArray("{\"hubs\": [{\"state\": \"off\"}]}") << "\"hubs[0].state\""
        << "neither";
    QTest::newRow("hub address change key unknown")
        << QByteArray("{\"hubs\": [{\"changeAddress\": {\"result\": \"ok\", \"delay\": 5}}]}")
        << "\"hubs[0].changeAddress.delay\""
        << "unknown key";
    QTest::newRow("hub comes up at an unknown time")
        << QByteArray("{\"hubs\": [{\"connectsOn\": \"later\"}]}") << "\"hubs[0].connectsOn\""
        << "is not";
    QTest::newRow("hub state given twice")
        << QByteArray("{\"hubs\": [{\"state\": \"connected\", \"connectsOn\": \"never\"}]}")
        << "\"hubs[0].connectsOn\""
        << "not both";
    QTest::newRow("preference value is a list")
        << QByteArray("{\"prefs\": {\"sync/nrack\": [1]}}") << "\"prefs.sync/nrack\""
        << "expected a boolean, number or string";
    QTest::newRow("fault of an operation the host can't fail")
        << QByteArray("{\"faults\": {\"translate\": \"x\"}}") << "\"faults.translate\""
        << "unknown key";
    QTest::newRow("generator not an object")
        << QByteArray("{\"generator\": true}") << "\"generator\""
        << "expected an object";
}

void tst_Scenario::refusesBrokenScenario()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, key);
    QFETCH(QString, problem);

    HST_Scenario scenario;
    scenario.files = 7;
    QString error;
    QVERIFY(!HST_Scenario::fromJson(json, QStringLiteral("broken.json"), scenario, error));
    QVERIFY2(error.startsWith(QLatin1String("broken.json: ")), qPrintable(error));
    QVERIFY2(error.contains(key), qPrintable(error));
    QVERIFY2(error.contains(problem), qPrintable(error));
    // A refused scenario leaves the target untouched.
    QCOMPARE(scenario.files, 7);
}

void tst_Scenario::defaultsFillOmittedKeys()
{
    HST_Scenario scenario;
    QString error;
    QVERIFY2(HST_Scenario::fromJson("{\"cameras\": [{}, {\"name\": \"B\", \"documents\": 2}], "
                                    "\"hubs\": [{}], \"prefs\": {\"a\": 1, \"b\": 1.5, "
                                    "\"c\": true, \"d\": \"x\"}}",
                 QStringLiteral("s"), scenario, error),
        qPrintable(error));
    QCOMPARE(scenario.mode, 0);
    QCOMPARE(scenario.syncCapableTypes, QList<int> { 1 });
    QCOMPARE(scenario.cameras.size(), 2);
    QCOMPARE(scenario.cameras.at(0).name, QStringLiteral("Camera 1"));
    QCOMPARE(scenario.cameras.at(0).ip, QStringLiteral("192.168.0.10"));
    QCOMPARE(scenario.cameras.at(1).ip, QStringLiteral("192.168.0.11"));
    QCOMPARE(scenario.cameras.at(1).documents, 2);
    QCOMPARE(scenario.cameras.at(0).triggerMode, 1);
    QVERIFY(scenario.applySync.ok);
    QCOMPARE(scenario.hubs.at(0).connected, true);
    QVERIFY(!scenario.hubs.at(0).frequencies.isEmpty());
    QVERIFY(!scenario.visa);
    // Preference values keep their JSON type: an integral number is an int.
    QCOMPARE(scenario.prefs.value("a").type(), QVariant::Int);
    QCOMPARE(scenario.prefs.value("b").type(), QVariant::Double);
    QCOMPARE(scenario.prefs.value("c").type(), QVariant::Bool);
    QCOMPARE(scenario.prefs.value("d").type(), QVariant::String);
}

void tst_Scenario::shippedScenariosLoad_data()
{
    QTest::addColumn<QString>("path");
    const QDir dir(QStringLiteral(SYNC_SOURCE_DIR "/host/scenarios"));
    const QStringList files = dir.entryList({ QStringLiteral("*.json") }, QDir::Files);
    QVERIFY(files.contains(QStringLiteral("four-cameras.json")));
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << dir.filePath(file);
}

void tst_Scenario::shippedScenariosLoad()
{
    QFETCH(QString, path);
    HST_Scenario scenario;
    QString error;
    QVERIFY2(HST_Scenario::fromFile(path, scenario, error), qPrintable(error));
    QCOMPARE(scenario.source, path);
}

void tst_Scenario::missingFileIsNamed()
{
    HST_Scenario scenario;
    QString error;
    QVERIFY(!HST_Scenario::fromFile(QStringLiteral("/nonexistent/s.json"), scenario, error));
    QVERIFY2(error.startsWith(QLatin1String("/nonexistent/s.json: ")), qPrintable(error));
}

QTEST_GUILESS_MAIN(tst_Scenario)
#include "tst_scenario.moc"
