// The file dialog's mediator against the reference host: the rows of its table in the camera,
// file and media forms, the skip setting, the saved check, the drives, and what it answers to
// bad input from a page.
#include "../ScenarioHost.h"

#include "host/HST_Document.h"
#include "save/FileDialogKind.h"
#include "save/FileDialogRecords.h"
#include "save/JS_Mediator_FileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>

namespace {

// "r1 k1 p1 s=true", then "field=value" for each field asked for that the record has.
QStringList summary(const QString& json, const QStringList& fields)
{
    QStringList rows;
    for (const QJsonValue& value : QJsonDocument::fromJson(json.toUtf8()).array()) {
        const QJsonObject record = value.toObject();
        QString row
            = QStringLiteral("r%1 k%2 p%3 s=%4")
                  .arg(record.value("recid").toInt())
                  .arg(record.value("dockey").toString(), record.value("partitionno").toString(),
                      record.value("selected").toString());
        for (const QString& field : fields) {
            if (record.contains(field))
                row += QStringLiteral(" %1=%2").arg(
                    field, record.value(field).toVariant().toString());
        }
        rows << row;
    }
    return rows;
}

const char twoPartitions[] = R"("partitions": [{"frames": 100}, {"frames": 0}, {"frames": 10}])";

} // namespace

class tst_FileDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void listRows_data();
    void listRows();
    void savedCheckMarksMediaRows_data();
    void savedCheckMarksMediaRows();
    void skipFrames_data();
    void skipFrames();
    void skipRange_data();
    void skipRange();
    void sdDrives_data();
    void sdDrives();
    void badInputFromThePage_data();
    void badInputFromThePage();
    void deleteFileTakesOnlyItsOwn();
    void convertDataName_data();
    void convertDataName();

private:
    HST_Host* start(const QByteArray& scenario);
    QStringList reported() const;

    // The preferences of each start.
    std::unique_ptr<QTemporaryDir> m_prefsDir;
    QTemporaryDir m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    std::unique_ptr<JS_Mediator_FileDialog> m_mediator;
    QTimer m_answerer;
};

void tst_FileDialog::init()
{
    // A reported failure shows the host's box; it is answered.
    connect(&m_answerer, &QTimer::timeout, this, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    m_answerer.start(10);
}

void tst_FileDialog::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_mediator.reset();
    m_host.reset();
    m_recorder.reset();
}

HST_Host* tst_FileDialog::start(const QByteArray& scenario)
{
    m_mediator.reset();
    m_host.reset();
    m_recorder.reset(new HST_Recorder);
    m_prefsDir.reset(new QTemporaryDir);
    QString error;
    m_host = makeScenarioHost(scenario, m_recorder.get(), *m_prefsDir, error);
    if (!m_host)
        qWarning("%s", qPrintable(error));
    return m_host.get();
}

QStringList tst_FileDialog::reported() const
{
    QStringList texts;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("reportException")))
        texts << event.value(QStringLiteral("text")).toString();
    return texts;
}

