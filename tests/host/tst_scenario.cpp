#include "host/HST_Scenario.h"

#include <QDir>
#include <QtTest>

// Scenarios as the host reads them: the shipped ones load, and a refused one names the file,
// the key and the problem, so that whoever wrote it can find the mistake.
class tst_Scenario : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
};

void tst_Scenario::read_data()
{
    QTest::addColumn<QString>("file"); // read from the file when set, else from json
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("error");

    const QDir dir(QStringLiteral(SYNC_SOURCE_DIR "/host/scenarios"));
    const QStringList files = dir.entryList({ QStringLiteral("*.json") }, QDir::Files);
    QVERIFY(files.contains(QStringLiteral("four-cameras.json")));
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << dir.filePath(file) << QByteArray() << QStringList();
    QTest::newRow("missing file") << "/nonexistent/s.json" << QByteArray()
                                  << QStringList { "/nonexistent/s.json: " };

    QTest::newRow("not JSON") << QString() << QByteArray("{\"mode\": 1,")
                              << QStringList { "broken.json: ", "not JSON" };
    QTest::newRow("unknown camera key")
        << QString() << QByteArray("{\"cameras\": [{\"ip\": \"10.0.0.1\", \"colour\": 1}]}")
        << QStringList { "\"cameras[0].colour\"", "unknown key" };
    QTest::newRow("mode as text") << QString() << QByteArray("{\"mode\": \"live\"}")
                                  << QStringList { "\"mode\"",
                                         "expected an integer, found a string" };
    // The second camera's default address collides with the first one's explicit address.
    QTest::newRow("default address collides")
        << QString() << QByteArray("{\"cameras\": [{\"ip\": \"192.168.0.11\"}, {}]}")
        << QStringList { "\"cameras[1].ip\"", "duplicate camera address" };
    QTest::newRow("address not dotted")
        << QString() << QByteArray("{\"cameras\": [{\"ip\": \"10.0.0.256\"}]}")
        << QStringList { "\"cameras[0].ip\"", "not a dotted IPv4 address" };
    QTest::newRow("hub state given twice")
        << QString()
        << QByteArray("{\"hubs\": [{\"state\": \"connected\", \"connectsOn\": \"never\"}]}")
        << QStringList { "\"hubs[0].connectsOn\"", "not both" };
    QTest::newRow("custom item without a name")
        << QString() << QByteArray("{\"cameras\": [{\"customData\": [{\"value\": \"1\"}]}]}")
        << QStringList { "\"cameras[0].customData[0].name\"", "no name" };
    QTest::newRow("a file's partition given twice")
        << QString()
        << QByteArray("{\"files\": [{\"partitions\": [{\"number\": 2}, {\"number\": 2}]}]}")
        << QStringList { "\"files[0].partitions[1].number\"", "duplicate partition 2" };
    QTest::newRow("firmware of four parts")
        << QString() << QByteArray("{\"cameras\": [{\"firmware\": [\"1\", \"2\", \"3\", \"4\"]}]}")
        << QStringList { "\"cameras[0].firmware\"", "not 1 to 3 parts" };
    QTest::newRow("dummy address only for a dummy camera")
        << QString() << QByteArray("{\"cameras\": [{\"ip\": \"999.999.999.1\"}]}")
        << QStringList { "\"cameras[0].ip\"", "not a dotted IPv4 address" };
    QTest::newRow("fault whose key names no operation")
        << QString() << QByteArray("{\"faults\": {\"Sync now\": \"x\"}}")
        << QStringList { "\"faults.Sync now\"", "not the name of a host operation" };
    QTest::newRow("status the host derives from its own state")
        << QString() << QByteArray("{\"status\": {\"IsNoneWindow\": true}}")
        << QStringList { "\"status.IsNoneWindow\"", "can't be set", "\"cameras\", \"files\"" };
    QTest::newRow("status name the host doesn't know")
        << QString() << QByteArray("{\"status\": {\"IsFlying\": true}}")
        << QStringList { "\"status.IsFlying\"", "not a status name" };
    QTest::newRow("recording status out of range")
        << QString() << QByteArray("{\"recordingStatus\": 5}")
        << QStringList { "\"recordingStatus\"", "outside 0 to 4" };
    QTest::newRow("fault in steps without a text")
        << QString() << QByteArray("{\"faults\": {\"translate\": {\"steps\": [1]}}}")
        << QStringList { "\"faults.translate\"", "no text" };

    // Removable media and saving.
    QTest::newRow("a drive letter that is none")
        << QString() << QByteArray(R"({"cameras": [{"media": {"sd": [{"drive": "E"}]}}]})")
        << QStringList { "\"cameras[0].media.sd[0].drive\"", "not a drive letter" };
    QTest::newRow("one drive for two slots of two cameras")
        << QString() << QByteArray(R"({"cameras": [{"media": {"sd": [{"drive": "E:"}]}},
            {"media": {"cfast": [{"drive": "e:"}]}}]})")
        << QStringList { "\"cameras[1].media.cfast[0].drive\"", "drive E: is another slot's" };
    QTest::newRow("a password on an SD card")
        << QString() << QByteArray(R"({"cameras": [{"media": {"sd": [{"password": "x"}]}}]})")
        << QStringList { "\"cameras[0].media.sd[0].password\"", "unknown key" };
    QTest::newRow("more used than there is")
        << QString()
        << QByteArray(
               R"({"cameras": [{"media": {"storageUnit": [{"capacity": 10, "used": 11}]}}]})")
        << QStringList { "\"cameras[0].media.storageUnit[0].used\"", "more than the capacity" };
    QTest::newRow("a recording's date that is none")
        << QString()
        << QByteArray(R"({"cameras": [{"media": {"cfast": [{"recordings": [{"name": "r",
            "date": "2024-13-01"}]}]}}]})")
        << QStringList { "\"cameras[0].media.cfast[0].recordings[0].date\"", "not a date" };
    QTest::newRow("a format the writer doesn't make")
        << QString() << QByteArray(R"({"writer": {"formats": ["PNG", "MOV"]}})")
        << QStringList { "\"writer.formats\"", "can't write MOV files" };
    QTest::newRow("a partition's picture that isn't there")
        << QString()
        << QByteArray(R"({"files": [{"partitions": [{"image": "/nonexistent.png"}]}]})")
        << QStringList { "\"files[0].partitions[0].image\"", "no picture file" };
    QTest::newRow("loop save given as a flag")
        << QString() << QByteArray(R"({"loopSave": true})")
        << QStringList { "\"loopSave\"", "expected an object" };
    QTest::newRow("time code value beyond a time code")
        << QString() << QByteArray("{\"timeCode\": {\"oneFrame\": 1e9}}")
        << QStringList { "\"timeCode.oneFrame\"", "beyond 9.999e8" };
    QTest::newRow("time code key the record doesn't have")
        << QString() << QByteArray("{\"timeCode\": {\"step\": 1}}")
        << QStringList { "\"timeCode.step\"", "unknown key" };
    QTest::newRow("a view turned off the quarter turns")
        << QString() << QByteArray("{\"cameras\": [{\"view\": {\"rotation\": 45}}]}")
        << QStringList { "\"cameras[0].view.rotation\"", "not 0, 90, 180 or 270" };
    QTest::newRow("a file's binning beyond 8 x 8")
        << QString() << QByteArray("{\"files\": [{\"view\": {\"binning\": 4}}]}")
        << QStringList { "\"files[0].view.binning\"", "outside 0 to 3" };
    QTest::newRow("a whole image smaller than the image")
        << QString()
        << QByteArray("{\"view\": {\"imageSize\": [800, 600], \"fullImageSize\": [640, 480]}}")
        << QStringList { "\"view.fullImageSize\"", "smaller than imageSize" };
    QTest::newRow("a negative zoom") << QString() << QByteArray("{\"view\": {\"zoom\": -1}}")
                                     << QStringList { "\"view.zoom\"", "0 (fit)" };
}

void tst_Scenario::read()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, json);
    QFETCH(QStringList, error);

    HST_Scenario scenario;
    scenario.files = 7;
    QString problem;
    const bool read = file.isEmpty()
        ? HST_Scenario::fromJson(json, QStringLiteral("broken.json"), scenario, problem)
        : HST_Scenario::fromFile(file, scenario, problem);
    QVERIFY2(read == error.isEmpty(), qPrintable(problem));
    for (const QString& part : error)
        QVERIFY2(problem.contains(part), qPrintable(problem));
    if (read)
        QCOMPARE(scenario.source, file);
    else // A refused scenario leaves the target untouched.
        QCOMPARE(scenario.files, 7);
}

QTEST_GUILESS_MAIN(tst_Scenario)
#include "tst_scenario.moc"
