// The custom info and device dialogs end to end: opened through the reference host as a user
// would, their host pages driven by script steps, the record, the preferences and the documents
// checked afterwards.
#include "host/HST_Application.h"
#include "host/HST_Document.h"
#include "host/HST_Host.h"
#include "host/HST_MainWindow.h"
#include "host/HST_Recorder.h"
#include "tests/HostRecord.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using hoststeps::js;

QJsonObject file(const QString& path)
{
    return { { QStringLiteral("file"), path } };
}

const QJsonObject closeWindow { { QStringLiteral("close"), QJsonValue::Null } };

// A page function that finds a row of a list by the text of its first column.
const QJsonObject defineRow = js(
    QStringLiteral("window.row = function (list, text) { return $('#' + list + ' tbody tr').filter("
                   "function () { return $(this).children().eq(1).text() === text; }); }; 0"));

QJsonArray steps(std::initializer_list<QJsonObject> list)
{
    QJsonArray array;
    for (const QJsonObject& step : list)
        array.append(step);
    return array;
}

// Two cameras with custom items and a temporary file.
const char customScenario[] = R"({"cameras": [
    {"name": "Front", "customData": [{"name": "TestNo", "value": "CT-1"},
        {"name": "Speed", "value": "56", "unit": "km/h", "display": false}]},
    {"name": "Side", "customData": [{"name": "TestNo", "value": "CT-1"}]}],
  "files": [{"name": "old", "temporary": true, "customData": [{"name": "Lab", "value": "B"}]}]})";

const char deviceScenario[] = R"({"defaultCameraName": "New camera", "cameras": [
    {"name": "Front", "ip": "192.168.0.11", "gateway": "192.168.0.1", "etherType": 1},
    {"name": "Bench", "ip": "999.999.999.1", "dummy": true}],
  "files": 1,
  "prefs": {"cameraconnection/SearchWay": 0, "cameraconnection/SearchIP": "192.168.0.0",
            "usercustom/cameraNameFilePath": "%1"}})";

} // namespace

class tst_DialogPages : public QObject
{
    Q_OBJECT

private slots:
    void customInfo_data();
    void customInfo();
    void customInfoFile_data();
    void customInfoFile();
    void customInfoForms_data();
    void customInfoForms();
    void addDevice_data();
    void addDevice();
    void editDevice_data();
    void editDevice();
    void searchSetting_data();
    void searchSetting();

private:
    struct Run : HostRecord
    {
        int result = -2; // the dialog's, from the record's open end
        // Per document: "name=value unit:display:usefilename" for each item.
        QMap<int, QStringList> items;
        // The main window's document table: "key name address" per row.
        QStringList table;
        QStringList values(const QString& call, const QStringList& fields) const;
    };
    Run run(const QByteArray& scenario, const QString& open, const QJsonArray& steps);

    QTemporaryDir m_dir;
};

QStringList tst_DialogPages::Run::values(const QString& call, const QStringList& fields) const
{
    QStringList texts;
    for (const QJsonObject& event : of(call)) {
        QStringList parts;
        for (const QString& field : fields)
            parts << event.value(field).toVariant().toString();
        texts << parts.join(QLatin1Char('|'));
    }
    return texts;
}

tst_DialogPages::Run tst_DialogPages::run(
    const QByteArray& scenario, const QString& open, const QJsonArray& steps)
{
    QFile::remove(m_dir.filePath(QStringLiteral("prefs.ini")));
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir.filePath(QStringLiteral("prefs.ini"));
    options.open = open;
    options.steps = steps;
    options.quit = true;
    options.autoAnswer = true;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    // What the host posted while the dialog ended, as its window would show it next.
    QCoreApplication::processEvents();
    result.events = application.recorder()->events();
    result.result = result.openResult();
    for (const HST_Document* document : application.host()->openDocuments()) {
        QStringList& texts = result.items[document->key()];
        for (const QVariant& item : document->customItems()) {
            const QVariantMap map = item.toMap();
            texts << QStringLiteral("%1=%2:%3:%4")
                         .arg(map.value("name").toString(),
                             QStringList {
                                 map.value("value").toString(), map.value("unit").toString() }
                                 .join(QLatin1Char(' '))
                                 .trimmed(),
                             map.value("display").toString(), map.value("usefilename").toString());
        }
    }
    const auto* table = application.mainWindow()->findChild<QTableWidget*>("host_documents");
    for (int row = 0; table && row < table->rowCount(); ++row)
        result.table << QStringLiteral("%1 %2 %3")
                            .arg(table->item(row, 0)->text(), table->item(row, 1)->text(),
                                table->item(row, 2)->text());
    return result;
}

