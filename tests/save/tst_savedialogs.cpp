// The save dialogs end to end through the reference host and the real plug-in: the file
// dialog's page driven as a user would, the files the host writes where the naming rule says,
// the refusals, Cancel; the number dialog, the conversion settings and the open dialog.
#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QJsonObject step(const QString& kind, const QJsonValue& value)
{
    return QJsonObject { { kind, value } };
}

QJsonObject js(const QString& code)
{
    return step(QStringLiteral("js"), code);
}

QJsonObject click(const QString& button)
{
    return step(QStringLiteral("click"), button);
}

// Two cameras, the first with two recorded partitions and an empty one; the naming of the
// example scenario: group "trial" numbered, a sub directory named as the file, the partition's
// name with the host's number and the dialog's time. prefs: "key": value pairs that replace
// those.
QByteArray scenario(const QString& dir, const QString& prefs)
{
    QJsonObject root = QJsonDocument::fromJson(R"({"mode": 1, "cameras": [
        {"name": "Left", "partitions": [{"name": "Run A", "frames": 40}, {"name": "Run B",
            "frames": 20}, {"name": "Empty", "frames": 0}]},
        {"name": "Right", "partitions": [{"name": "Run A", "frames": 40}]}],
        "prefs": {"export/fileformat": "PNG", "export/groupdir": true,
        "export/groupdirname": "trial", "export/groupdiraddnumber": true,
        "export/groupdiraddnumbersessionnodigits": 3, "export/subdir": true,
        "export/subdirasfilename": true, "export/filenameaspartitionname": true,
        "export/filenameaddnumber": true, "export/filenameaddnumbercameranodigits": 2,
        "export/filenameaddnumberheadnodigits": 1, "export/filenameaddnumbersessionnodigits": 3,
        "export/filenameaddtime": true, "export/filenameaddtimeformat": "HHmmss",
        "snap/fileformat": "JPEG", "snap/filename": "shot"}})")
                           .object();
    QJsonObject values = root.value(QStringLiteral("prefs")).toObject();
    values.insert(QStringLiteral("export/dir"), dir);
    values.insert(QStringLiteral("snap/dir"), dir);
    const QJsonObject changes
        = QJsonDocument::fromJson(QStringLiteral("{%1}").arg(prefs).toUtf8()).object();
    for (auto it = changes.begin(); it != changes.end(); ++it)
        values.insert(it.key(), it.value());
    root.insert(QStringLiteral("prefs"), values);
    return QJsonDocument(root).toJson();
}

// Left's two recorded partitions and Right's first, then the page's button.
QJsonArray chooseAndPress(const QString& button)
{
    return { js("filedialogPage.check(1, 2, true); filedialogPage.check(2, 1, true); 1"),
        js(QStringLiteral("$('#%1').click(); 1").arg(button)) };
}

} // namespace

class tst_SaveDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void save_data();
    void save();
    void numberDialog_data();
    void numberDialog();
    void conversionSettings_data();
    void conversionSettings();
    void openDialog_data();
    void openDialog();
    void subDialogs_data();
    void subDialogs();

private:
    struct Run
    {
        int code = -1;
        QList<QJsonObject> events;
        QList<QJsonObject> of(const QString& call) const;
        QStringList texts(const QString& call, const QString& field) const;
    };
    Run run(const QByteArray& scenario, const QJsonArray& steps, const QString& open);
    // The files under the output directory, relative, each six-digit time as "<t>".
    QStringList written(QSet<QString>* times = nullptr) const;
    QVariant pref(const QString& key) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
};

QList<QJsonObject> tst_SaveDialogs::Run::of(const QString& call) const
{
    QList<QJsonObject> found;
    for (const QJsonObject& event : events) {
        if (event.value(QStringLiteral("call")).toString() == call)
            found.append(event);
    }
    return found;
}

QStringList tst_SaveDialogs::Run::texts(const QString& call, const QString& field) const
{
    QStringList found;
    for (const QJsonObject& event : of(call))
        found << event.value(field).toString();
    return found;
}

void tst_SaveDialogs::init()
{
    m_dir.reset(new QTemporaryDir);
    m_out = m_dir->filePath(QStringLiteral("out"));
}

tst_SaveDialogs::Run tst_SaveDialogs::run(
    const QByteArray& scenario, const QJsonArray& steps, const QString& open)
{
    HST_Options options;
    options.scenarioJson = scenario;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir->filePath(QStringLiteral("prefs.ini"));
    options.steps = steps;
    options.open = open;
    options.quit = true;
    HST_Application application(options);
    Run result;
    result.code = application.run();
    result.events = application.recorder()->events();
    return result;
}

