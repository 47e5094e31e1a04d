// The removable media panels and the storage unit's passwords end to end through the reference
// host: the SD panel's format declined and done, a locked unit opened from the open dialog with
// a wrong and then the right password, a password set, the dialogs' length limits and Cancel.
// No password may show in anything the run writes.
#include "host/HST_Application.h"
#include "host/HST_Recorder.h"
#include "tests/HostRecord.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

namespace {

QJsonObject step(const QString& kind, const QJsonValue& value)
{
    return QJsonObject { { kind, value } };
}

QJsonObject js(const QString& code, const QString& window = QString())
{
    QJsonObject object = step(QStringLiteral("js"), code);
    if (!window.isEmpty())
        object.insert(QStringLiteral("window"), window);
    return object;
}

QJsonObject click(const QString& button)
{
    return step(QStringLiteral("click"), button);
}

// A script expression that makes the text, so that the script itself never spells a password.
QString spelled(const QString& text)
{
    if (text.size() > 16 && text.count(text.at(0)) == text.size())
        return QStringLiteral("String.fromCharCode(%1).repeat(%2)")
            .arg(text.at(0).unicode())
            .arg(text.size());
    QStringList codes;
    for (const QChar c : text)
        codes << QString::number(c.unicode());
    return QStringLiteral("String.fromCharCode(%1)").arg(codes.join(QLatin1Char(',')));
}

// Types the texts into the password dialog's boxes and presses its OK.
QJsonObject typeAndOk(const QStringList& texts)
{
    QStringList expressions;
    for (const QString& text : texts)
        expressions << spelled(text);
    return js(QStringLiteral("passwordPage.fill([%1]); $('#ok').click(); 1")
                  .arg(expressions.join(QLatin1Char(','))));
}

const char lockedUnit[] = R"({"mode": 2, "cameras": [{"name": "Left", "media": {
    "storageUnit": [{"drive": "F:", "password": "Qz7#pw", "recordings": [{"name": "v"}]}]}}]})";
const char freeUnit[] = R"({"mode": 2, "cameras": [{"name": "Left", "media": {
    "storageUnit": [{"drive": "F:", "recordings": [{"name": "v"}]}]}}]})";

} // namespace

class tst_MediaPanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void sdFormat_data();
    void sdFormat();
    void storageUnitPassword_data();
    void storageUnitPassword();
    void lengthLimits_data();
    void lengthLimits();

private:
    using Run = HostRecord;
    Run run(const QByteArray& scenario, const QJsonArray& steps, const QString& open);
    // Nothing the run wrote holds any of the passwords.
    void verifyNoPassword(const Run& result, const QStringList& passwords) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_MediaPanels::initTestCase()
{
    // Bytes are counted in the local encoding; the rows are written for UTF-8.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void tst_MediaPanels::init()
{
    m_dir.reset(new QTemporaryDir);
}

tst_MediaPanels::Run tst_MediaPanels::run(
    const QByteArray& scenario, const QJsonArray& steps, const QString& open)
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir->filePath(QStringLiteral("prefs.ini"));
    options.recordFile = m_dir->filePath(QStringLiteral("record.jsonl"));
    options.steps = steps;
    options.open = open;
    options.quit = true;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    result.events = application.recorder()->events();
    return result;
}

void tst_MediaPanels::verifyNoPassword(const Run& result, const QStringList& passwords) const
{
    QByteArray written;
    for (const QString& file : { QStringLiteral("prefs.ini"), QStringLiteral("record.jsonl") }) {
        QFile in(m_dir->filePath(file));
        if (in.open(QIODevice::ReadOnly))
            written += in.readAll();
    }
    for (const QJsonObject& event : result.events)
        written += QJsonDocument(event).toJson();
    QVERIFY(written.contains("\"call\""));
    for (const QString& password : passwords)
        QVERIFY2(!written.contains(password.toUtf8()),
            qPrintable(QStringLiteral("a password of %1 characters").arg(password.size())));
}

void tst_MediaPanels::sdFormat_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("shown"); // rows before, rows after
    QTest::addColumn<QStringList>("formatted");
    QTest::newRow("declined: nothing changes")
        << "Cancel" << QStringList { "3", "3" } << QStringList();
    QTest::newRow("done: the card is empty")
        << "OK" << QStringList { "3", "0" } << QStringList { "E:" };
}

void tst_MediaPanels::sdFormat()
{
    QFETCH(QString, answer);
    const QString panel = QStringLiteral("savesd");
    const Run result = run(R"({"cameras": [{"name": "Left", "media": {"sd": [{"drive": "E:",
        "recordings": [{"name": "a"}, {"name": "b"}, {"name": "c"}]}]}}]})",
        { js(QStringLiteral("mediaPanel.rows().length"), panel),
            js(QStringLiteral("$('#format').click(); 1"), panel), click(answer),
            js(QStringLiteral("mediaPanel.rows().length"), panel) },
        panel);
    QCOMPARE(result.code, 0);
    QStringList shown = result.texts(QStringLiteral("js"), QStringLiteral("result"));
    shown.removeAt(1);
    QTEST(shown, "shown");
    QTEST(result.texts(QStringLiteral("formatMedia"), QStringLiteral("drive")), "formatted");
    QCOMPARE(result.texts(QStringLiteral("message"), QStringLiteral("text")),
        QStringList { "All data connected to Slot 1 of Left will be deleted.<br>Is this OK?" });
}