void tst_DialogPages::customInfo_data()
{
    QTest::addColumn<QString>("arg");
    QTest::addColumn<QJsonObject>("finish");
    QTest::addColumn<QStringList>("front");
    QTest::addColumn<QStringList>("side");

    const QJsonObject ok = js(QStringLiteral("$('#custominfo_ok').click(); 0"));
    const QStringList frontBefore { "TestNo=CT-1:on:on", "Speed=56 km/h:off:on" };
    QTest::newRow("OK keeps the edits; 15 toggles the display flag")
        << QString() << ok << QStringList { "Speed=56 km/h:off:on", "Weight=80 kg:off:on" }
        << QStringList { "Weight=80 kg:off:on" };
    QTest::newRow("OK keeps the edits; 2 toggles the file name flag")
        << "2" << ok << QStringList { "Speed=56 km/h:off:on", "Weight=80 kg:on:off" }
        << QStringList { "Weight=80 kg:on:off" };
    QTest::newRow("Cancel puts every list back")
        << QString() << js(QStringLiteral("$('#custominfo_cancel').click(); 0")) << frontBefore
        << QStringList { "TestNo=CT-1:on:on" };
    QTest::newRow("closing the window puts every list back")
        << QString() << closeWindow << frontBefore << QStringList { "TestNo=CT-1:on:on" };
}

void tst_DialogPages::customInfo()
{
    QFETCH(QString, arg);
    QFETCH(QJsonObject, finish);
    // Side joins Front, so every edit goes to both; Side, the last chosen, is shown.
    const Run run = this->run(customScenario, QStringLiteral("custominfo:") + arg,
        steps({ defineRow, js("row('devices', 'Side').find('input').click(); 0"),
            js("$('#itemName').val('Weight'); $('#itemValue').val('75'); $('#itemUnit').val('kg');"
               " $('#addItem').click(); 0"),
            js("row('items', 'Weight').click(); $('#itemValue').val('80');"
               " $('#editItem').click(); 0"),
            js("row('items', 'Weight').find('input.flag').click(); 0"),
            js("row('items', 'TestNo').click(); $('#deleteItem').click(); 0"), finish }));
    QCOMPARE(run.code, 0);
    QTEST(run.items.value(1), "front");
    QTEST(run.items.value(2), "side");
    QCOMPARE(run.items.value(3), QStringList { "Lab=B:on:on" });
    // Each edit reached both documents, and the record shows it.
    QCOMPARE(run.values("customData", { "op", "key", "name" }).mid(0, 6),
        QStringList({ "add|1|Weight", "add|2|Weight", "rename|1|Weight", "set|1|Weight",
            "rename|2|Weight", "set|2|Weight" }));
    QCOMPARE(run.of("reportException").size(), 0);
}

void tst_DialogPages::customInfoFile_data()
{
    QTest::addColumn<QByteArray>("content"); // empty: the file Front's items were saved to
    QTest::addColumn<QStringList>("side");
    QTest::addColumn<bool>("reported");

    QTest::newRow("saved from one document, loaded into another")
        << QByteArray() << QStringList { "TestNo=CT-1:on:on", "Speed=56 km/h:off:on" } << false;
    QTest::newRow("a file without an item: reported, nothing changed")
        << QByteArray("<custom><version>1</version><customItems/></custom>")
        << QStringList { "TestNo=CT-1:on:on" } << true;
    QTest::newRow("not XML: reported, nothing changed")
        << QByteArray("\x00\x01 not xml", 11) << QStringList { "TestNo=CT-1:on:on" } << true;
}

void tst_DialogPages::customInfoFile()
{
    QFETCH(QByteArray, content);
    const QString path = m_dir.filePath(QStringLiteral("items.xml"));
    QFile::remove(path);
    QJsonArray script = steps({ defineRow });
    if (content.isEmpty()) {
        script.append(js("$('#saveItems').click(); 0"));
        script.append(file(path));
    } else {
        QFile written(path);
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.write(content);
    }
    for (const QJsonObject& step : { js("row('devices', 'Side').click(); 0"),
             js("$('#loadItems').click(); 0"), file(path), js("$('#custominfo_ok').click(); 0") })
        script.append(step);

    const Run run = this->run(customScenario, QStringLiteral("custominfo"), script);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.result, 1);
    QTEST(run.items.value(2), "side");
    QCOMPARE(run.items.value(1), QStringList({ "TestNo=CT-1:on:on", "Speed=56 km/h:off:on" }));
    QVERIFY(run.values("setPref", { "key", "value" }).contains("xml/dir|" + m_dir.path()));
    QFETCH(bool, reported);
    QCOMPARE(run.values("reportException", { "text" }),
        reported ? QStringList { "File read failed." } : QStringList());
    // The user reads the message; the file's name goes to the log beside it.
    bool named = false;
    for (const QString& line : run.values("log", { "text" }))
        named = named || (line.contains(QLatin1String("File read failed.")) && line.contains(path));
    QCOMPARE(named, reported);
}

