// The information block's dialogs end to end: the reference host opens them from its menus or
// by name, the steps drive their pages as a user would, and the record, the preferences, the
// documents and the overlay on a document's image are checked afterwards.
#include "host/HST_Application.h"
#include "host/HST_InfoDefaults.h"
#include "host/HST_MainWindow.h"
#include "host/HST_Recorder.h"

#include <QFontMetrics>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QJsonObject step(const QString& kind, const QJsonValue& value, const QString& window = QString())
{
    QJsonObject object { { kind, value } };
    if (!window.isEmpty())
        object.insert(QStringLiteral("window"), window);
    return object;
}

QJsonObject js(const QString& code)
{
    return step(QStringLiteral("js"), code);
}

QJsonObject menu(const QString& path)
{
    return step(QStringLiteral("menu"), path);
}

// The keys written, in order, from the event after the one whose js code contains marker.
QStringList writtenAfter(const QList<QJsonObject>& events, const QString& marker)
{
    QStringList keys;
    bool after = marker.isEmpty();
    for (const QJsonObject& event : events) {
        const QString call = event.value(QStringLiteral("call")).toString();
        if (call == QLatin1String("step")
            && QJsonDocument(event.value(QStringLiteral("step")).toObject())
                   .toJson()
                   .contains(marker.toUtf8()))
            after = true;
        else if (after && call == QLatin1String("setPref")
            && !event.value(QStringLiteral("key")).toString().startsWith(QLatin1String("sync/")))
            keys << event.value(QStringLiteral("key")).toString();
    }
    return keys;
}

const char threeItems[] = R"({"cameras": [{"name": "Cam", "comment": "first{Separator}second"},
    {"name": "Other"}], "files": 1, "prefs": {
    "info/display": "Camera name:true,<hr>,Comment:true,FrameRate:true",
    "info/FontSize": "12"}})";

} // namespace

class tst_InfoPages : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void screenForm_data();
    void screenForm();
    void overlayFollowsTheList();
    void collectiveSetting_data();
    void collectiveSetting();
    void logo_data();
    void logo();
    void displayFormats_data();
    void displayFormats();
    void comments_data();
    void comments();
    void timeCode_data();
    void timeCode();

private:
    struct Run
    {
        int code = -1;
        QString error;
        QList<QJsonObject> events;
        QList<QJsonObject> of(const QString& call) const;
        QStringList jsResults() const;
    };
    Run run(const QByteArray& scenario, const QJsonArray& steps, const QString& open = QString(),
        QRect* imageArea = nullptr);
    QVariant pref(const QString& key) const;

    QTemporaryDir m_dir;
};

QList<QJsonObject> tst_InfoPages::Run::of(const QString& call) const
{
    QList<QJsonObject> found;
    for (const QJsonObject& event : events) {
        if (event.value(QStringLiteral("call")).toString() == call)
            found.append(event);
    }
    return found;
}

QStringList tst_InfoPages::Run::jsResults() const
{
    QStringList results;
    for (const QJsonObject& event : of(QStringLiteral("js")))
        results << event.value(QStringLiteral("result")).toVariant().toString();
    return results;
}

void tst_InfoPages::init()
{
    QFile::remove(m_dir.filePath(QStringLiteral("prefs.ini")));
}

tst_InfoPages::Run tst_InfoPages::run(
    const QByteArray& scenario, const QJsonArray& steps, const QString& open, QRect* imageArea)
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir.filePath(QStringLiteral("prefs.ini"));
    options.steps = steps;
    options.open = open;
    options.quit = true;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    result.error = application.error();
    result.events = application.recorder()->events();
    if (imageArea) {
        // Where the first document's view draws its image, as its paintEvent places it.
        const QWidget* view = application.mainWindow()->findChild<QWidget*>("documentView_1");
        *imageArea = view
            ? QRect(QPoint(), QSize(640, 480).scaled(view->size(), Qt::KeepAspectRatio))
            : QRect();
        if (view)
            imageArea->moveCenter(view->rect().center());
    }
    return result;
}

