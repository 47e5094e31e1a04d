// The custom info dialog's mediator against the reference host's documents, and the file it
// writes and reads.
#include "../ScenarioHost.h"

#include "dialogs/CustomInfoFile.h"
#include "dialogs/GUI_CustomInfoDialog.h"
#include "dialogs/JS_Mediator_CustomInfoDialog.h"
#include "host/HST_Document.h"
#include "util/DOC_ReadFileException.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

// Two cameras: key 1 with the items a (shown, in names) and b (neither), key 2 with c.
const char twoDocuments[] = R"({"cameras": [
    {"name": "One", "customData": [{"name": "a", "value": "1", "unit": "mm"},
        {"name": "b", "value": "2", "display": false, "usefilename": false}]},
    {"name": "Two", "customData": [{"name": "c", "value": "3"}]}]})";

// name=value:unit:display:usefilename per item.
QStringList items(DOC_Interface* document)
{
    QStringList texts;
    QVariantList list;
    for (const QVariant& item : document->customData(list)) {
        const QVariantMap map = item.toMap();
        texts << QStringLiteral("%1=%2:%3:%4:%5")
                     .arg(map.value("name").toString(), map.value("value").toString(),
                         map.value("unit").toString(), map.value("display").toString(),
                         map.value("usefilename").toString());
    }
    return texts;
}

QStringList pageItems(const QVariantList& list)
{
    QStringList texts;
    for (const QVariant& item : list) {
        const QVariantMap map = item.toMap();
        texts << QStringLiteral("%1=%2:%3:%4")
                     .arg(map.value("name").toString(), map.value("value").toString(),
                         map.value("unit").toString(),
                         map.contains("selected") ? map.value("selected").toString() : "-");
    }
    return texts;
}

QVariantMap item(const QString& name, const QString& value, bool selected)
{
    return { { "name", name }, { "value", value }, { "unit", "" }, { "selected", selected } };
}

} // namespace

class tst_CustomInfo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void selectionWalk_data();
    void selectionWalk();
    void callbackTypeChoosesTheFlag_data();
    void callbackTypeChoosesTheFlag();
    void cancelRestoresTheSnapshot_data();
    void cancelRestoresTheSnapshot();
    void edits_data();
    void edits();
    void deviceInfoOfTemporaryDocuments();
    void writtenBytes();
    void read_data();
    void read();
    void fileWithoutItemChangesNothing_data();
    void fileWithoutItemChangesNothing();

private:
    QStringList reported() const;

    QTemporaryDir m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    std::unique_ptr<JS_Mediator_CustomInfoDialog> m_mediator;
    QTimer m_answerer;
};

void tst_CustomInfo::init()
{
    m_recorder.reset(new HST_Recorder);
    QString error;
    m_host = makeScenarioHost(twoDocuments, m_recorder.get(), m_dir, error);
    QVERIFY2(m_host, qPrintable(error));
    m_mediator.reset(new JS_Mediator_CustomInfoDialog(m_host.get(), nullptr, false));
    // A reported failure shows the host's box; it is answered.
    connect(&m_answerer, &QTimer::timeout, this, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    m_answerer.start(10);
}

void tst_CustomInfo::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_mediator.reset();
    m_host.reset();
    m_recorder.reset();
}

QStringList tst_CustomInfo::reported() const
{
    QStringList texts;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("reportException")))
        texts << event.value(QStringLiteral("text")).toString();
    return texts;
}

void tst_CustomInfo::selectionWalk_data()
{
    QTest::addColumn<QStringList>("selections"); // given one after another
    QTest::addColumn<int>("current");
    QTest::newRow("nothing selected") << QStringList { "1", "" } << 0;
    QTest::newRow("a single record") << QStringList { "1", "3" } << 3;
    QTest::newRow("grown: the record added") << QStringList { "1", "1,2", "1,2,3" } << 3;
    QTest::newRow("grown by two: the last added") << QStringList { "1", "1,3,2" } << 2;
    QTest::newRow("current left: the next behind it")
        << QStringList { "2", "2,3", "1,2,3", "2,3" } << 2;
    QTest::newRow("current left at the end: wraps to the start")
        << QStringList { "1", "1,2", "1,2,3", "1,2" } << 1;
    QTest::newRow("another left: current stays") << QStringList { "1", "1,2", "1,2,3", "2,3" } << 3;
    QTest::newRow("all replaced: the walk ends on the new selection")
        << QStringList { "1", "1,2", "3,4" } << 3;
}

void tst_CustomInfo::selectionWalk()
{
    QFETCH(QStringList, selections);
    for (const QString& selection : selections) {
        QList<int> ids;
        for (const QString& id : selection.split(',', Qt::SkipEmptyParts))
            ids << id.toInt();
        m_mediator->setSelectedDeviceItems(ids);
    }
    QTEST(m_mediator->getCurrentDeviceRecord(), "current");
}

