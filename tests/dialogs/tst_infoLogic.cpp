// The information block's rules one by one: the time code arithmetic and samples, the time code
// dialog's limits, the display list and its HTML, the edit info dialog's checks and write-back,
// the comment dialog's selection walk, and how the host writes the values it shows.
#include "../ScenarioHost.h"

#include "dialogs/GUI_CommentDialog.h"
#include "dialogs/GUI_EditInfoDialog.h"
#include "dialogs/GUI_TimeCodeCustomDialog.h"
#include "dialogs/InfoDisplayList.h"
#include "dialogs/InfoSettingsHtml.h"
#include "dialogs/TimeCodeArithmetic.h"
#include "host/HST_InfoValues.h"
#include "host/HST_Preferences.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

using TC = TimeCodeArithmetic;

class tst_InfoLogic : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void value4_data();
    void value4();
    void frameOfValue_data();
    void frameOfValue();
    void sample_data();
    void sample();
    void timeCodeDialog_data();
    void timeCodeDialog();
    void displayList_data();
    void displayList();
    void settingsHtml_data();
    void settingsHtml();
    void settingChecks_data();
    void settingChecks();
    void cancelPutsBackTheStart();
    void selectionWalk_data();
    void selectionWalk();
    void hostTexts_data();
    void hostTexts();

private:
    void makeHost(const QByteArray& scenario);
    int messages() const;

    QTemporaryDir m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    QTimer m_answerer;
};

void tst_InfoLogic::init()
{
    // A refusal shows the host's box; it is answered.
    connect(&m_answerer, &QTimer::timeout, this, [] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    m_answerer.start(10);
}

void tst_InfoLogic::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_host.reset();
    m_recorder.reset();
    QFile::remove(m_dir.filePath(QStringLiteral("p.ini")));
}

void tst_InfoLogic::makeHost(const QByteArray& scenario)
{
    m_recorder.reset(new HST_Recorder);
    QString error;
    m_host = makeScenarioHost(scenario, m_recorder.get(), m_dir, error);
    QVERIFY2(m_host, qPrintable(error));
}

int tst_InfoLogic::messages() const
{
    return m_recorder->events(QStringLiteral("message")).size();
}

void tst_InfoLogic::value4_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("exact") << 1.25 << qint64(12500);
    QTest::newRow("fraction above one half rounds up") << 0.00006 << qint64(1);
    QTest::newRow("negative: cut towards zero") << -0.00006 << qint64(0);
    QTest::newRow("the limit of a value") << 9.999e8 << qint64(9999000000000);
    QTest::newRow("far beyond any value is held") << 1e300 << qint64(100000000000000);
}

void tst_InfoLogic::value4()
{
    QFETCH(double, x);
    QFETCH(qint64, expected);
    QCOMPARE(TC::value4(x), expected);
}

void tst_InfoLogic::frameOfValue_data()
{
    QTest::addColumn<bool>("resetOn");
    QTest::addColumn<double>("oneFrame");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("start");
    QTest::addColumn<qint64>("frames");
    QTest::newRow("reset off") << false << 1.0 << 10.0 << 0.0 << qint64(1);
    QTest::newRow("a step of 0") << true << 0.0 << 10.0 << 0.0 << qint64(1);
    QTest::newRow("value at the start") << true << 1.0 << 5.0 << 5.0 << qint64(1);
    QTest::newRow("negative step down to the value") << true << -0.5 << 8.0 << 10.0 << qint64(4);
    QTest::newRow("negative step, value above the start")
        << true << -0.5 << 12.0 << 10.0 << qint64(1);
    QTest::newRow("positive step, value behind the start")
        << true << 1.0 << 4.0 << 5.0 << qint64(1);
    QTest::newRow("a remainder counts a frame more") << true << 0.3 << 1.0 << 0.0 << qint64(4);
}

void tst_InfoLogic::frameOfValue()
{
    QFETCH(bool, resetOn);
    QFETCH(double, oneFrame);
    QFETCH(double, value);
    QFETCH(double, start);
    QFETCH(qint64, frames);
    QCOMPARE(TC::frameOfValue(resetOn, oneFrame, value, start), frames);
    // The frame count leads back to a value at or past the target, never short of it.
    if (resetOn && frames > 1) {
        const double reached = TC::valueOfFrame(frames, oneFrame, start);
        QVERIFY(oneFrame > 0 ? reached >= value : reached <= value);
    }
}