QVariant tst_InfoPages::pref(const QString& key) const
{
    return QSettings(m_dir.filePath(QStringLiteral("prefs.ini")), QSettings::IniFormat).value(key);
}

void tst_InfoPages::screenForm_data()
{
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QString>("display"); // info/display afterwards
    QTest::addColumn<QStringList>("writtenAtTheEnd"); // by the last step
    QTest::addColumn<int>("iconSize"); // 0: never written

    const QString start = QStringLiteral("Camera name:true,<hr>,Comment:true,FrameRate:true");
    const QStringList writeBack { "info/display", "info/BlankLine", "info/FontName",
        "info/FontSize", "info/Bold", "info/Italic", "info/ForegroundColor", "info/Alignment",
        "info/Width" };
    QTest::newRow("hiding an item, OK keeps it hidden")
        << QJsonArray { js("editinfoPage.check('FrameRate', false)"), js("$('#ok').click(); 0") }
        << "Camera name:true,<hr>,Comment:true,FrameRate:false" << QStringList() << 0;
    QTest::newRow("a separator moved stays a separator")
        << QJsonArray { js("editinfoPage.moveSeparator(0, 2); 0"), js("$('#ok').click(); 0") }
        << "Camera name:true,Comment:true,<hr>,FrameRate:true" << QStringList() << 0;
    QTest::newRow("an item moved keeps its state")
        << QJsonArray { js("editinfoPage.check('Comment', false)"),
               js("editinfoPage.move('Comment', 0)"), js("$('#ok').click(); 0") }
        << "Comment:false,Camera name:true,<hr>,FrameRate:true" << QStringList() << 0;
    QTest::newRow("Cancel writes back the list and the fonts; the logo size stays") << QJsonArray {
        js("editinfoPage.check('Comment', false)"), js("editinfoPage.set('fontSize', '20')"),
        js("editinfoPage.set('iconSize', '64')"), js("$('#cancel').click(); 0")
    } << start << writeBack << 64;
    QTest::newRow("closing the window is Cancel")
        << QJsonArray { js("editinfoPage.check('Comment', false)"), js("editInfo.close(); 0") }
        << start << writeBack << 0;
    QTest::newRow("Reset: the host's default list")
        << QJsonArray { js("$('#reset').click(); 0"), js("$('#ok').click(); 0") }
        << HST_InfoDefaults::displayText() << QStringList() << 0;
    QTest::newRow("a font size out of range is refused")
        << QJsonArray { js("editinfoPage.set('fontSize', '999')"),
               step(QStringLiteral("click"), QStringLiteral("OK")), js("$('#ok').click(); 0") }
        << start << QStringList() << 0;
}

void tst_InfoPages::screenForm()
{
    QFETCH(QJsonArray, steps);
    QFETCH(QString, display);
    QFETCH(QStringList, writtenAtTheEnd);
    QFETCH(int, iconSize);

    const Run result = run(threeItems, steps, QStringLiteral("editinfo"));
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QCOMPARE(pref(QStringLiteral("info/display")).toString(), display);
    QCOMPARE(writtenAfter(result.events, steps.last().toObject().value("js").toString()),
        writtenAtTheEnd);
    QCOMPARE(pref(QStringLiteral("info/IconSize")).toInt(), iconSize);
    if (QTest::currentDataTag() == QLatin1String("a font size out of range is refused")) {
        QCOMPARE(result.of(QStringLiteral("message")).size(), 1);
        QVERIFY(!pref(QStringLiteral("info/FontSize")).toString().contains(QLatin1String("999")));
    }
}