void tst_CustomInfo::callbackTypeChoosesTheFlag_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("afterClicks"); // a cleared, b set
    QTest::newRow("15: display")
        << 15
        << R"([{"name":"a","recid":1,"selected":true,"unit":"mm","value":"1"},)"
           R"({"name":"b","recid":2,"selected":false,"unit":"","value":"2"}])"
        << QStringList { "a=1:mm:off:on", "b=2::on:off" };
    QTest::newRow("8: file name")
        << 8
        << R"([{"name":"a","recid":1,"selected":true,"unit":"mm","value":"1"},)"
           R"({"name":"b","recid":2,"selected":false,"unit":"","value":"2"}])"
        << QStringList { "a=1:mm:on:off", "b=2::off:on" };
}

void tst_CustomInfo::callbackTypeChoosesTheFlag()
{
    QFETCH(int, type);
    m_mediator->setCallbackType(type);
    QTEST(m_mediator->getCustomInfo(1), "shown");
    m_mediator->enableCustomData({ 1 }, { item("a", "1", false), item("b", "2", true) });
    QTEST(items(m_host->document(1)), "afterClicks");
}

void tst_CustomInfo::cancelRestoresTheSnapshot_data()
{
    QTest::addColumn<bool>("closeWindow");
    QTest::newRow("the page's cancel") << false;
    QTest::newRow("closing the window") << true;
}

void tst_CustomInfo::cancelRestoresTheSnapshot()
{
    QFETCH(bool, closeWindow);
    const QStringList first = items(m_host->document(1));
    const QStringList second = items(m_host->document(2));
    GUI_CustomInfoDialog dialog(m_host.get(), nullptr, false);
    JS_Mediator_CustomInfoDialog* mediator = dialog.customInfoMediator();
    mediator->addCustomData({ 1, 2 }, QVariantMap { { "name", "new" }, { "value", "x" } });
    mediator->deleteCustomData({ 1 }, { item("a", "", false) });
    mediator->editCustomData({ 2 }, QVariantMap { { "oldname", "c" }, { "name", "d" } });
    mediator->restoreCustomData({ 1 }, { item("z", "9", false) });
    QVERIFY(items(m_host->document(1)) != first);
    if (closeWindow) {
        dialog.show();
        dialog.close();
    } else {
        mediator->cancel();
    }
    QCOMPARE(items(m_host->document(1)), first);
    QCOMPARE(items(m_host->document(2)), second);
}

void tst_CustomInfo::edits_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("second");
    QTest::addColumn<QString>("comment");
    QTest::newRow("restore always sets the name flag, Comments becomes the comment")
        << "restore" << QStringList { "z=9::on:on", "y=8::off:on" } << QStringList { "c=3::on:on" }
        << "note";
    QTest::newRow("edit where the second lacks the old name takes its flags as off")
        << "edit" << QStringList { "renamed=7:cm:on:on", "b=2::off:off" }
        << QStringList { "c=3::on:on" } << "";
    QTest::newRow("a key without a document is skipped")
        << "add" << QStringList { "a=1:mm:on:on", "b=2::off:off", "n=v::on:on" }
        << QStringList { "c=3::on:on" } << "";
}

void tst_CustomInfo::edits()
{
    QFETCH(QString, edit);
    if (edit == QLatin1String("restore"))
        m_mediator->restoreCustomData(
            { 1 }, { item("z", "9", true), item("Comments", "note", true), item("y", "8", false) });
    else if (edit == QLatin1String("edit"))
        m_mediator->editCustomData({ 1, 2 },
            QVariantMap {
                { "oldname", "a" }, { "name", "renamed" }, { "value", "7" }, { "unit", "cm" } });
    else
        m_mediator->addCustomData({ 1, 99 }, QVariantMap { { "name", "n" }, { "value", "v" } });
    QTEST(items(m_host->document(1)), "first");
    QTEST(items(m_host->document(2)), "second");
    QString comment;
    QTEST(m_host->document(1)->comment(comment), "comment");
    QCOMPARE(m_recorder->events(QStringLiteral("documentsChanged")).size(), 1);
}

void tst_CustomInfo::deviceInfoOfTemporaryDocuments()
{
    const char json[] = R"({"cameras": [{"name": "Live"}, {"name": "Kept", "temporary": true}],
        "files": [{"name": "clip", "temporary": true}]})";
    m_mediator.reset();
    QString error;
    m_host = makeScenarioHost(json, m_recorder.get(), m_dir, error);
    QVERIFY2(m_host, qPrintable(error));
    JS_Mediator_CustomInfoDialog temporary(m_host.get(), nullptr, true);
    QCOMPARE(temporary.getDeviceInfo(),
        QStringLiteral(R"({"InitSelect":1,"Records":[{"dockey":"2","name":"Kept","recid":1},)"
                       R"({"dockey":"3","name":"clip","recid":2}]})"));
}

