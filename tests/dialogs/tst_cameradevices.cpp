// Camera settings files and presets, the device panels and the select box through the reference
// host and the real plug-in, driven as a user would; the host's settings file reader alone.
#include "host/HST_Application.h"
#include "host/HST_CameraState.h"
#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_Recorder.h"
#include "host/HST_SettingsFile.h"
#include "tests/HostRecord.h"
#include "tests/ScenarioHost.h"
#include "util/APP_Exception.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QJsonObject js(const QString& code, const QString& window = QString())
{
    QJsonObject step { { QStringLiteral("js"), code } };
    if (!window.isEmpty())
        step.insert(QStringLiteral("window"), window);
    return step;
}

QJsonObject click(const QString& button)
{
    return { { QStringLiteral("click"), button } };
}

QJsonObject file(const QString& path)
{
    return { { QStringLiteral("file"), path } };
}

QJsonArray steps(std::initializer_list<QJsonObject> list)
{
    QJsonArray array;
    for (const QJsonObject& step : list)
        array.append(step);
    return array;
}

// Front (key 1, three slots), Side (2, two slots, reboots for a preset), the multi-head Twin
// (owner 3, heads 4 and 5) and Spare (6, not connected).
QByteArray scenario(const QString& folder, int mode = 0, const QJsonObject& prefs = {})
{
    QJsonObject allPrefs = prefs;
    if (!allPrefs.contains(QStringLiteral("qsetx/path")))
        allPrefs.insert(QStringLiteral("qsetx/path"), folder);
    const QJsonObject root { { "mode", mode }, { "prefs", allPrefs },
        { "cameras",
            QJsonArray { QJsonObject { { "name", "Front" }, { "ip", "192.168.0.11" },
                             { "presets", QJsonArray { "Daylight", "", "" } },
                             { "partitions",
                                 QJsonArray { QJsonObject { { "number", 1 }, { "name", "Run A" } },
                                     QJsonObject { { "number", 2 }, { "name", "Run B" } } } } },
                QJsonObject { { "name", "Side" }, { "ip", "192.168.0.12" },
                    { "presets", QJsonArray { "", "" } }, { "presetNeedsReboot", true } },
                QJsonObject { { "name", "Twin" }, { "ip", "192.168.0.20" }, { "heads", 2 } },
                QJsonObject {
                    { "name", "Spare" }, { "ip", "192.168.0.30" }, { "connected", false } } } } };
    return QJsonDocument(root).toJson();
}

const QString okPage = QStringLiteral("$('#camerasettings_ok').click(); 0");
const QString cancelPage = QStringLiteral("$('#camerasettings_cancel').click(); 0");

} // namespace

class tst_CameraDevices : public QObject
{
    Q_OBJECT

private slots:
    void settingsFile_data();
    void settingsFile();
    void presets_data();
    void presets();
    void loadFile_data();
    void loadFile();
    void fileReader_data();
    void fileReader();
    void deviceSelection_data();
    void deviceSelection();
    void selectBox_data();
    void selectBox();

private:
    struct Run : HostRecord
    {
        int result = -2;
        QStringList values(const QString& call, const QString& field) const;
        bool logged(const QString& text) const;
    };
    Run run(const QByteArray& scenario, const QString& open, const QJsonArray& steps,
        bool autoAnswer = true);

    QTemporaryDir m_dir;
};

QStringList tst_CameraDevices::Run::values(const QString& call, const QString& field) const
{
    QStringList texts;
    for (const QJsonObject& event : of(call)) {
        if (!event.contains(field))
            continue;
        const QJsonValue value = event.value(field);
        texts << (value.isArray()
                ? QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact))
                : value.toVariant().toString());
    }
    return texts;
}

bool tst_CameraDevices::Run::logged(const QString& text) const
{
    for (const QString& line : values(QStringLiteral("log"), QStringLiteral("text"))) {
        if (line.contains(text))
            return true;
    }
    return false;
}