void tst_InfoLogic::sample_data()
{
    QTest::addColumn<bool>("negative");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("oneFrame");
    QTest::addColumn<int>("scope");
    QTest::addColumn<int>("places");
    QTest::addColumn<bool>("divide");
    QTest::addColumn<QString>("sample");
    QTest::newRow("counted: three digits, four decimals")
        << false << 1 << 0.25 << 0 << 0 << false << "+000.2500";
    QTest::newRow("counted: the magnitude behind a minus")
        << true << 1 << -12.34567 << 0 << 0 << false << "-012.3457";
    QTest::newRow("hours, trailing zeros removed")
        << false << 0 << 0.0 << 0 << 0 << false << "+00:00:00.002";
    QTest::newRow("minutes") << false << 0 << 0.0 << 1 << 0 << false << "+00:00.002";
    QTest::newRow("seconds, grouped, nine places")
        << false << 0 << 0.0 << 2 << 9 << true << "+000.002 000 000 sec";
    QTest::newRow("milliseconds: the point and zeros go")
        << false << 0 << 0.0 << 3 << 0 << false << "+002 msec";
    QTest::newRow("milliseconds with two places")
        << false << 0 << 0.0 << 3 << 2 << false << "+002.00 msec";
    QTest::newRow("nanoseconds grouped: no fraction left")
        << false << 0 << 0.0 << 5 << 0 << true << "+2000000 nsec";
}

void tst_InfoLogic::sample()
{
    QFETCH(bool, negative);
    QFETCH(int, index);
    QFETCH(double, oneFrame);
    QFETCH(int, scope);
    QFETCH(int, places);
    QFETCH(bool, divide);
    QFETCH(QString, sample);
    QCOMPARE(TC::sample(negative, index, oneFrame, scope, places, divide), sample);
}

void tst_InfoLogic::timeCodeDialog_data()
{
    QTest::addColumn<QByteArray>("record");
    // Calls separated by ';', each "name=argument".
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QString>("resetValue"); // what the page reads afterwards
    QTest::addColumn<int>("refused"); // messages shown
    QTest::addColumn<double>("saved"); // the reset value stored by save; NaN: not saved

    const QByteArray counted = R"({"index": 1, "oneFrame": 0.25, "startValue": 1, "reset": true,
        "resetValue": 3})";
    const double none = qQNaN();
    QTest::newRow("loading shows the frame count of the stored value") << counted << ""
                                                                       << "8" << 0 << none;
    QTest::newRow("a count of 100000 is held at 99999") << counted << "count=100000"
                                                        << "99999" << 0 << none;
    QTest::newRow("a count of 0 falls back to the loaded value's") << counted << "count=0"
                                                                   << "8" << 0 << none;
    QTest::newRow("a count that is no number is refused") << counted << "count=ten"
                                                          << "8" << 1 << none;
    QTest::newRow("a value moves to the frame grid") << counted << "unit=1;value=2.1"
                                                     << "2.2500" << 0 << none;
    QTest::newRow("a value beyond the last frame is held there") << counted << "unit=1;value=1e6"
                                                                 << "25000.7500" << 0 << none;
    QTest::newRow("save with a count: start plus the steps")
        << QByteArray(R"({"index": 1, "oneFrame": 0.25, "startValue": 1, "reset": true})")
        << "count=4;save"
        << "2.0000" << 0 << 2.0;
    QTest::newRow("a step beyond the limit of a value is refused") << counted << "step=1e9;save"
                                                                   << "3.0000" << 1 << 3.0;
}