void tst_CustomInfo::writtenBytes()
{
    const QVariantList customs { item("a<&>", "x\"y", true),
        QVariantMap { { "name", "TestNo" }, { "value", "42" }, { "unit", "mm" } } };
    const QByteArray expected = "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n"
                                "<custom>\n"
                                "  <version>host 2.0</version>\n"
                                "  <customItems>\n"
                                "    <customItem>\n"
                                "      <name>a&lt;&amp;></name>\n"
                                "      <value>x\"y</value>\n"
                                "      <unit></unit>\n"
                                "      <display>true</display>\n"
                                "      <usefilename>true</usefilename>\n"
                                "    </customItem>\n"
                                "    <customItem>\n"
                                "      <name>TestNo</name>\n"
                                "      <value>42</value>\n"
                                "      <unit>mm</unit>\n"
                                "      <display>false</display>\n"
                                "      <usefilename>true</usefilename>\n"
                                "    </customItem>\n"
                                "  </customItems>\n"
                                "</custom>\n";
    const QByteArray written = CustomInfoFile::toXml(QStringLiteral("host 2.0"), customs);
    QCOMPARE(written, expected);
    QCOMPARE(pageItems(CustomInfoFile::read(written, CustomInfoFile::jobTagTable())),
        QStringList({ "a<&>=x\"y::true", "TestNo=42:mm:false" }));
}

void tst_CustomInfo::read_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("expected");
    const auto custom = [](const QByteArray& item) {
        return "<custom><customItems><customItem>" + item + "</customItem></customItems></custom>";
    };
    QTest::newRow("display counts only as exactly true")
        << QByteArray(
               "<custom><customItems><customItem><name>a</name><display>true</display></customItem>"
               "<customItem><name>b</name><display>TRUE</display></customItem>"
               "<customItem><name>c</name><display>on</display></customItem>"
               "<customItem><name>d</name></customItem></customItems></custom>")
        << QStringList { "a=::true", "b=::false", "c=::false", "d=::-" };
    QTest::newRow("field names in any case, tags translated, usefilename ignored") << custom(
        "<NAME>Cm_Comment</NAME><Value>v</Value><UNIT>u</UNIT>"
        "<usefilename>false</usefilename>") << QStringList { "Comments=v:u:-" };
    QTest::newRow("item without a name dropped") << custom("<value>v</value>") << QStringList();
    QTest::newRow("item lists match in exact case only") << QByteArray(
        "<custom><CustomItems><customItem><name>a</name></customItem></CustomItems></custom>")
                                                         << QStringList();
    QTest::newRow("other root read as custom") << QByteArray(
        "<other><customItems><customItem><name>a</name></customItem></customItems></other>")
                                               << QStringList { "a=::-" };
    QTest::newRow("job file: tags, attributes, empty elements skipped")
        << QByteArray(
               "<JOB><Sf_TestCode unit=\"x\">T1</Sf_TestCode><Mine display=\"false\">m</Mine>"
               "<Cm_TestDate unit=\"d\"/><Empty></Empty></JOB>")
        << QStringList { "TestNo=T1:x:true", "Mine=m::false" };
    QTest::newRow("not XML") << QByteArray("custom: a = 1") << QStringList();
    QTest::newRow("broken after an item")
        << QByteArray("<custom><customItems><customItem><name>a</name></customItem><oops")
        << QStringList();
    QTest::newRow("binary") << QByteArray("\x00\xff\xfe<\x01", 5) << QStringList();
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("nested 100,000 deep")
        << QByteArray("<a>").repeated(100000) + QByteArray("</a>").repeated(100000)
        << QStringList();
    QTest::newRow("larger than any file") << custom(
        "<name>a</name><value>" + QByteArray(CustomInfoFile::maximumFileSize, 'v') + "</value>")
                                          << QStringList();
}

void tst_CustomInfo::read()
{
    QFETCH(QByteArray, bytes);
    QTEST(pageItems(CustomInfoFile::read(bytes, CustomInfoFile::jobTagTable())), "expected");
}

void tst_CustomInfo::fileWithoutItemChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: no file at all
    QTest::newRow("a file without an item") << QByteArray("<custom><version>1</version></custom>");
    QTest::newRow("a file that isn't there") << QByteArray();
}

void tst_CustomInfo::fileWithoutItemChangesNothing()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_dir.filePath(QStringLiteral("in.xml"));
    QFile::remove(path);
    if (!bytes.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    const QStringList before = items(m_host->document(1));
    QString thrown;
    try {
        m_mediator->loadFromFile({ 1 }, path);
    } catch (const DOC_ReadFileException& e) {
        thrown = QString::fromUtf8(e.what());
    }
    QCOMPARE(thrown, QStringLiteral("File read failed."));
    QCOMPARE(items(m_host->document(1)), before);
    QVERIFY(m_recorder->events(QStringLiteral("customData")).isEmpty());
}

QTEST_MAIN(tst_CustomInfo)
#include "tst_custominfo.moc"