QStringList tst_SaveDialogs::written(QSet<QString>* times) const
{
    static const QRegularExpression time(QStringLiteral("_(\\d{6})(?=[._])"));
    QStringList files;
    QDirIterator it(m_out, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QString file = QDir(m_out).relativeFilePath(it.next());
        const QRegularExpressionMatch match = time.match(file);
        if (match.hasMatch()) {
            if (times)
                times->insert(match.captured(1));
            file.replace(match.capturedStart(1), 6, QStringLiteral("<t>"));
        }
        files << file;
    }
    files.sort();
    return files;
}

QVariant tst_SaveDialogs::pref(const QString& key) const
{
    return QSettings(m_dir->filePath(QStringLiteral("prefs.ini")), QSettings::IniFormat).value(key);
}

void tst_SaveDialogs::save_data()
{
    QTest::addColumn<QString>("prefs");
    QTest::addColumn<QString>("open");
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("reported");

    QTest::newRow("two cameras into one group, a sub directory each, numbers and time")
        << ""
        << "filesavedialog" << chooseAndPress("save")
        << QStringList { "trial_S001/Run A/Run A_C01H1S001_<t>.png",
               "trial_S001/Run A/Run A_C02H1S001_<t>.png",
               "trial_S001/Run B/Run B_C01H1S001_<t>.png" }
        << QStringList();
    QJsonArray twice = chooseAndPress("save");
    twice.append(step(QStringLiteral("menu"), QStringLiteral("File/Save...")));
    twice.append(js("$('#save').click(); 1"));
    QTest::newRow("a second save: the next session")
        << ""
        << "filesavedialog" << twice
        << QStringList { "trial_S001/Run A/Run A_C01H1S001_<t>.png",
               "trial_S001/Run A/Run A_C02H1S001_<t>.png",
               "trial_S001/Run B/Run B_C01H1S001_<t>.png",
               "trial_S002/Run A/Run A_C01H1S001_<t>.png" }
        << QStringList();
    QJsonArray refused = chooseAndPress("save");
    refused.append(click("OK"));
    refused.append(js("$('#cancel').click(); 1"));
    QTest::newRow("a blank name refused, nothing written")
        << R"("export/filenameaspartitionname": false, "export/filenameaddnumber": false,
            "export/filenameaddtime": false)"
        << "filesavedialog" << refused << QStringList() << QStringList { "Invalid filename." };
    QTest::newRow("a path over the limit refused, nothing written")
        << QStringLiteral(R"("export/groupdirname": "%1")").arg(QString(230, 'g'))
        << "filesavedialog" << refused << QStringList()
        << QStringList { "The path of the target is too long." };
    QTest::newRow("Cancel writes nothing")
        << ""
        << "filesavedialog"
        << QJsonArray { js("filedialogPage.check(1, 2, true); 1"), js("$('#cancel').click(); 1") }
        << QStringList() << QStringList();
    QTest::newRow("apply writes and stays; a movie with a thumbnail and its information")
        << R"("export/fileformat": "AVI", "export/codec": "MJPEG", "export/savethumbnail": true,
            "export/savethumbnailaddtextvalue": "_small", "export/saveinf": true,
            "export/groupdir": false, "export/subdir": false)"
        << "filesavedialog"
        << QJsonArray { js("$('#apply').click(); 1"), js("$('#cancel').click(); 1") }
        << QStringList { "Run A_C01H1S001_<t>.avi", "Run A_C01H1S001_<t>.inf",
               "Run A_C01H1S001_<t>_small.png" }
        << QStringList();
    QTest::newRow("a format the host can't write: told, nothing written")
        << R"("export/fileformat": "MOV", "export/groupdir": false, "export/subdir": false)"
        << "filesavedialog"
        << QJsonArray { js("$('#save').click(); 1"), click("OK"), js("$('#cancel').click(); 1") }
        << QStringList() << QStringList { "The host can't write MOV files." };
    QTest::newRow("the snapshot dialog names by its own family")
        << ""
        << "snapshotdialog" << QJsonArray { js("$('#save').click(); 1") }
        << QStringList { "shot.jpg" } << QStringList();
}