void tst_InfoLogic::timeCodeDialog()
{
    QFETCH(QByteArray, record);
    QFETCH(QString, calls);
    QFETCH(QString, resetValue);
    QFETCH(int, refused);
    QFETCH(double, saved);

    makeHost("{\"cameras\": [{}], \"timeCode\": " + record + "}");
    GUI_TimeCodeCustomDialog dialog(m_host.get(), nullptr);
    dialog.loadTimeCodeSetting();
    for (const QString& call : calls.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString name = call.section(QLatin1Char('='), 0, 0);
        const QString argument = call.section(QLatin1Char('='), 1);
        if (name == QLatin1String("count") || name == QLatin1String("value"))
            dialog.setTimeCodeResetValue(argument);
        else if (name == QLatin1String("unit"))
            dialog.setTimeCodeResetUnitIndex(argument.toInt());
        else if (name == QLatin1String("step"))
            dialog.setTimeCodeOneFrame(argument);
        else if (name == QLatin1String("save"))
            QVERIFY(dialog.saveTimeCodeSetting());
    }
    QCOMPARE(dialog.getTimeCodeResetValue(), resetValue);
    QCOMPARE(messages(), refused);
    const QList<QJsonObject> stored = m_recorder->events(QStringLiteral("setTimeCodeSettings"));
    QCOMPARE(stored.size(), qIsNaN(saved) ? 0 : 1);
    if (!stored.isEmpty())
        QCOMPARE(stored.first().value(QStringLiteral("resetValue")).toDouble(), saved);
}

void tst_InfoLogic::displayList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("order"); // reported by a page; "" leaves the order
    QTest::addColumn<QString>("written");

    QTest::newRow("read and written back") << "Camera name:true,<hr>,Comment:false"
                                           << ""
                                           << "Camera name:true,<hr>,Comment:false";
    QTest::newRow("entries without a state, empty keys and repeats are dropped")
        << "Camera name,Comment:true,:true,Comment:false,,Logo:"
        << ""
        << "Comment:true,Logo:false";
    QTest::newRow("a state other than true reads as hidden") << "Comment:TRUE,Logo:true:x"
                                                             << ""
                                                             << "Comment:false,Logo:true";
    QTest::newRow("an unknown key is kept") << "Nonsense:true"
                                            << ""
                                            << "Nonsense:true";
    QTest::newRow("HR becomes the separator, states stay") << "A:true,<hr>,B:false"
                                                           << "B,HR,A"
                                                           << "B:false,<hr>,A:true";
    QTest::newRow("an order missing items keeps them at the end") << "A:true,B:false,C:true"
                                                                  << "C"
                                                                  << "C:true,A:true,B:false";
    QTest::newRow("unknown and repeated keys in an order are dropped") << "A:true,B:false"
                                                                       << "B,X,B,A"
                                                                       << "B:false,A:true";
    QStringList many;
    for (int i = 0; i < 10000; ++i)
        many << QStringLiteral("k%1:%2").arg(i).arg(i % 2 ? "true" : "false");
    QStringList reversed = many;
    std::reverse(reversed.begin(), reversed.end());
    QString order = reversed.join(QLatin1Char(','));
    order.replace(QStringLiteral(":true"), QString()).replace(QStringLiteral(":false"), QString());
    QTest::newRow("10,000 entries, turned round")
        << many.join(QLatin1Char(',')) << order << reversed.join(QLatin1Char(','));
}

void tst_InfoLogic::displayList()
{
    QFETCH(QString, text);
    QFETCH(QString, order);
    QFETCH(QString, written);
    InfoDisplayList list = InfoDisplayList::parse(text);
    if (!order.isEmpty())
        list.reorder(order);
    QCOMPARE(list.toText(), written);
}

void tst_InfoLogic::settingsHtml_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("saveView");
    QTest::addColumn<QString>("html");

    QTest::newRow("an item without a dialog, checked and enabled")
        << "Camera name:true" << false
        << "<li><input type='checkbox' id='Camera name' checked='checked'><label for='Camera "
           "name'>[Camera name]</label></li>";
    QTest::newRow("an unknown key: a disabled box")
        << "Nonsense:false" << false
        << "<li><input type='checkbox' id='Nonsense'  disabled='disabled'><label "
           "for='Nonsense'>[Nonsense]</label></li>";
    QTest::newRow("separators of the save form don't move")
        << "<hr>,FrameNumber:false" << true
        << "<hr class='unsortable'><li><input type='checkbox' id='FrameNumber' ><label "
           "for='FrameNumber'>[FrameNumber]</label><a href='#' name='editinfo_edit' "
           "id='edit_frame' class='float-right localize'>edit...</a></li>";
    QTest::newRow("a key from the preferences stays text")
        << "x'><script>:true" << false
        << "<li><input type='checkbox' id='x&#39;&gt;&lt;script&gt;' checked='checked' "
           "disabled='disabled'><label for='x&#39;&gt;&lt;script&gt;'>[x&#39;&gt;&lt;script&gt;]"
           "</label></li>";
}