void tst_InfoPages::overlayFollowsTheList()
{
    const QString before = m_dir.filePath(QStringLiteral("before.png"));
    const QString after = m_dir.filePath(QStringLiteral("after.png"));
    QRect area;
    const Run result = run(threeItems,
        { step(QStringLiteral("screenshot"), before, QStringLiteral("documentView_1")),
            menu(QStringLiteral("Tools/Information display...")),
            js("editinfoPage.check('FrameRate', false)"), js("$('#ok').click(); 0"),
            step(QStringLiteral("screenshot"), after, QStringLiteral("documentView_1")) },
        QString(), &area);
    QVERIFY2(result.code == 0, qPrintable(result.error));
    const QImage first(before);
    const QImage second(after);
    QVERIFY(!first.isNull() && first.size() == second.size() && area.isValid());

    // Lines as the host lays them out: margin, the name, a third of a line for the
    // separator, the comment's two lines, then the frame rate.
    QFont font(QStringLiteral("Sans Serif"));
    font.setPixelSize(12);
    const int line = QFontMetrics(font).lineSpacing();
    const int top = area.top() + 8;
    const int rateTop = top + line + qMax(2, line / 3) + 2 * line;
    const QRect kept(area.left(), area.top(), area.width(), rateTop - area.top());
    const QRect rate(area.left(), rateTop, area.width(), line);
    QCOMPARE(first.copy(kept), second.copy(kept));
    QVERIFY(first.copy(rate) != second.copy(rate));
}

void tst_InfoPages::collectiveSetting_data()
{
    QTest::addColumn<bool>("collective");
    QTest::addColumn<QStringList>("sizes"); // saveinfo/FontSize0 .. 6 afterwards, "" unset
    QTest::newRow("off: only set 3 changes")
        << false << QStringList { "", "", "", "28", "", "", "" };
    QTest::newRow("on: sets 1 to 6 take set 3's, set 0 stays")
        << true << QStringList { "", "28", "28", "28", "28", "28", "28" };
}

void tst_InfoPages::collectiveSetting()
{
    QFETCH(bool, collective);
    QFETCH(QStringList, sizes);

    // Mode 7, a snapshot, starts on set 3.
    const Run result = run(R"({"cameras": [{}]})",
        { js(QStringLiteral("editinfoPage.set('collective', %1); editInfo.getOffset()")
                  .arg(collective ? "true" : "false")),
            js("editinfoPage.set('fontSize', '28')"), js("$('#ok').click(); 0") },
        QStringLiteral("saveinfoview:7"));
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QCOMPARE(result.jsResults().first(), QStringLiteral("3"));
    for (int set = 0; set < 7; ++set)
        QCOMPARE(pref(QStringLiteral("saveinfo/FontSize%1").arg(set)).toString(), sizes.at(set));
    if (collective) {
        // Set 3's own font didn't change; the others took it.
        QCOMPARE(result.of(QStringLiteral("setOverlayFont")).size(), 5);
        QCOMPARE(
            pref(QStringLiteral("saveinfo/FontName1")).toString(), QStringLiteral("Sans Serif"));
    }
}

void tst_InfoPages::logo_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("stored");

    QTest::newRow("an image is stored, the documents read it") << "logo.png" << true;
    QTest::newRow("a file that is no image is refused") << "logo.txt" << false;
}

void tst_InfoPages::logo()
{
    QFETCH(QString, file);
    QFETCH(bool, stored);

    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(m_dir.filePath(QStringLiteral("logo.png"))));
    QFile text(m_dir.filePath(QStringLiteral("logo.txt")));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not an image") > 0);
    text.close();

    QJsonArray steps { js("editinfoPage.check('Logo', true)"),
        js("editinfoPage.edit('select_logo'); 0"),
        step(QStringLiteral("file"), m_dir.filePath(file)) };
    if (!stored)
        steps.append(step(QStringLiteral("click"), QStringLiteral("OK")));
    steps.append(js("$('#ok').click(); 0"));
    const QByteArray scenario = R"({"cameras": [{}, {}], "prefs": {"info/display": "Logo:false"}})";
    const Run result = run(scenario, steps, QStringLiteral("editinfo"));
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QCOMPARE(pref(QStringLiteral("info/LogoPath")).toString(),
        stored ? m_dir.filePath(file) : QString());
    QCOMPARE(result.of(QStringLiteral("message")).size(), stored ? 0 : 1);
    // The current document, which is also the one selected.
    QCOMPARE(result.of(QStringLiteral("reloadLogo")).size(), stored ? 1 : 0);
    if (!stored)
        return;

    // A logo that has gone draws nothing, and the log says why.
    QFile::remove(m_dir.filePath(file));
    const Run again = run(scenario,
        { step(QStringLiteral("screenshot"), m_dir.filePath(QStringLiteral("gone.png")),
            QStringLiteral("documentView_1")) });
    QCOMPARE(again.code, 0);
    bool told = false;
    for (const QJsonObject& line : again.of(QStringLiteral("log")))
        told = told || line.value("text").toString().contains(QLatin1String("can't be read"));
    QVERIFY(told);
}