tst_CameraDevices::Run tst_CameraDevices::run(
    const QByteArray& scenario, const QString& open, const QJsonArray& steps, bool autoAnswer)
{
    QFile::remove(m_dir.filePath(QStringLiteral("prefs.ini")));
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir.filePath(QStringLiteral("prefs.ini"));
    options.open = open;
    options.steps = steps;
    options.quit = true;
    options.autoAnswer = autoAnswer;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    QCoreApplication::processEvents();
    result.events = application.recorder()->events();
    result.result = result.openResult();
    return result;
}

void tst_CameraDevices::settingsFile_data()
{
    QTest::addColumn<QJsonObject>("prefs");
    QTest::addColumn<QByteArray>("existing"); // of the target, before; empty: none
    QTest::addColumn<QJsonArray>("script");
    QTest::addColumn<QString>("message"); // the one box shown; empty: none
    QTest::addColumn<bool>("saved");

    const QJsonObject named { { "qsetx/filenameasoriginal", true } };
    QTest::newRow("saved under the first camera's name")
        << QJsonObject() << QByteArray() << steps({ js(okPage) }) << QString() << true;
    QTest::newRow("an existing file is overwritten after the question")
        << QJsonObject() << QByteArray("old") << steps({ js(okPage), click("OK") })
        << "Do you want to overwrite it?" << true;
    QTest::newRow("a refused overwrite leaves the file and the dialog open")
        << QJsonObject() << QByteArray("old")
        << steps({ js(okPage), click("Cancel"), js(cancelPage) }) << "Do you want to overwrite it?"
        << false;
    QJsonObject colon = named;
    colon.insert("qsetx/userFileName", "run:1");
    QTest::newRow("a name with a colon is refused")
        << colon << QByteArray() << steps({ js(okPage), click("OK"), js(cancelPage) })
        << "Invalid filename." << false;
    QTest::newRow("an empty user name is refused")
        << named << QByteArray() << steps({ js(okPage), click("OK"), js(cancelPage) })
        << "Invalid filename." << false;
    QJsonObject deep { { "qsetx/path", QString(240, QLatin1Char('d')) } };
    QTest::newRow("a path over 260 characters is refused")
        << deep << QByteArray() << steps({ js(okPage), click("OK"), js(cancelPage) })
        << "The path of the target is too long." << false;
}

void tst_CameraDevices::settingsFile()
{
    QFETCH(QJsonObject, prefs);
    QFETCH(QByteArray, existing);
    QTemporaryDir folder;
    if (prefs.contains("qsetx/path"))
        prefs.insert("qsetx/path", folder.path() + "/" + prefs.value("qsetx/path").toString());
    const QString target = folder.filePath(QStringLiteral("Front.qsetx"));
    if (!existing.isEmpty()) {
        QFile old(target);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write(existing);
    }
    QByteArray json = scenario(folder.path(), 0, prefs);
    QFETCH(QJsonArray, script);
    const Run run = this->run(json, QStringLiteral("camerasettings"), script, false);
    QCOMPARE(run.code, 0);
    QFETCH(QString, message);
    QCOMPARE(
        run.values("message", "text"), message.isEmpty() ? QStringList() : QStringList { message });
    QFETCH(bool, saved);
    QCOMPARE(run.result, saved ? 1 : 0);
    QCOMPARE(
        run.values("saveSettingsFile", "path"), saved ? QStringList { target } : QStringList());
    // A refused name touches no file: only what was there before is in the folder.
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
        saved || !existing.isEmpty() ? QStringList { "Front.qsetx" } : QStringList());
    QFile written(target);
    if (written.open(QIODevice::ReadOnly)) {
        QList<HST_SettingsFile::Camera> cameras;
        QString error;
        QCOMPARE(HST_SettingsFile::read(written.readAll(), cameras, error), saved);
        if (saved)
            QCOMPARE(cameras.size(), 5); // Front, Side, the Twin's heads, Spare
    }
}