void tst_InfoLogic::settingsHtml()
{
    QFETCH(QString, text);
    QFETCH(bool, saveView);
    QFETCH(QString, html);
    const QHash<QString, bool> enabled { { "Camera name", true }, { "FrameNumber", true } };
    const QString built = InfoSettingsHtml::build(
        InfoDisplayList::parse(text), enabled, saveView,
        [](const QString& key) { return QLatin1Char('[') + key + QLatin1Char(']'); },
        QStringLiteral("edit..."));
    QCOMPARE(built, html);
}

void tst_InfoLogic::settingChecks_data()
{
    QTest::addColumn<bool>("saveView");
    QTest::addColumn<QString>("setter");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("key"); // where the value lands
    QTest::addColumn<QVariant>("stored"); // invalid: nothing written
    QTest::addColumn<bool>("told"); // a message for the user

    QTest::newRow("font size: a listed size")
        << false << "setFontSize" << QVariant("16") << "info/FontSize" << QVariant("16") << false;
    QTest::newRow("font size: no number")
        << false << "setFontSize" << QVariant("big") << "info/FontSize" << QVariant() << true;
    QTest::newRow("font size: too large")
        << false << "setFontSize" << QVariant("201") << "info/FontSize" << QVariant() << true;
    QTest::newRow("width: negative")
        << false << "setWidth" << QVariant(-1) << "info/Width" << QVariant() << true;
    QTest::newRow("colour: a name becomes #rrggbb")
        << false << "setForegroundColor" << QVariant("red") << "info/ForegroundColor"
        << QVariant("#ff0000") << false;
    QTest::newRow("colour: not a colour") << false << "setForegroundColor" << QVariant("#12")
                                          << "info/ForegroundColor" << QVariant() << true;
    QTest::newRow("save form: the set's own key")
        << true << "setColumnNum" << QVariant("3") << "saveinfo/ColumnNum1" << QVariant("3")
        << false;
    QTest::newRow("save form: nine columns refused")
        << true << "setColumnNum" << QVariant("9") << "saveinfo/ColumnNum1" << QVariant() << true;
    QTest::newRow("screen form: no columns at all")
        << false << "setColumnNum" << QVariant("3") << "saveinfo/ColumnNum0" << QVariant() << false;
}

void tst_InfoLogic::settingChecks()
{
    QFETCH(bool, saveView);
    QFETCH(QString, setter);
    QFETCH(QVariant, value);
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(bool, told);

    makeHost(R"({"cameras": [{}]})");
    GUI_EditInfoDialog dialog(
        m_host.get(), 1, saveView, nullptr, -1, { 1 }, QDateTime::currentDateTime());
    m_recorder->clear();
    const bool isText = value.type() == QVariant::String;
    const QByteArray signature = setter.toLatin1() + (isText ? "(QString)" : "(int)");
    const int index = dialog.metaObject()->indexOfMethod(signature);
    QVERIFY2(index >= 0, signature.constData());
    if (isText)
        dialog.metaObject()->method(index).invoke(&dialog, Q_ARG(QString, value.toString()));
    else
        dialog.metaObject()->method(index).invoke(&dialog, Q_ARG(int, value.toInt()));
    QCOMPARE(m_host->preferences()->contains(key), stored.isValid());
    if (stored.isValid())
        QCOMPARE(m_host->preferences()->value(key, QVariant()).toString(), stored.toString());
    QCOMPARE(messages(), told ? 1 : 0);
}