void tst_InfoPages::displayFormats_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QJsonArray>("changes");
    QTest::addColumn<QString>("end"); // the button the page is left by
    QTest::addColumn<QStringList>("keys"); // the dialog's keys, in the order Cancel writes them
    QTest::addColumn<QStringList>("afterwards"); // their values at the end

    const QStringList shutter { "display/ShutterSpeed", "display/ShutterSpeedUnit",
        "display/shutterSpeedInsertDelimiter" };
    const QJsonArray shutterChanges { js("$('#formatTime').click(); 0"),
        js("$('#timeUnit').val('2').change(); 0"), js("$('#delimiter').click(); 0") };
    QTest::newRow("shutter: Cancel after changes puts back the start")
        << "shutterspeed_format_dialog" << shutterChanges << "cancel" << shutter
        << QStringList { "0", "0", "false" };
    QTest::newRow("shutter: OK keeps what the changes wrote")
        << "shutterspeed_format_dialog" << shutterChanges << "ok" << QStringList()
        << QStringList { "1", "2", "true" };
    QTest::newRow("record rate: Cancel with no change still writes")
        << "recordrate_format_dialog" << QJsonArray() << "cancel"
        << QStringList { "display/recordRateInsertDelimiter" } << QStringList { "false" };
    QTest::newRow("frame: Cancel after a change")
        << "frame_format_dialog" << QJsonArray { js("$('#delimiter').click(); 0") } << "cancel"
        << QStringList { "display/frameInsertDelimiter" } << QStringList { "false" };
    QTest::newRow("recording time: OK writes nothing of its own")
        << "rectime_format_dialog" << QJsonArray { js("$('#unit').val('1').change(); 0") } << "ok"
        << QStringList() << QStringList { "1" };
}

void tst_InfoPages::displayFormats()
{
    QFETCH(QString, page);
    QFETCH(QJsonArray, changes);
    QFETCH(QString, end);
    QFETCH(QStringList, keys);
    QFETCH(QStringList, afterwards);

    QJsonArray steps = changes;
    const QString leave = QStringLiteral("$('#%1').click(); 0").arg(end);
    steps.append(js(leave));
    const Run result = run(R"({"cameras": [{}]})", steps, page);
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QCOMPARE(result.of(QStringLiteral("open")).last().value("result").toInt(), end == "ok" ? 1 : 0);
    QCOMPARE(writtenAfter(result.events, leave), keys);
    const QStringList all = keys.isEmpty() && page.startsWith(QLatin1String("shutter"))
        ? QStringList { "display/ShutterSpeed", "display/ShutterSpeedUnit",
              "display/shutterSpeedInsertDelimiter" }
        : keys.isEmpty() ? QStringList { "info/RecTimeUnit" }
                         : keys;
    for (int i = 0; i < all.size(); ++i)
        QCOMPARE(pref(all.at(i)).toString(), afterwards.at(i));
    // The recording time is part of the documents' information.
    if (page.startsWith(QLatin1String("rectime")))
        QVERIFY(!result.of(QStringLiteral("documentsChanged")).isEmpty());
}