void tst_MediaPanels::storageUnitPassword_data()
{
    QTest::addColumn<QByteArray>("scenario");
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QStringList>("unlocked"); // results of unlockStorageUnit
    QTest::addColumn<QStringList>("set"); // results of setStorageUnitPassword
    QTest::addColumn<QStringList>("opened"); // drives opened

    const QJsonObject openUnit = js(QStringLiteral("$('#openVp').click(); 1"));
    const QJsonObject cancelFiles = js(QStringLiteral("$('#cancel').click(); 1"));
    QTest::newRow("locked: a wrong password, then the right one")
        << QByteArray(lockedUnit)
        << QJsonArray { openUnit, typeAndOk({ "Qz7#pW" }), click("OK"), typeAndOk({ "Qz7#pw" }),
               cancelFiles }
        << QStringList { "Invalid Password." } << QStringList { "false", "true" } << QStringList()
        << QStringList { "F:" };
    QTest::newRow("locked: Cancel leaves it closed")
        << QByteArray(lockedUnit)
        << QJsonArray { openUnit, js(QStringLiteral("$('#cancel').click(); 1")), cancelFiles }
        << QStringList() << QStringList() << QStringList() << QStringList();
    QTest::newRow("a password set, the new entries differing first; it holds from then on")
        << QByteArray(freeUnit)
        << QJsonArray { js(QStringLiteral("$('#passwordVp').click(); 1")),
               typeAndOk({ "", "Nw5%a", "Nw5%b" }), click("OK"),
               typeAndOk({ "", "Nw5%a", "Nw5%a" }), click("OK"), openUnit, typeAndOk({ "Nw5%a" }),
               cancelFiles }
        << QStringList { "New Password is different.", "Password setting completed.." }
        << QStringList { "true" } << QStringList { "true" } << QStringList { "F:" };
    QTest::newRow("a wrong old password: not set")
        << QByteArray(lockedUnit)
        << QJsonArray { js(QStringLiteral("$('#passwordVp').click(); 1")),
               typeAndOk({ "Qz7#pX", "Nw5%a", "Nw5%a" }), click("OK"), cancelFiles }
        << QStringList { "Password setting failed." } << QStringList() << QStringList { "false" }
        << QStringList();
}

void tst_MediaPanels::storageUnitPassword()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QJsonArray, steps);
    const Run result = run(scenario, steps, QStringLiteral("fileopendialog"));
    QCOMPARE(result.code, 0);
    QTEST(result.texts(QStringLiteral("message"), QStringLiteral("text")), "messages");
    QTEST(result.texts(QStringLiteral("unlockStorageUnit"), QStringLiteral("result")), "unlocked");
    QTEST(result.texts(QStringLiteral("setStorageUnitPassword"), QStringLiteral("result")), "set");
    QTEST(result.texts(QStringLiteral("openMedia"), QStringLiteral("drive")), "opened");
    QCOMPARE(
        result.texts(QStringLiteral("reportException"), QStringLiteral("text")), QStringList());
    verifyNoPassword(result, { "Qz7#p", "Nw5%" });
}

void tst_MediaPanels::lengthLimits_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("typed");
    QTest::addColumn<QString>("message"); // "" when OK takes it
    const QString input = QStringLiteral("input_password_dialog");
    const QString change = QStringLiteral("change_password_dialog");
    const QString inputLimit = QStringLiteral("Please input within 8 bytes.");
    const QString newLimit = QStringLiteral("Please New Password input within 8 bytes.");
    QTest::newRow("input: 8 bytes") << input << QStringList { "Lm3$8byt" } << "";
    QTest::newRow("input: 9 bytes") << input << QStringList { "Lm3$9byte" } << inputLimit;
    QTest::newRow("input: 8 bytes in five characters") << input << QStringList { "Lxééé" } << "";
    QTest::newRow("input: 9 bytes in five characters")
        << input << QStringList { "Léééé" } << inputLimit;
    QTest::newRow("input: 10,000 bytes")
        << input << QStringList { QString(10000, 'L') } << inputLimit;
    QTest::newRow("change: all at 8 bytes")
        << change << QStringList { "Lm3$8byt", "Lxééé", "Lxééé" } << "";
    QTest::newRow("change: the new one a byte over in a multi-byte character")
        << change << QStringList { "", "Lm3$abcé", "Lm3$abcé" } << newLimit;
    QTest::newRow("change: the old one of 10,000 bytes")
        << change << QStringList { QString(10000, 'L'), "", "" }
        << "Please Old Password input within 8 bytes.";
    QTest::newRow("change: nothing typed is taken") << change << QStringList { "", "", "" } << "";
}

void tst_MediaPanels::lengthLimits()
{
    QFETCH(QString, page);
    QFETCH(QStringList, typed);
    QFETCH(QString, message);
    QJsonArray steps { typeAndOk(typed) };
    if (!message.isEmpty()) {
        steps.append(click(QStringLiteral("OK")));
        steps.append(js(QStringLiteral("$('#cancel').click(); 1")));
    }
    const Run result = run(R"({"cameras": [{"name": "Left"}]})", steps, page);
    QCOMPARE(result.code, 0);
    QCOMPARE(result.texts(QStringLiteral("open"), QStringLiteral("result")).last(),
        message.isEmpty() ? QStringLiteral("1") : QStringLiteral("0"));
    QCOMPARE(result.texts(QStringLiteral("message"), QStringLiteral("text")),
        message.isEmpty() ? QStringList() : QStringList { message });
    QStringList passwords;
    for (const QString& text : typed) {
        if (!text.isEmpty())
            passwords << text;
    }
    verifyNoPassword(result, passwords);
}

QTEST_MAIN(tst_MediaPanels)
#include "tst_mediapanels.moc"