void tst_CameraDevices::presets_data()
{
    QTest::addColumn<QString>("choose"); // page script that sets the selects
    QTest::addColumn<QStringList>("written"); // document keys written to
    QTest::addColumn<int>("result");

    QTest::newRow("only numbers above 0 are written")
        << "$('#preset_1').val(2); $('#preset_5').val(1);" << QStringList { "1", "5" } << 1;
    QTest::newRow("all None writes nothing and accepts") << "" << QStringList() << 1;
    QTest::newRow("a failure stops the run, the presets written before stay")
        << "$('#preset_1').val(1); $('#preset_2').append('<option value=3>3</option>').val(3);"
           " $('#preset_6').val(1);"
        << QStringList { "1" } << 0;
}

void tst_CameraDevices::presets()
{
    QFETCH(QString, choose);
    QFETCH(int, result);
    QJsonArray script = steps({ js(choose + okPage) });
    // A dialog left open is closed as the user would.
    if (result == 0)
        script.append(js(cancelPage));
    const Run run
        = this->run(scenario(m_dir.path()), QStringLiteral("camerasettings:preset"), script);
    QCOMPARE(run.code, 0);
    QTEST(run.values("writePreset", "key"), "written");
    QTEST(run.result, "result");
    QCOMPARE(run.values("reportException", "text"),
        run.result == 0 ? QStringList { "Side has no preset 3." } : QStringList());
}

void tst_CameraDevices::loadFile_data()
{
    QTest::addColumn<QByteArray>("content"); // empty: a file the host saved
    QTest::addColumn<QString>("refusal"); // empty: loaded
    QTest::addColumn<QStringList>("reboot"); // the cameras named after loading

    QTest::newRow("loaded, presets written, the reboot named")
        << QByteArray() << QString() << QStringList { "Side" };
    QTest::newRow("a truncated file changes nothing")
        << QByteArray("{\"type\": \"qsetx\", \"version\": 1, \"cam")
        << "The file is not a camera settings file, or it is incomplete." << QStringList();
    QTest::newRow("a file of another type changes nothing")
        << QByteArray("{\"type\": \"custom\", \"version\": 1}")
        << "The file is not a camera settings file." << QStringList();
}

void tst_CameraDevices::loadFile()
{
    QFETCH(QByteArray, content);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("cams.qsetx"));
    if (content.isEmpty()) {
        // Saved by the host from cameras whose trigger mode the load must bring back.
        HST_Recorder recorder;
        QString error;
        auto host = makeScenarioHost(scenario(folder.path()), &recorder, folder, error);
        QVERIFY2(host, qPrintable(error));
        host->saveSettingsFile(path);
    } else {
        QFile written(path);
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.write(content);
    }
    QFETCH(QString, refusal);
    QJsonArray script = steps({ click("preset_1_2"), click("preset_2_1"), file(path) });
    if (!refusal.isEmpty())
        script.append(file(QString()));
    const Run run
        = this->run(scenario(folder.path()), QStringLiteral("camerasettingsload"), script);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.result, refusal.isEmpty() ? 1 : 0);
    QCOMPARE(run.values("reportException", "text"),
        refusal.isEmpty() ? QStringList() : QStringList { refusal });
    QCOMPARE(run.of("loadSettingsFile").size(), refusal.isEmpty() ? 1 : 0);
    const QStringList written = refusal.isEmpty() ? QStringList { "1", "2" } : QStringList();
    QCOMPARE(run.values("writePreset", "key"), written);
    QFETCH(QStringList, reboot);
    QCOMPARE(run.values("message", "details"),
        reboot.isEmpty()
            ? QStringList()
            : QStringList { QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(reboot))
                                                  .toJson(QJsonDocument::Compact)) });
}

void tst_CameraDevices::fileReader_data()
{
    QTest::addColumn<QString>("edit"); // "from|to" on the saved text; "rename": a camera renamed
    QTest::addColumn<QString>("refusal"); // empty: loads, every camera back as saved

    QTest::newRow("loads back the settings") << ""
                                             << "";
    QTest::newRow("an edited value breaks the checksum") << "\"triggerMode\": 1|\"triggerMode\": 2"
                                                         << "The camera settings file is damaged.";
    QTest::newRow("a camera that isn't there refuses the whole file")
        << "rename"
        << "The settings file is for a camera that isn't connected: Gone (HX-1 type A model 1)";
    QTest::newRow("another version")
        << "\"version\": 1|\"version\": 7"
        << "The camera settings file is of a version this host can't read.";
}