void tst_FileDialog::listRows_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("temporary");
    // A document's key and partition to make current first, or "".
    QTest::addColumn<QString>("current");
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QStringList>("rows");

    const QString save = QLatin1String(FileDialogKind::save);
    QTest::newRow("live: the current partition only, selected as its document")
        << QByteArray(R"({"cameras": [{)") + twoPartitions + "}, {" + twoPartitions + "}]}" << save
        << false << "" << QStringList() << QStringList { "r1 k1 p1 s=true", "r2 k2 p1 s=false" };
    QTest::newRow("live, loop recording: every partition with frames")
        << QByteArray(
               R"({"prefs": {"recording/LoopRecord": true, "recording/AutoIncrementPartition":
            true}, "cameras": [{)")
            + twoPartitions + "}]}"
        << save << false << "" << QStringList()
        << QStringList { "r1 k1 p1 s=true", "r2 k1 p3 s=false" };
    QTest::newRow("live, stopping after the last: none before the current")
        << QByteArray(
               R"({"prefs": {"recording/LoopRecord": true, "recording/AutoIncrementPartition":
            true, "recording/StopRecordingAfterLastPartition": true}, "cameras": [{)")
            + twoPartitions + "}]}"
        << save << false << "1:3" << QStringList() << QStringList { "r1 k1 p3 s=true" };
    QTest::newRow("memory: an empty partition takes its number, not a recid")
        << QByteArray(R"({"mode": 1, "cameras": [{)") + twoPartitions + "}]}" << save << false << ""
        << QStringList { "capacity", "resolution" }
        << QStringList { "r1 k1 p1 s=true capacity=30720000 resolution=640x480",
               "r2 k1 p3 s=false capacity=3072000 resolution=640x480" };
    QTest::newRow("loop saving preselects every recorded partition")
        << QByteArray(R"({"mode": 1, "loopSave": {"mode": true, "active": true}, "cameras": [{)")
            + twoPartitions + "}, {}]}"
        << save << false << "" << QStringList()
        << QStringList { "r1 k1 p1 s=true", "r2 k1 p3 s=true", "r3 k2 p1 s=true" };
    QTest::newRow("loop saving needs both tests")
        << QByteArray(R"({"mode": 1, "loopSave": {"mode": true}, "cameras": [{)") + twoPartitions
            + "}]}"
        << save << false << "" << QStringList()
        << QStringList { "r1 k1 p1 s=true", "r2 k1 p3 s=false" };
    QTest::newRow("a camera that can't be saved is left out, recids run on")
        << QByteArray(R"({"mode": 1, "cameras": [{"savable": false}, {}, {}]})") << save << false
        << "" << QStringList() << QStringList { "r1 k2 p1 s=false", "r2 k3 p1 s=false" };
    QTest::newRow("camera form: multiskip is the first test only; report fields and customs")
        << QByteArray(R"({"mode": 1, "cameras": [{"multiSkipB": true, "customData": [
            {"name": "TestNo", "value": "7"}, {"name": "Speed", "value": "3", "unit": "m/s"}]},
            {"multiSkipA": true}]})")
        << save << false << "" << QStringList { "multiskip", "TestNo", "Custom_1", "Project" }
        << QStringList { "r1 k1 p1 s=true multiskip=false TestNo=7 Custom_1=3 m/s",
               "r2 k2 p1 s=false multiskip=true" };
    QTest::newRow("files: either multiskip test, the document's selection as it is")
        << QByteArray(R"({"mode": 2, "files": [{"multiSkipB": true, "savable": false}, )"
                      R"({"path": "/data/b.dat"}]})")
        << save << false << "" << QStringList { "multiskip", "path", "cameraname" }
        << QStringList { "r1 k1 p1 s=true multiskip=true path=/simulated/file-1.dat",
               "r2 k2 p1 s=false multiskip=false path=/data/b.dat" };
    QTest::newRow("temporary files go by name")
        << QByteArray(R"({"mode": 2, "files": [{"name": "beta", "temporary": true}, )"
                      R"({"name": "alpha", "temporary": true}, {"name": "kept"}]})")
        << save << true << "" << QStringList { "filename" }
        << QStringList { "r1 k2 p1 s=false filename=alpha", "r2 k1 p1 s=true filename=beta" };
    QTest::newRow("media: recordings keep the medium's order and carry their numbers")
        << QByteArray(R"({"mode": 2, "cameras": [{"media": {"sd": [{"drive": "E:", "recordings":
            [{"name": "zeta", "frames": 5}, {"name": "alpha", "frames": 0}, {"name": "beta"}]}]}}]})")
        << save << true << "sd" << QStringList { "dataname", "path", "serialno", "datano", "style" }
        << QStringList { "r1 k2 p1 s=false dataname=zeta path=E: serialno=100000 datano=1",
               "r2 k4 p1 s=false dataname=beta path=E: serialno=100000 datano=3" };
}

void tst_FileDialog::listRows()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QString, kind);
    QFETCH(bool, temporary);
    QFETCH(QString, current);
    QFETCH(QStringList, fields);
    QVERIFY(start(scenario));
    if (current == QLatin1String("sd")) {
        m_host->openSdDrive(QStringLiteral("E:"));
    } else if (!current.isEmpty()) {
        const QStringList parts = current.split(':');
        m_host->document(parts.at(0).toInt())->selectPartition(parts.at(1).toInt());
    }
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), kind));
    QTEST(summary(m_mediator->list(temporary), fields), "rows");
    QVERIFY(reported().isEmpty());
}