void tst_SaveDialogs::save()
{
    QFETCH(QString, prefs);
    QFETCH(QString, open);
    QFETCH(QJsonArray, steps);
    const Run result = run(scenario(m_out, prefs), steps, open);
    QCOMPARE(result.code, 0);
    QSet<QString> times;
    QTEST(written(&times), "files");
    // Every name of a dialog carries its one date and time.
    QVERIFY(times.size() <= steps.count() / 2);
    QTEST(result.texts(QStringLiteral("reportException"), QStringLiteral("text")), "reported");
    // The record lists every file written.
    QStringList recorded;
    for (const QJsonObject& event : result.of(QStringLiteral("saveDocument"))) {
        for (const QJsonValue& file : event.value(QStringLiteral("files")).toArray())
            recorded << QDir(m_out).relativeFilePath(file.toString());
    }
    QCOMPARE(recorded.size(), written().size());
    // The batch's plan is gone once it is on disk.
    QVERIFY(!result.of(QStringLiteral("saveRegistry")).isEmpty());
    QCOMPARE(
        result.of(QStringLiteral("saveRegistry")).last().value(QStringLiteral("op")).toString(),
        QStringLiteral("commitPendingNames"));
}

void tst_SaveDialogs::numberDialog_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QVariantMap>("prefs"); // after the run; an invalid value: not written

    QTest::newRow("OK writes the counts of the save's sub directory")
        << "addnumberdialog:1"
        << QJsonArray { js("$('#camera').val(3); $('#head').val(2); $('#session').val(4)"
                           ".change(); $('#preview').text()"),
               js("$('#ok').click(); 1") }
        << "C001H01S0001"
        << QVariantMap { { "export/subdiraddnumbercameranodigits", 3 },
               { "export/subdiraddnumberheadnodigits", 2 },
               { "export/subdiraddnumbersessionnodigits", 4 },
               { "export/subdiraddnumberformat", "digits" } };
    QTest::newRow("Cancel writes nothing")
        << "addnumberdialog:1"
        << QJsonArray { js("$('#session').val(4).change(); $('#preview').text()"),
               js("$('#cancel').click(); 1") }
        << "S0001" << QVariantMap { { "export/subdiraddnumbersessionnodigits", QVariant() } };
    QTest::newRow("a conversion's sub directory numbers sessions only")
        << "addnumberdialog:4"
        << QJsonArray { js("$('#camera').val(3); $('#session').val(2).change(); "
                           "$('#preview').text()"),
               js("$('#ok').click(); 1") }
        << "S01"
        << QVariantMap { { "convert/subdiraddnumbersessionnodigits", 2 },
               { "convert/subdiraddnumbercameranodigits", QVariant() } };
}

void tst_SaveDialogs::numberDialog()
{
    QFETCH(QString, open);
    QFETCH(QJsonArray, steps);
    QFETCH(QVariantMap, prefs);
    const Run result = run(R"({"cameras": [{}, {}]})", steps, open);
    QCOMPARE(result.code, 0);
    QTEST(result.of(QStringLiteral("js")).first().value(QStringLiteral("result")).toString(),
        "sample");
    for (auto it = prefs.begin(); it != prefs.end(); ++it)
        QCOMPARE(pref(it.key()).toString(), it.value().toString());
}

void tst_SaveDialogs::conversionSettings_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<int>("result");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QVariant>("groupdir");

    QTest::newRow("a setting stays after Cancel")
        << ""
        << QJsonArray { js("$('#targetPath').text()"),
               js("$('[data-key=groupdir]').click(); $('#cancel, .hostpage-cancel').click(); 1") }
        << 0 << QStringList() << QVariant(true);
    QTest::newRow("while a conversion runs it doesn't open")
        << R"(, "status": {"IsBgConverting": true})" << QJsonArray { click("OK") } << 0
        << QStringList { "You can not edit during the conversion process." } << QVariant();
}

void tst_SaveDialogs::conversionSettings()
{
    QFETCH(QString, status);
    QFETCH(QJsonArray, steps);
    const Run result = run(QStringLiteral(R"({"cameras": [{}], "prefs": {"convert/dir": "%1"}%2})")
                               .arg(m_out, status)
                               .toUtf8(),
        steps, QStringLiteral("convertparametereditdialog"));
    QCOMPARE(result.code, 0);
    QTEST(
        result.of(QStringLiteral("open")).last().value(QStringLiteral("result")).toInt(), "result");
    QTEST(result.texts(QStringLiteral("message"), QStringLiteral("text")), "messages");
    QFETCH(QVariant, groupdir);
    QCOMPARE(pref(QStringLiteral("convert/groupdir")).toString(), groupdir.toString());
    if (status.isEmpty())
        QCOMPARE(result.of(QStringLiteral("js")).first().value(QStringLiteral("result")).toString(),
            m_out + QLatin1Char('/'));
}