void tst_CameraDevices::fileReader()
{
    QFETCH(QString, edit);
    QFETCH(QString, refusal);
    HST_Recorder recorder;
    QString error;
    auto host = makeScenarioHost(scenario(m_dir.path()), &recorder, m_dir, error);
    QVERIFY2(host, qPrintable(error));
    const QString path = m_dir.filePath(QStringLiteral("reader.qsetx"));
    host->saveSettingsFile(path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    if (edit == QLatin1String("rename")) {
        // Renamed through the writer, so the checksum holds and the camera check refuses it.
        QList<HST_SettingsFile::Camera> cameras;
        QVERIFY(HST_SettingsFile::read(text, cameras, error));
        cameras.last().name = QStringLiteral("Gone");
        text = HST_SettingsFile::write(cameras);
    } else if (!edit.isEmpty()) {
        const QStringList parts = edit.split('|');
        text.replace(parts.at(0).toUtf8(), parts.at(1).toUtf8());
    }
    file.resize(0);
    file.write(text);
    file.close();
    // Every camera is changed first; a refused file must leave all of them so.
    for (HST_CameraState* camera : host->cameras())
        camera->spec.triggerMode = 9;
    QString thrown;
    try {
        host->loadSettingsFile(path);
    } catch (const APP_Exception& e) {
        thrown = QString::fromUtf8(e.what());
    }
    QCOMPARE(thrown, refusal);
    const QList<int> cameraKeys = host->settingsDocumentKeys();
    QCOMPARE(cameraKeys.size(), 5);
    for (int key : cameraKeys)
        QCOMPARE(
            host->openDocument(key)->cameraState()->spec.triggerMode, refusal.isEmpty() ? 1 : 9);
}

void tst_CameraDevices::deviceSelection_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("selection"); // the last selection recorded
    QTest::addColumn<QStringList>("current"); // documents made current
    QTest::addColumn<QStringList>("removed");

    QTest::newRow("list: a connected camera becomes current")
        << "devicelist"
        << "devicelist.selectDoc('2')" << QStringList() << QStringList { "2" } << QStringList();
    QTest::newRow("list: an unconnected one is only marked to connect")
        << "devicelist"
        << "devicelist.selectDoc('6')" << QStringList() << QStringList() << QStringList();
    QTest::newRow("list: deleting a head removes its whole device")
        << "devicelist"
        << "devicelist.deleteDoc(4)" << QStringList() << QStringList()
        << QStringList { "3", "4", "5" };
    QTest::newRow("list: deleting a single camera asks the plain question")
        << "devicelist"
        << "devicelist.deleteDoc(2)" << QStringList() << QStringList() << QStringList { "2" };
    QTest::newRow("list: unselect all keeps the entries")
        << "devicelist"
        << "devicelist.deleteAllDocs(true)" << QStringList { "[]" } << QStringList()
        << QStringList();
    QTest::newRow("control: an owner selects all its heads")
        << "devicecontrol"
        << "devicecontrol.selectDoc('3')" << QStringList { "[1,3]", "[1,3,4,5]" } << QStringList()
        << QStringList();
    QTest::newRow("control: a head is selected through its owner")
        << "devicecontrol"
        << "devicecontrol.selectDoc('5')" << QStringList { "[1,5]" } << QStringList()
        << QStringList();
    QTest::newRow("control: a single camera is selected itself")
        << "devicecontrol"
        << "devicecontrol.selectDoc('2')" << QStringList { "[1,2]" } << QStringList()
        << QStringList();
}