void tst_DialogPages::customInfoForms_data()
{
    QTest::addColumn<QString>("open"); // --open, or a menu entry of the main window
    QTest::addColumn<QString>("shown"); // devices listed | chosen | flag column; empty: refused

    QTest::newRow("all documents, the current one chosen") << "custominfo"
                                                           << "Front,Side,old|Front|Display";
    QTest::newRow("the file name flag") << "custominfo:2"
                                        << "Front,Side,old|Front|File name";
    QTest::newRow("temporary documents only") << "custominfo:15:temporary"
                                              << "old|old|Display";
    QTest::newRow("temporary, the type left out") << "custominfo:temporary"
                                                  << "old|old|Display";
    QTest::newRow("from the Info menu") << "Info/Custom info for file names..."
                                        << "Front,Side,old|Front|File name";
    QTest::newRow("a type that names no flag") << "custominfo:7"
                                               << "";
    QTest::newRow("an unknown form") << "custominfo:15:forever"
                                     << "";
}

void tst_DialogPages::customInfoForms()
{
    QFETCH(QString, open);
    QFETCH(QString, shown);
    QJsonArray script = shown.isEmpty()
        ? QJsonArray()
        : steps({ js("[$('#devices tbody tr').map(function () {"
                     " return $(this).children().eq(1).text(); }).get().join(),"
                     " custominfoPage.chosenDevices().join(), $('#flagHeader').text()].join('|')"),
            js("$('#custominfo_cancel').click(); 0") });
    const bool menu = open.contains(QLatin1Char('/'));
    if (menu)
        script.prepend(QJsonObject { { QStringLiteral("menu"), open } });
    const Run run = this->run(customScenario, menu ? QString() : open, script);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.result, shown.isEmpty() ? -1 : 0);
    QCOMPARE(run.of("reportException").size(), shown.isEmpty() ? 1 : 0);
    if (!shown.isEmpty())
        QCOMPARE(run.of("js").first().value("result").toString(), shown);
}

void tst_DialogPages::addDevice_data()
{
    QTest::addColumn<QString>("arg");
    QTest::addColumn<QJsonArray>("actions");
    QTest::addColumn<QStringList>("added"); // name|ip|dummy|connect

    QTest::newRow("a camera named by completion")
        << QString()
        << steps({ js("var field = $('#cameraName'); field.val('over');"
                      " field.catcomplete('search', 'over');"
                      " field.catcomplete('widget').find('.ui-menu-item').first().click(); 0"),
               js("$('#ipAddress').val('192.168.0.30'); 0") })
        << QStringList { "Overhead|192.168.0.30|false|true" };
    QTest::newRow("a dummy at the address offered, listed only")
        << "noconnect" << steps({ js("$('#dummy').click(); 0") })
        << QStringList { "New camera|999.999.999.2|true|false" };
    QTest::newRow("a bad name dropped silently")
        << QString() << steps({ js("$('#cameraName').val('a/b'); 0") }) << QStringList();
    QTest::newRow("a bad address dropped silently")
        << QString() << steps({ js("$('#ipAddress').val('192.168.0'); 0") }) << QStringList();
}

void tst_DialogPages::addDevice()
{
    QFETCH(QString, arg);
    QFETCH(QJsonArray, actions);
    QFETCH(QStringList, added);
    actions.append(js("$('#adddevice_ok').click(); 0"));
    const QString names = QStringLiteral(SYNC_SOURCE_DIR "/host/scenarios/camera-names.csv");
    const Run run = this->run(QString::fromLatin1(deviceScenario).arg(names).toUtf8(),
        QStringLiteral("livecontrol_adddevice:") + arg, actions);
    QCOMPARE(run.code, 0);
    // Accepted also when nothing was added, and nothing reported.
    QCOMPARE(run.result, 1);
    QCOMPARE(run.of("reportException").size(), 0);
    QTEST(run.values("addDevice", { "name", "ip", "dummy", "connect" }), "added");
    // The new document is listed in the main window at once.
    for (const QString& device : added) {
        const QStringList parts = device.split('|');
        QVERIFY2(run.table.contains(QStringLiteral("4 %1 %2").arg(parts.at(0), parts.at(1))),
            qPrintable(run.table.join('\n')));
    }
    QCOMPARE(run.table.size(), 3 + added.size());
}