void tst_FileDialog::savedCheckMarksMediaRows_data()
{
    QTest::addColumn<bool>("done");
    QTest::addColumn<QStringList>("saved"); // serial:data
    QTest::addColumn<QStringList>("styles");
    QTest::newRow("no style before the check")
        << false << QStringList { "100000:1" } << QStringList { "", "" };
    QTest::newRow("after it, what wasn't found is red")
        << true << QStringList { "100000:2" } << QStringList { "background-color:red;", "" };
    QTest::newRow("nothing found: all red")
        << true << QStringList()
        << QStringList { "background-color:red;", "background-color:red;" };
}

void tst_FileDialog::savedCheckMarksMediaRows()
{
    QFETCH(bool, done);
    QFETCH(QStringList, saved);
    QVERIFY(start(R"({"mode": 2, "cameras": [{"media": {"storageUnit": [{"drive": "F:",
        "recordings": [{"name": "a"}, {"name": "b"}]}]}}]})"));
    m_host->openStorageUnit(0, 5, 0, QStringLiteral("F:"));
    FileDialogRecords::Pairs pairs;
    for (const QString& pair : saved)
        pairs.append({ pair.section(':', 0, 0), pair.section(':', 1) });
    FileDialogRecords records(m_host.get(), FileDialogKind(QLatin1String(FileDialogKind::save)));
    records.setSavedCheck(done, pairs);
    QStringList styles;
    for (const QJsonValue& row : QJsonDocument::fromJson(records.list(true).toUtf8()).array())
        styles << row.toObject().value("style").toString();
    QTEST(styles, "styles");
}

void tst_FileDialog::skipFrames_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("value");
    QTest::addColumn<QVariant>("frames"); // invalid: not written
    QTest::addColumn<QVariant>("milliseconds");
    QTest::addColumn<bool>("refused");
    QTest::newRow("frames: cut to a whole count") << 0 << 3.7 << QVariant(3) << QVariant() << false;
    QTest::newRow("frames: below 1 refused") << 0 << -2.0 << QVariant() << QVariant() << true;
    QTest::newRow("frames: beyond an int refused") << 0 << 1e12 << QVariant() << QVariant() << true;
    QTest::newRow("frames: not a number refused")
        << 0 << std::numeric_limits<double>::quiet_NaN() << QVariant() << QVariant() << true;
    // 500 and 250 frames a second: steps of 4 ms up to the shortest partition's 400 ms.
    QTest::newRow("time: the nearest step, and its frames at the common rate")
        << 1 << 10.5 << QVariant(3) << QVariant(12.0) << false;
    QTest::newRow("time: a tie goes to the later step")
        << 1 << 10.0 << QVariant(3) << QVariant(12.0) << false;
    QTest::newRow("time: beyond the longest, the longest")
        << 1 << 1e9 << QVariant(100) << QVariant(400.0) << false;
    QTest::newRow("time: negative refused") << 1 << -1.0 << QVariant() << QVariant() << true;
}

void tst_FileDialog::skipFrames()
{
    QFETCH(int, mode);
    QFETCH(double, value);
    QFETCH(QVariant, frames);
    QFETCH(QVariant, milliseconds);
    QFETCH(bool, refused);
    QVERIFY(start(R"({"mode": 1, "cameras": [{"partitions": [{"frames": 100, "rate": 250}]},
        {"partitions": [{"frames": 900, "rate": 500}]}]})"));
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), FileDialogKind::save));
    m_mediator->setSkipMode(mode);
    m_mediator->refreshSkipFrame({ { "1", QVariantList { 1 } }, { "2", QVariantList { 1 } } });
    m_recorder->clear();
    m_mediator->setSkipFrames(value);
    QCOMPARE(reported().size(), refused ? 1 : 0);
    QString written;
    QCOMPARE(m_host->getPrefString(written, "export/skipsaveframe", QVariant()),
        frames.isValid() ? frames.toString() : QStringLiteral("1"));
    if (milliseconds.isValid())
        QCOMPARE(m_host->getPrefVariant("export/skipsavemsec", QVariant()).toDouble(),
            milliseconds.toDouble());
}