void tst_SaveDialogs::openDialog_data()
{
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QStringList>("calls"); // the media and document events, in order
    QTest::addColumn<QStringList>("reported");

    QTest::newRow("a card's recordings, one imported")
        << QJsonArray { js("$('#openSd').click(); filedialogPage.rows().length"),
               js("filedialogPage.check(2, 1, true); $('#import').click(); 1") }
        << QStringList { "setMediaKind 5", "openMedia E: 2,3", "importDocuments 2" }
        << QStringList();
    QTest::newRow("a unit locked by a password waits for the password dialog")
        << QJsonArray { js("$('#openVp').click(); 1"), click("OK"), js("$('#cancel').click(); 1") }
        << QStringList { "setMediaKind 7" } << QStringList { "The dialog is not available." };
    QTest::newRow("formatting a CFast card empties it")
        << QJsonArray { js("$('#formatCf').click(); 1"), click("OK"), click("OK"),
               js("$('#cfUse').text()"), js("$('#cancel').click(); 1") }
        << QStringList { "formatMedia G:", "setMediaKind 2", "openMedia G: " } << QStringList();
}

void tst_SaveDialogs::openDialog()
{
    QFETCH(QJsonArray, steps);
    const Run result = run(R"({"mode": 2, "cameras": [{"media": {
        "sd": [{"drive": "E:", "recordings": [{"name": "take-1"}, {"name": "take-2"}]}],
        "storageUnit": [{"drive": "F:", "password": "secret", "recordings": [{"name": "v"}]}],
        "cfast": [{"drive": "G:", "recordings": [{"name": "c", "frames": 5000}]}]}}]})",
        steps, QStringLiteral("fileopendialog"));
    QCOMPARE(result.code, 0);
    QStringList calls;
    for (const QJsonObject& event : result.events) {
        const QString call = event.value(QStringLiteral("call")).toString();
        QStringList keys;
        for (const QJsonValue& key : event.value(QStringLiteral("keys")).toArray())
            keys << QString::number(key.toInt());
        if (call == QLatin1String("setMediaKind"))
            calls << call + QLatin1Char(' ') + QString::number(event.value("kind").toInt());
        else if (call == QLatin1String("openMedia"))
            calls << QStringLiteral("%1 %2 %3")
                         .arg(call, event.value("drive").toString(), keys.join(','));
        else if (call == QLatin1String("formatMedia"))
            calls << call + QLatin1Char(' ') + event.value("drive").toString();
        else if (call == QLatin1String("importDocuments"))
            calls << call + QLatin1Char(' ') + keys.join(',');
    }
    QTEST(calls, "calls");
    QTEST(result.texts(QStringLiteral("reportException"), QStringLiteral("text")), "reported");
    // No password in the record, whatever happened.
    for (const QJsonObject& event : result.events)
        QVERIFY(!QJsonDocument(event).toJson().contains("secret"));
}

void tst_SaveDialogs::subDialogs_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("page"); // the sub dialog's page; "" when it must not open
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("the time code dialog") << "timeCode"
                                          << ""
                                          << "prefs_customize_timecode.html" << QStringList();
    QTest::newRow("the information of saved pictures") << "editInfo"
                                                       << ""
                                                       << "saveinfoview.html" << QStringList();
    QTest::newRow("no time code while a conversion runs")
        << "timeCode"
        << R"(, "status": {"IsBgConverting": true})"
        << "" << QStringList { "You can not edit during the conversion process." };
    QTest::newRow("no information while a conversion runs")
        << "editInfo"
        << R"(, "status": {"IsBgConverting": true})"
        << "" << QStringList { "You can not edit during the conversion process." };
}

void tst_SaveDialogs::subDialogs()
{
    QFETCH(QString, button);
    QFETCH(QString, status);
    QFETCH(QString, page);
    const QString where = QStringLiteral("location.href.split('/').pop()");
    QJsonArray steps { js(
        QStringLiteral("filedialogPage.check(1, 1, true); $('#%1').click(); 1").arg(button)) };
    if (page.isEmpty())
        steps.append(click("OK"));
    else
        steps << js(where) << js("$('.hostpage-cancel').click(); 1");
    steps.append(js("$('#cancel').click(); 1"));
    QByteArray world = scenario(m_out, QString());
    world.insert(world.lastIndexOf('}'), status.toUtf8());
    const Run result = run(world, steps, QStringLiteral("filesavedialog"));
    QCOMPARE(result.code, 0);
    QStringList shown;
    for (const QJsonObject& event : result.of(QStringLiteral("js")))
        if (event.value(QStringLiteral("code")).toString() == where)
            shown << event.value(QStringLiteral("result")).toString();
    QCOMPARE(shown, page.isEmpty() ? QStringList() : QStringList { page });
    QTEST(result.texts(QStringLiteral("message"), QStringLiteral("text")), "messages");
}

QTEST_MAIN(tst_SaveDialogs)
#include "tst_savedialogs.moc"