void tst_DialogPages::editDevice_data()
{
    QTest::addColumn<QString>("arg");
    QTest::addColumn<QJsonArray>("actions");
    QTest::addColumn<QStringList>("edited"); // the setEtherType and editDevice records
    QTest::addColumn<QString>("frontRow");
    QTest::addColumn<int>("result");

    const QJsonObject cancel = js("$('#editdevice_cancel').click(); 0");
    QTest::newRow("name, address and link changed; the table follows")
        << QString()
        << steps({ js("$('#cameraName').val('Left'); $('#ipAddress').val('192.168.0.40');"
                      " $('#etherType').val('0'); $('#editdevice_ok').click(); 0") })
        << QStringList { "setEtherType|1|0",
               "editDevice|1|Left|192.168.0.40|255.255.255.0|192.168.0.1|true" }
        << "1 Left 192.168.0.40" << 1;
    QTest::newRow("a bad address marked on the page, the host untouched")
        << QString()
        << steps({ js("$('#ipAddress').val('192.168.0.400'); $('#editdevice_ok').click();"
                      " $('#ipAddress').hasClass('invalid') && $('#note').text() !== ''"),
               cancel })
        << QStringList() << "1 Front 192.168.0.11" << 0;
    QTest::newRow("Cancel changes nothing")
        << QString()
        << steps({ js("$('#cameraName').val('Left'); $('#etherType').val('0'); 0"), cancel })
        << QStringList() << "1 Front 192.168.0.11" << 0;
    QTest::newRow("a document without a camera refused")
        << "3" << QJsonArray() << QStringList() << "1 Front 192.168.0.11" << -1;
}

void tst_DialogPages::editDevice()
{
    QFETCH(QString, arg);
    QFETCH(QJsonArray, actions);
    QFETCH(int, result);
    const Run run = this->run(QString::fromLatin1(deviceScenario).arg(QString()).toUtf8(),
        QStringLiteral("livecontrol_editdevice:") + arg, actions);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.result, result);
    QStringList edited;
    for (const QString& event : run.values("setEtherType", { "key", "type" }))
        edited << "setEtherType|" + event;
    for (const QString& event :
        run.values("editDevice", { "key", "name", "ip", "subnetmask", "gateway", "cameraMode" }))
        edited << "editDevice|" + event;
    QTEST(edited, "edited");
    QTEST(run.table.first(), "frontRow");
    // The page's own check: the field marked and a message shown.
    if (QByteArray(QTest::currentDataTag()).startsWith("a bad address"))
        QCOMPARE(run.of("js").first().value("result").toBool(), true);
    QCOMPARE(run.of("reportException").size(), result == -1 ? 1 : 0);
}

void tst_DialogPages::searchSetting_data()
{
    QTest::addColumn<QString>("finish");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QStringList>("written");

    QTest::newRow("OK stores the way and the address")
        << "ok"
        << "10.1.0.0"
        << QStringList { "cameraconnection/SearchWay|1", "cameraconnection/SearchIP|10.1.0.0" };
    QTest::newRow("Cancel stores nothing") << "cancel"
                                           << "10.1.0.0" << QStringList();
    QTest::newRow("a bad address stays on the page") << "ok"
                                                     << "10.1" << QStringList();
}

void tst_DialogPages::searchSetting()
{
    QFETCH(QString, finish);
    QFETCH(QString, address);
    QFETCH(QStringList, written);
    QJsonArray script = steps({ js(QStringLiteral("$('#searchWay1').click();"
                                                  " $('#searchAddress').val('%1');"
                                                  " $('#searchsetting_%2').click(); 0")
                                       .arg(address, finish)) });
    // What the page refused stays for the user to correct, or to cancel.
    if (written.isEmpty() && finish == QLatin1String("ok"))
        script.append(js("$('#searchsetting_cancel').click(); 0"));
    const Run run = this->run(QString::fromLatin1(deviceScenario).arg(QString()).toUtf8(),
        QStringLiteral("livecontrol_searchsetting"), script);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.result, written.isEmpty() ? 0 : 1);
    QStringList stored = run.values("setPref", { "key", "value" });
    stored = stored.filter(QStringLiteral("cameraconnection/"));
    QCOMPARE(stored, written);
}

QTEST_MAIN(tst_DialogPages)
#include "tst_dialogpages.moc"