void tst_FileDialog::skipRange_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QVariantMap>("targets");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("modeAfter");
    const QByteArray rates = R"({"mode": 1, "cameras": [{"partitions": [{"frames": 300,
        "rate": 1000}, {"frames": 0, "rate": 3000}]}, {"partitions": [{"frames": 40,
        "rate": 600}]}]})";
    QTest::newRow("frames: from 1 to the shortest recorded partition")
        << rates << 0 << QVariantMap { { "1", QVariantList { 1, 2 } }, { "2", QVariantList { 1 } } }
        << 1.0 << 40.0 << 0;
    QTest::newRow("time: a frame at the common rate, up to the shortest in time")
        << rates << 1 << QVariantMap { { "1", QVariantList { 1, 2 } }, { "2", QVariantList { 1 } } }
        << 5.0 << 200.0 << 1;
    QTest::newRow("time without any rate falls back to frames")
        << QByteArray(R"({"mode": 2, "files": [{"partitions": [{"frames": 70}]}]})") << 1
        << QVariantMap { { "1", QVariantList { 1 } } } << 1.0 << 70.0 << 0;
    QTest::newRow("keys that are no documents, partitions that are no numbers: nothing")
        << rates << 0
        << QVariantMap { { "x", QVariantList { 1 } }, { "99", QVariantList { 1 } },
               { "2", QVariantList { "two", -1 } } }
        << 1.0 << 1.0 << 0;
}

void tst_FileDialog::skipRange()
{
    QFETCH(QByteArray, scenario);
    QFETCH(int, mode);
    QFETCH(QVariantMap, targets);
    QVERIFY(start(scenario));
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), FileDialogKind::save));
    m_mediator->setSkipMode(mode);
    m_mediator->refreshSkipFrame(targets);
    QTEST(m_mediator->getSkipMinFrames(), "minimum");
    QTEST(m_mediator->getSkipMaxFrames(), "maximum");
    QTEST(m_mediator->getSkipMode(), "modeAfter");
    QVERIFY(reported().isEmpty());
}

void tst_FileDialog::sdDrives_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("drives");
    QTest::newRow("no drive: select -1") << QByteArray(R"({"cameras": [{}]})") << ""
                                         << R"({"record":[],"select":-1})";
    QTest::newRow("drives by letter, none open: the first")
        << QByteArray(R"({"cameras": [{"media": {"sd": [{"drive": "H:"}, {"drive": "E:"}]}}]})")
        << ""
        << R"({"record":[{"drivename":"E:","recid":0},{"drivename":"H:","recid":1}],"select":0})";
    QTest::newRow("the open one chosen")
        << QByteArray(R"({"cameras": [{"media": {"sd": [{"drive": "H:"}, {"drive": "E:"}]}}]})")
        << "H:"
        << R"({"record":[{"drivename":"E:","recid":0},{"drivename":"H:","recid":1}],"select":1})";
    QTest::newRow("a card taken out is no drive")
        << QByteArray(R"({"cameras": [{"media": {"sd": [{"drive": "E:", "present": false}]}}]})")
        << ""
        << R"({"record":[],"select":-1})";
}

void tst_FileDialog::sdDrives()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QString, open);
    QVERIFY(start(scenario));
    if (!open.isEmpty())
        m_host->openSdDrive(open);
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), FileDialogKind::save));
    QTEST(m_mediator->getSDDrives(), "drives");
}

void tst_FileDialog::badInputFromThePage_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("reported"); // "" when nothing
    QTest::newRow("preview of a document that has gone") << "select:9:1"
                                                         << ""
                                                         << "";
    QTest::newRow("preview of a partition it hasn't") << "select:1:7"
                                                      << ""
                                                      << "";
    QTest::newRow("preview of no size") << "select:1:1:0"
                                        << ""
                                        << "";
    QTest::newRow("an SD row that isn't there") << "sd:5"
                                                << ""
                                                << "There is no SD drive 5.";
    QTest::newRow("a storage unit drive that doesn't exist")
        << "vpuse:3"
        << ""
        << "There is no storage unit drive 3 with slot 0.";
    QTest::newRow("a locked storage unit waits for the password dialog")
        << "vpopen:5"
        << ""
        << "The dialog is not available.";
    QTest::newRow("the head of a document that has gone") << "rename:9"
                                                          << ""
                                                          << "The document 9 is no longer open.";
    QTest::newRow("sizes that are no numbers count nothing") << "capacity"
                                                             << "1.00KB"
                                                             << "";
}