void tst_CameraDevices::deviceSelection()
{
    QFETCH(QString, page);
    QFETCH(QString, code);
    QJsonArray script = steps({ js(code + "; 0", page) });
    // The question is answered as the user would.
    if (code.contains(QLatin1String("deleteDoc")))
        script.append(click("OK"));
    const Run run = this->run(scenario(m_dir.path()), page, script, false);
    QCOMPARE(run.code, 0);
    QTEST(run.values("selection", "keys"), "selection");
    QTEST(run.values("current", "key"), "current");
    QTEST(run.values("removeDocument", "key"), "removed");
    QCOMPARE(run.values("connectWanted", "key"),
        code.contains("'6'") ? QStringList { "6" } : QStringList());
    // The head's selection went through its owner, never as a document of its own.
    if (code.contains("'5'")) {
        QCOMPARE(run.values("selectHead", "owner"), QStringList(QStringLiteral("3")));
        QCOMPARE(run.values("hostCall", "operation").count("selectDocument"), 0);
    }
    if (code.contains("deleteDoc"))
        QCOMPARE(run.values("message", "text"),
            QStringList { code.contains("(4)")
                    ? "Heads connected to the same device are also removed from the list. Is it OK?"
                    : "Do you want to delete?" });
}

void tst_CameraDevices::selectBox_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("call"); // the record event the choice leads to; empty: none
    QTest::addColumn<QString>("value");

    QTest::newRow("a partition of the camera is selected") << 0 << "partition"
                                                           << "$('#choices li').eq(1).click()"
                                                           << "selectPartition"
                                                           << "2";
    QTest::newRow("a number beyond the count opens the recording settings")
        << 0 << "partition"
        << "items.slotNotifyPartition('7')"
        << "prefsDialog"
        << "";
    QTest::newRow("in file mode a number beyond the count does nothing")
        << 2 << "partition"
        << "items.slotNotifyPartition('7')"
        << ""
        << "";
    QTest::newRow("a variable is applied") << 0 << "variable"
                                           << "$('#choices li').eq(2).click()"
                                           << "selectVariable"
                                           << "3";
    QTest::newRow("variable settings open the live control page's tab")
        << 0 << "variable"
        << "$('#choices li').last().click()"
        << "showTab"
        << "2";
    QTest::newRow("off the live control page variable settings only close")
        << 1 << "variable"
        << "$('#choices li').last().click()"
        << ""
        << "";
    QTest::newRow("a named variable is registered")
        << 0 << "variable"
        << "$('#variableName').val('Fast'); $('#registerVariable').click()"
        << "registerVariable"
        << "Fast";
}

void tst_CameraDevices::selectBox()
{
    QFETCH(int, mode);
    QFETCH(QString, open);
    QFETCH(QString, code);
    QJsonArray script = steps({ js(code + "; 0", "GUI_SelectBox") });
    QFETCH(QString, call);
    if (call == QLatin1String("prefsDialog"))
        script.append(QJsonObject { { "close", QJsonValue::Null } });
    const Run run
        = this->run(scenario(m_dir.path(), mode), QStringLiteral("selectbox:") + open, script);
    QCOMPARE(run.code, 0);
    // The host's own partition change; each document records its own beside it.
    QCOMPARE(run.values("selectPartition", "update").size(), call == "selectPartition" ? 1 : 0);
    for (const char* event : { "prefsDialog", "selectVariable", "showTab", "registerVariable" })
        QCOMPARE(run.of(event).size(), call == QLatin1String(event) ? 1 : 0);
    QFETCH(QString, value);
    if (call == "selectPartition")
        QVERIFY(run.values(call, "partition").contains(value));
    if (call == "selectVariable")
        QCOMPARE(run.values(call, "number"), QStringList { value });
    if (call == "showTab")
        QCOMPARE(run.values(call, "tab"), QStringList { value });
    if (call == "registerVariable")
        QCOMPARE(run.values(call, "name"), QStringList { value });
    if (call == "prefsDialog")
        QVERIFY(run.logged("s_record"));
    // Every choice closes the box.
    QVERIFY(run.logged("JS_Mediator_SelectBox::slotNotify"));
}

QTEST_MAIN(tst_CameraDevices)
#include "tst_cameradevices.moc"