void tst_InfoPages::comments_data()
{
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QStringList>("comments"); // setComment events: key=text
    QTest::addColumn<int>("shownAt"); // the js step whose result is the text box, -1: none
    QTest::addColumn<QString>("shown");

    QTest::newRow("several documents selected get one comment; OK writes every record")
        << QJsonArray { js("commentPage.select([1])"), js("commentPage.shown()"),
               js("commentPage.select([1, 3])"), js("commentPage.type('Take 4')"),
               js("comment_mediator.comment_ok(); 0") }
        << QStringList { "1=Take 4", "2=", "3=Take 4" } << 1 << "first\nsecond";
    QTest::newRow("the walk: the current row left, the next old one stays")
        << QJsonArray { js("commentPage.select([1, 2])"), js("commentPage.select([1, 3])"),
               js("commentPage.shown()"), js("$('#ok').click(); 0") }
        << QStringList { "1=first\nsecond", "2=", "3=" } << 2 << "first\nsecond";
    QTest::newRow("closing the window writes nothing")
        << QJsonArray { js("commentPage.select([2])"), js("commentPage.type('lost')"),
               js("comment_mediator.close(); 0") }
        << QStringList() << -1 << QString();
}

void tst_InfoPages::comments()
{
    QFETCH(QJsonArray, steps);
    QFETCH(QStringList, comments);
    QFETCH(int, shownAt);
    QFETCH(QString, shown);

    const Run result = run(threeItems, steps, QStringLiteral("commentview"));
    QVERIFY2(result.code == 0, qPrintable(result.error));
    QStringList written;
    for (const QJsonObject& event : result.of(QStringLiteral("setComment")))
        written << QStringLiteral("%1=%2")
                       .arg(event.value("key").toInt())
                       .arg(event.value("text").toString());
    QCOMPARE(written, comments);
    if (shownAt >= 0)
        QCOMPARE(result.jsResults().at(shownAt), shown);
}

void tst_InfoPages::timeCode_data()
{
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QString>("written"); // the record stored, or "" for none

    QTest::newRow("counted form: the count becomes the reset value on OK") << QJsonArray {
        js("timecodePage.type('tc_index', '1')"), js("timecodePage.type('tc_oneframe', '0.25')"),
        js("timecodePage.type('tc_start', '1')"), js("$('#tc_reset').click(); 0"),
        js("timecodePage.type('tc_resetvalue', '4')"), js("timecodePage.sample()"),
        js("$('#tc_ok').click(); 0")
    } << "1 0.25 1 true 2";
    QTest::newRow("a text that is no number is refused, Cancel stores nothing") << QJsonArray {
        js("timecodePage.type('tc_oneframe', 'abc')"),
        step(QStringLiteral("click"), QStringLiteral("OK")), js("$('#tc_cancel').click(); 0")
    } << "";
}

void tst_InfoPages::timeCode()
{
    QFETCH(QJsonArray, steps);
    QFETCH(QString, written);

    const Run result
        = run(R"({"cameras": [{}]})", steps, QStringLiteral("prefs_customize_timecode"));
    QVERIFY2(result.code == 0, qPrintable(result.error));
    const QList<QJsonObject> stored = result.of(QStringLiteral("setTimeCodeSettings"));
    QCOMPARE(stored.isEmpty(), written.isEmpty());
    if (written.isEmpty()) {
        QCOMPARE(result.of(QStringLiteral("message")).size(), 1);
        return;
    }
    const QJsonObject record = stored.first();
    QCOMPARE(QStringLiteral("%1 %2 %3 %4 %5")
                 .arg(record.value("index").toInt())
                 .arg(record.value("oneFrame").toDouble())
                 .arg(record.value("startValue").toDouble())
                 .arg(record.value("reset").toBool() ? "true" : "false")
                 .arg(record.value("resetValue").toDouble()),
        written);
    QCOMPARE(result.jsResults().at(5), QStringLiteral("+000.2500"));
}

QTEST_MAIN(tst_InfoPages)
#include "tst_infoPages.moc"