void tst_FileDialog::badInputFromThePage()
{
    QFETCH(QString, call);
    QVERIFY(start(R"({"mode": 1, "cameras": [{"media": {"sd": [{"drive": "E:"}],
        "storageUnit": [{"drive": "F:", "password": "secret"}]}}]})"));
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), FileDialogKind::save));
    m_mediator->getSDDrives();
    const QStringList parts = call.split(':');
    QString result;
    if (parts.at(0) == QLatin1String("select"))
        result = m_mediator->select(
            parts.at(1).toInt(), parts.at(2).toInt(), parts.value(3, "100").toInt(), 100);
    else if (parts.at(0) == QLatin1String("sd"))
        m_mediator->selectSDDrive(parts.at(1).toInt());
    else if (parts.at(0) == QLatin1String("vpuse"))
        result = m_mediator->getVPUseRatio(0, parts.at(1).toInt(), 0);
    else if (parts.at(0) == QLatin1String("vpopen"))
        m_mediator->selectVPDrive(0, parts.at(1).toInt(), 0, QStringLiteral("F:"));
    else if (parts.at(0) == QLatin1String("rename"))
        m_mediator->convertDataName(parts.at(1).toInt(), QStringLiteral("x"), 1, true);
    else
        result = m_mediator->capcityToString({ "1024", "many", QVariantMap(), -5 });
    QTEST(result, "result");
    QFETCH(QString, reported);
    QCOMPARE(this->reported(), reported.isEmpty() ? QStringList() : QStringList { reported });
    QVERIFY(m_recorder->events(QStringLiteral("openMedia")).isEmpty());
}

void tst_FileDialog::deleteFileTakesOnlyItsOwn()
{
    QDir(m_dir.path()).mkdir(QStringLiteral("data"));
    const QString path = m_dir.filePath(QStringLiteral("data/take.qch"));
    const QString neighbour = m_dir.filePath(QStringLiteral("data/take.qchx"));
    for (const QString& file : { path, neighbour }) {
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write("x");
    }
    QVERIFY(start(QStringLiteral(R"({"mode": 2, "files": [{"path": "%1"}, {"path": "%2/data"}],
        "cameras": [{"media": {"sd": [{"drive": "E:", "recordings": [{"name": "r"}]}]}}]})")
                      .arg(path, m_dir.path())
                      .toUtf8()));
    m_host->openSdDrive(QStringLiteral("E:"));
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), FileDialogKind::save));
    // A folder, a recording on a card and a key that has gone are no files to delete.
    for (int key : { 3, 4, 99 }) {
        QVERIFY(!m_mediator->checkDeleteFile(key));
        QVERIFY(!m_mediator->deleteFile(key));
    }
    QVERIFY(QFileInfo(m_dir.filePath("data")).isDir());
    QVERIFY(m_mediator->checkDeleteFile(2));
    QVERIFY(m_mediator->deleteFile(2));
    QVERIFY(!QFile::exists(path));
    QVERIFY(QFile::exists(neighbour));
    QVERIFY(!m_host->document(2));
    QVERIFY(reported().isEmpty());
}

void tst_FileDialog::convertDataName_data()
{
    QTest::addColumn<bool>("addNumber");
    QTest::addColumn<QString>("name");
    QTest::newRow("as typed") << false << "take";
    QTest::newRow("with the sequence in six digits") << true << "take_000012";
}

void tst_FileDialog::convertDataName()
{
    QFETCH(bool, addNumber);
    QVERIFY(start(QStringLiteral(R"({"mode": 2, "prefs": {"convert/vp/datanameaddnumber": %1},
        "cameras": [{"media": {"storageUnit": [{"drive": "F:", "recordings": [{"name": "r"}]}]}}]})")
                      .arg(addNumber ? "true" : "false")
                      .toUtf8()));
    m_host->openStorageUnit(0, 5, 0, QStringLiteral("F:"));
    m_mediator.reset(new JS_Mediator_FileDialog(m_host.get(), FileDialogKind::save));
    QVERIFY(m_mediator->canConvertDataName(2));
    m_mediator->convertDataName(2, QStringLiteral("take"), 12, true);
    QString name;
    QTEST(m_host->document(2)->baseName(name), "name");
    // The medium keeps the name: opened again, the recording has it.
    m_host->openStorageUnit(0, 5, 0, QStringLiteral("F:"));
    QTEST(m_host->document(3)->baseName(name), "name");
}

QTEST_MAIN(tst_FileDialog)
#include "tst_filedialog.moc"