void tst_InfoLogic::cancelPutsBackTheStart()
{
    makeHost(R"({"cameras": [{}], "prefs": {"saveinfo/display2": "Comment:true",
        "saveinfo/FontSize4": "10"}})");
    GUI_EditInfoDialog dialog(
        m_host.get(), 1, true, nullptr, -1, { 1 }, QDateTime::currentDateTime());
    dialog.changeDisp(QStringLiteral("Comment"), false, 2);
    dialog.backupFontSettings(4);
    dialog.setFontSize(QStringLiteral("20"));
    dialog.setCollectiveSetting(true);
    dialog.setWithinImage(false);
    dialog.writeFontOK();
    dialog.cancel();
    HST_Preferences* prefs = m_host->preferences();
    QCOMPARE(prefs->value(QStringLiteral("saveinfo/display2"), QVariant()).toString(),
        QStringLiteral("Comment:true"));
    for (int set = 1; set <= 6; ++set)
        QCOMPARE(
            prefs->value(QStringLiteral("saveinfo/FontSize%1").arg(set), QVariant()).toString(),
            QLatin1String(set == 4 ? "10" : "24"));
    // What Cancel leaves alone.
    QCOMPARE(prefs->value(QStringLiteral("saveinfo/collectiveSetting"), QVariant()).toBool(), true);
    QCOMPARE(prefs->value(QStringLiteral("saveinfo/WithinImage"), QVariant()).toBool(), false);
    // Set 0 is the screen's business in the save form: Cancel doesn't write its font.
    QVERIFY(!prefs->contains(QStringLiteral("saveinfo/FontSize0")));
}

void tst_InfoLogic::selectionWalk_data()
{
    QTest::addColumn<QStringList>("selections"); // given one after another
    QTest::addColumn<int>("current");
    QTest::newRow("nothing selected") << QStringList { "1", "" } << 0;
    QTest::newRow("grown: the last new row") << QStringList { "2", "1,2,3" } << 3;
    QTest::newRow("current left: the next old row behind it, not the first new one")
        << QStringList { "3", "1,3", "2,3" } << 3;
    QTest::newRow("current left at the end: wraps to the start")
        << QStringList { "1", "1,2", "1,3" } << 1;
    QTest::newRow("rows 1 and 2, row 1 current; 2 and 3 leave row 2 current")
        << QStringList { "2", "2,1", "2,3" } << 2;
    QTest::newRow("another row left: current stays") << QStringList { "1", "1,2", "2,3" } << 2;
    QTest::newRow("wholly new selection: its first row") << QStringList { "1", "1,2", "3,4" } << 3;
}

void tst_InfoLogic::selectionWalk()
{
    QFETCH(QStringList, selections);
    QFETCH(int, current);
    makeHost(R"({"cameras": [{"comment": "one"}, {"comment": "two"}, {"comment": "three"},
        {"comment": "four"}]})");
    GUI_CommentDialog dialog(m_host.get(), nullptr);
    for (const QString& selection : selections) {
        QList<int> ids;
        for (const QString& id : selection.split(QLatin1Char(','), Qt::SkipEmptyParts))
            ids << id.toInt();
        dialog.setSelectedItems(ids);
    }
    const QStringList texts { "", "one", "two", "three", "four" };
    QCOMPARE(dialog.getComment(), texts.at(current));
}

void tst_InfoLogic::hostTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    APP_TimeCodeRecord counted;
    counted.index = 1;
    counted.oneFrame = 0.5;
    counted.startValue = 10;
    counted.reset = true;
    counted.resetValue = 12;
    APP_TimeCodeRecord realTime;
    realTime.scopeDisplayIndex = 3;
    realTime.decimalPlaceIndex = 2;
    QTest::newRow("grouped") << HST_InfoValues::grouped(1234567, true) << "1,234,567";
    QTest::newRow("not grouped") << HST_InfoValues::grouped(1234567, false) << "1234567";
    QTest::newRow("shutter as a fraction")
        << HST_InfoValues::shutterSpeed(0, 0, true) << "1/2,000 sec";
    QTest::newRow("shutter in microseconds")
        << HST_InfoValues::shutterSpeed(1, 2, false) << "500 usec";
    QTest::newRow("recording time as h:mm:ss")
        << HST_InfoValues::recordingTime(61500, 2) << "00:01:01.500";
    QTest::newRow("counted time code wraps at the reset")
        << HST_InfoValues::timeCode(counted, 5) << "+10.5000 deg";
    QTest::newRow("real time in milliseconds")
        << HST_InfoValues::timeCode(realTime, 3) << "+003.00 msec";
}

void tst_InfoLogic::hostTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(text, expected);
}

QTEST_MAIN(tst_InfoLogic)
#include "tst_infoLogic.moc"
