// The naming rule against the reference host, in a temporary directory tree: each table is one
// rule, its rows what the rule must get right. "$DIR" in a row stands for the tree's root.
#include "../ScenarioHost.h"

#include "host/HST_Document.h"
#include "plugin/SharedKeys.h"
#include "save/NamingText.h"
#include "save/OutputNaming.h"
#include "util/UTL_Exception.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <memory>

namespace {

const QDateTime batchTime(QDate(2024, 3, 5), QTime(14, 7, 9));

} // namespace

class tst_OutputNaming : public QObject
{
    Q_OBJECT

private slots:
    void numberText_data();
    void numberText();
    void fileNameCharacters_data();
    void fileNameCharacters();
    void timeIsInTheCLocale();
    void saveDirectory_data();
    void saveDirectory();
    void groupDirectory_data();
    void groupDirectory();
    void subDirectoryLooksBesideTheGroup();
    void fileName_data();
    void fileName();
    void savePaths_data();
    void savePaths();
    void registryPasses_data();
    void registryPasses();

private:
    // The scenario: one camera at 10.0.0.5 named "Cam", with setup's keys ("camera": keys of
    // the camera) and the existing entries (a trailing "/" makes a directory) made in the tree.
    HST_Host* start(const QString& setup, const QStringList& existing);
    // "dir:D", "path:P", "group:G": what the batch planned before.
    void note(const QStringList& noted);
    // "$DIR" is the tree's root; "$NAMEnnn" a name that makes "$DIR/name" nnn characters long.
    QString rooted(QString text) const;
    int existsWarnings() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_root;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
};

QString tst_OutputNaming::rooted(QString text) const
{
    static const QRegularExpression fill(QStringLiteral("\\$NAME(\\d+)"));
    QRegularExpressionMatch match;
    while ((match = fill.match(text)).hasMatch()) {
        const int length = match.captured(1).toInt() - m_root.size() - 1;
        text.replace(match.capturedStart(), match.capturedLength(), QString(length, 'n'));
    }
    return text.replace(QLatin1String("$DIR"), m_root);
}

HST_Host* tst_OutputNaming::start(const QString& setup, const QStringList& existing)
{
    // One recorder at a time: each is Qt's message handler while it lives.
    m_host.reset();
    m_recorder.reset();
    m_recorder.reset(new HST_Recorder);
    m_dir.reset(new QTemporaryDir);
    m_root = m_dir->path();
    for (const QString& entry : existing) {
        const QString path = m_dir->filePath(entry);
        QDir().mkpath(entry.endsWith(QLatin1Char('/')) ? path : QFileInfo(path).absolutePath());
        QFile file(path);
        if (!entry.endsWith(QLatin1Char('/')))
            file.open(QIODevice::WriteOnly);
    }
    QJsonObject camera { { QStringLiteral("ip"), QStringLiteral("10.0.0.5") },
        { QStringLiteral("name"), QStringLiteral("Cam") } };
    QJsonObject scenario;
    const QJsonObject extra
        = QJsonDocument::fromJson(rooted(QStringLiteral("{%1}").arg(setup)).toUtf8()).object();
    for (auto it = extra.begin(); it != extra.end(); ++it) {
        if (it.key() != QLatin1String("camera")) {
            scenario.insert(it.key(), it.value());
            continue;
        }
        const QJsonObject keys = it.value().toObject();
        for (auto key = keys.begin(); key != keys.end(); ++key)
            camera.insert(key.key(), key.value());
    }
    if (!scenario.contains(QLatin1String("cameras")))
        scenario.insert(QStringLiteral("cameras"), QJsonArray { camera });
    QString error;
    m_host = makeScenarioHost(QJsonDocument(scenario).toJson(), m_recorder.get(), *m_dir, error);
    if (!m_host)
        qWarning("scenario refused: %s", qPrintable(error));
    return m_host.get();
}

void tst_OutputNaming::note(const QStringList& noted)
{
    for (const QString& entry : noted) {
        const QString text = rooted(entry.section(QLatin1Char(':'), 1));
        if (entry.startsWith(QLatin1String("dir:")))
            m_host->noteDirectory(text);
        else if (entry.startsWith(QLatin1String("path:")))
            m_host->notePath(text);
        else
            m_host->noteGroupDirectory(text);
    }
}

int tst_OutputNaming::existsWarnings() const
{
    int count = 0;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("log")))
        count += event.value(QStringLiteral("text")).toString().startsWith(QLatin1String("exists"));
    return count;
}

void tst_OutputNaming::numberText_data()
{
    QTest::addColumn<QList<int>>("numbers"); // camera, head, session, then their digit counts
    QTest::addColumn<QString>("expected");
    QTest::newRow("each part padded") << QList<int> { 2, 1, 3, 3, 2, 4 } << "C002H01S0003";
    QTest::newRow("count 0 leaves the part out") << QList<int> { 2, 1, 3, 0, 0, 4 } << "S0003";
    QTest::newRow("a wider number is not cut") << QList<int> { 1234, 1, 1, 2, 0, 0 } << "C1234";
}

void tst_OutputNaming::numberText()
{
    QFETCH(QList<int>, numbers);
    QTEST(::numberText(numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]),
        "expected");
}

void tst_OutputNaming::fileNameCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("separators and marks") << "a/b\\c:d*e?f\"g<h>i|j%k"
                                          << "a_b_c_d_e_f_g_h_i_j_k";
    QTest::newRow("tab is refused but stays") << "a\tb/c"
                                              << "a\tb_c";
    QTest::newRow("dot alone") << "."
                               << "_";
    QTest::newRow("two dots alone") << ".."
                                    << "__";
    QTest::newRow("dots inside a name stay") << "a..b"
                                             << "a..b";
}

void tst_OutputNaming::fileNameCharacters()
{
    QFETCH(QString, text);
    QTEST(replaceInvalidCharacters(text, QStringLiteral("_")), "expected");
}

void tst_OutputNaming::timeIsInTheCLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = formatDateTime(batchTime, QStringLiteral("MMMM ddd"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(text, QStringLiteral("March Tue"));
}

void tst_OutputNaming::saveDirectory_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    const QString lists
        = QStringLiteral(R"("export/dir": "/d", "export/multipathlist": "p1|/fast?p2|/slow|x?", )");
    QTest::newRow("device mapped to its path")
        << R"("prefs": {)" + lists + R"("export/multipathdevicelist": "10.0.0.5|p1"})" << 1
        << "/fast/";
    QTest::newRow("entry of three parts ignored")
        << R"("prefs": {)" + lists + R"("export/multipathdevicelist": "10.0.0.5|p2"})" << 1
        << "/d/";
    QTest::newRow("device not listed keeps the directory")
        << R"("prefs": {)" + lists + R"("export/multipathdevicelist": "10.0.0.9|p1"})" << 2
        << "/d/";
    QTest::newRow("single path ignores the lists") << R"("prefs": {)" + lists
            + R"("export/multipathdevicelist": "10.0.0.5|p1", "export/singlepath": true})"
                                                   << 1 << "/d/";
    QTest::newRow("snapshot never uses the lists")
        << R"("prefs": {"snap/dir": "/s", "export/multipathlist": "p1|/fast",
                "export/multipathdevicelist": "10.0.0.5|p1"})"
        << 7 << "/s/";
    QTest::newRow("convert takes the original directory")
        << R"("camera": {"filePath": "/rec/day1/a.dat"},
              "prefs": {"convert/dir": "/c", "convert/dirasoriginal": true})"
        << 6 << "/rec/day1/";
    QTest::newRow("save takes it in file mode only") << R"("camera": {"filePath": "/rec/a.dat"},
              "prefs": {"export/dir": "/d", "export/dirasoriginal": true})"
                                                     << 1 << "/d/";
    QTest::newRow("no file path keeps the directory")
        << R"("prefs": {"convert/dir": "/c", "convert/dirasoriginal": true})" << 6 << "/c/";
    QTest::newRow("unset directory stays empty") << "" << 1 << "";
}

void tst_OutputNaming::saveDirectory()
{
    QFETCH(QString, setup);
    QFETCH(int, mode);
    QVERIFY(start(setup, {}));
    QTEST(composeSaveDirectory(m_host.get(), mode, m_host->document(1)), "expected");
}

void tst_OutputNaming::groupDirectory_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QStringList>("noted");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("warnings");
    const QString group = QStringLiteral(R"("prefs": {"export/dir": "$DIR", "export/groupdir": true,
        "export/groupdirname": "A", "export/groupdiraddnumber": true, )");
    const QString session = QStringLiteral(R"("export/groupdiraddnumbersessionnodigits": 4)");
    const QString cameraAndHead = QStringLiteral(R"("export/groupdiraddnumbercameranodigits": 3,
        "export/groupdiraddnumberheadnodigits": 2, )");

    QTest::newRow("existing session skipped with a warning")
        << group + session + "}" << QStringList { "A_S0001/" } << QStringList() << 1 << "A_S0002"
        << 1;
    QTest::newRow("live mode numbers camera and head")
        << group + cameraAndHead + session + "}" << QStringList() << QStringList() << 1
        << "A_C001H01S0001" << 0;
    QTest::newRow("file mode numbers the session only")
        << R"("mode": 2, )" + group + cameraAndHead + session + "}" << QStringList()
        << QStringList() << 1 << "A_S0001" << 0;
    QTest::newRow("file mode without session count appends nothing")
        << R"("mode": 2, )" + group + cameraAndHead + R"("x": 0})" << QStringList { "A/" }
        << QStringList() << 1 << "A" << 0;
    QTest::newRow("empty name gets the number alone")
        << group + session + R"(, "export/groupdirname": ""})" << QStringList() << QStringList()
        << 1 << "S0001" << 0;
    QTest::newRow("auto digits follow the device set")
        << R"("deviceCount": 12, "camera": {"headCount": 3, "headNumber": 2}, )" + group
            + cameraAndHead + session + R"(, "export/groupdiraddnumberformat": "auto"})"
        << QStringList() << QStringList() << 1 << "A_C01H2S0001" << 0;
    QTest::newRow("planned by the batch is taken")
        << group + session + "}" << QStringList() << QStringList { "dir:$DIR/A_S0001/sub/" } << 1
        << "A_S0002" << 1;
    QTest::newRow("group fixed for the batch, without number or time")
        << group + session + R"(, "export/groupdiraddtime": true,
              "export/groupdiraddtimeformat": "yyyy"})"
        << QStringList() << QStringList { "group:B_S0007" } << 1 << "B_S0007" << 0;
    QTest::newRow("time appended")
        << R"("prefs": {"export/groupdir": true, "export/groupdirname": "A",
              "export/groupdiraddtime": true, "export/groupdiraddtimeformat": "yyyyMMdd"})"
        << QStringList() << QStringList() << 1 << "A_20240305" << 0;
    QTest::newRow("named after the file") << R"("prefs": {"export/groupdir": true,
        "export/groupdirasfilename": true, "export/groupdirname": "A"})"
                                          << QStringList() << QStringList() << 1 << "shot" << 0;
    QTest::newRow("mode 4 has none")
        << group + session + "}" << QStringList() << QStringList() << 4 << "" << 0;
    QTest::newRow("level off") << R"("prefs": {"export/groupdirname": "A"})" << QStringList()
                               << QStringList() << 1 << "" << 0;
}

void tst_OutputNaming::groupDirectory()
{
    QFETCH(QString, setup);
    QFETCH(QStringList, existing);
    QFETCH(QStringList, noted);
    QFETCH(int, mode);
    QVERIFY(start(setup, existing));
    note(noted);
    QTEST(composeGroupDirectory(
              m_host.get(), mode, m_host->document(1), QStringLiteral("shot"), batchTime),
        "expected");
    QTEST(existsWarnings(), "warnings");
}

void tst_OutputNaming::subDirectoryLooksBesideTheGroup()
{
    const QString setup = QStringLiteral(R"("prefs": {"export/dir": "$DIR", "export/subdir": true,
        "export/subdirname": "B", "export/subdiraddnumber": true,
        "export/subdiraddnumbersessionnodigits": 4})");
    QVERIFY(start(setup, { QStringLiteral("G/B_S0001/") }));
    QCOMPARE(composeSubDirectory(m_host.get(), 1, m_host->document(1), QString(), batchTime),
        QStringLiteral("B_S0001"));
    QVERIFY(start(setup, { QStringLiteral("B_S0001/") }));
    QCOMPARE(composeSubDirectory(m_host.get(), 1, m_host->document(1), QString(), batchTime),
        QStringLiteral("B_S0002"));
}

void tst_OutputNaming::fileName_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QStringList>("noted");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("expected");
    const QString infoFile = QStringLiteral(R"("export/media": "file", "save/SaveInfFile": true,
        "export/saveinf": true, "export/inf_testno": "T0", "export/filename": "x")");
    const QString items = QStringLiteral(R"("camera": {"partitions": [{"name": "a/b"}],
        "customData": [{"name": "TestNo", "value": "12", "unit": "mm"},
            {"name": "skip", "value": "no", "usefilename": false}, {"name": "n", "value": "x"}]}, )");
    const QString numbered = QStringLiteral(R"("prefs": {"export/dir": "$DIR",
        "export/filename": "shot", "export/filenameaddnumber": true,
        "export/filenameaddnumbersessionnodigits": 4)");

    QTest::newRow("information file takes the TestNo item")
        << items + R"("prefs": {)" + infoFile + "}" << QStringList() << QStringList() << 1 << "12";
    QTest::newRow("information file number without the item")
        << R"("prefs": {)" + infoFile + "}" << QStringList() << QStringList() << 1 << "T0";
    QTest::newRow("snapshot ignores the information file")
        << R"("prefs": {"snap/filename": "s", )" + infoFile + "}" << QStringList() << QStringList()
        << 7 << "s";
    QTest::newRow("original name") << R"("prefs": {"export/filenameasoriginal": true})"
                                   << QStringList() << QStringList() << 1 << "Cam";
    QTest::newRow("partition name wins over the original, cleaned")
        << items + R"("prefs": {"export/filenameasoriginal": true,
              "export/filenameaspartitionname": true})"
        << QStringList() << QStringList() << 1 << "a_b";
    QTest::newRow("partition name of two dots") << R"("camera": {"partitions": [{"name": ".."}]},
              "prefs": {"export/filenameaspartitionname": true})"
                                                << QStringList() << QStringList() << 1 << "__";
    QTest::newRow("custom info wins, with units")
        << items + R"("prefs": {"export/filenameaspartitionname": true,
              "export/filenameusecustom": true, "export/filenameusecustomincludeunit": true})"
        << QStringList() << QStringList() << 1 << "12mm_x";
    QTest::newRow("custom info of another document")
        << R"("cameras": [{"ip": "10.0.0.5"}, {"ip": "10.0.0.6",
              "customData": [{"name": "k", "value": "other"}]}],
              "prefs": {"export/filenameusecustom": true,
                  "export/filenameusecustomfromtarget": true,
                  "export/filenameusecustomfromtargetkey": 2})"
        << QStringList() << QStringList() << 1 << "other";
    QTest::newRow("custom info without a flagged item is blank")
        << R"("prefs": {"export/filename": "x", "export/filenameusecustom": true})" << QStringList()
        << QStringList() << 1 << "";
    QTest::newRow("session search past existing files")
        << numbered + "}" << QStringList { "shot_S0001.dat", "shot_S0002.avi", "other_S0003.dat" }
        << QStringList() << 1 << "shot_S0003";
    QTest::newRow("brackets in the name are no wildcards")
        << numbered + R"(, "export/filename": "[a]"})" << QStringList { "[a]_S0001.dat" }
        << QStringList() << 1 << "[a]_S0002";
    QTest::newRow("a path planned by the batch is taken")
        << numbered + "}" << QStringList() << QStringList { "path:$DIR/shot_S0001.tif" } << 1
        << "shot_S0002";
    QTest::newRow("searched inside the group directory")
        << numbered + R"(, "export/groupdir": true, "export/groupdirname": "G"})"
        << QStringList { "G/shot_S0001.dat", "shot_S0002.dat" } << QStringList() << 1
        << "shot_S0002";
    QTest::newRow("no session in the option, no search")
        << numbered + R"(, "export/filenameaddnumbersessionnodigits": 0,
              "export/filenameaddnumbercameranodigits": 3})"
        << QStringList { "shot_C001.dat" } << QStringList() << 1 << "shot_C001";
    QTest::newRow("details and time behind the number")
        << numbered + R"(, "export/filenameadddetails": true, "export/filenameaddtime": true,
              "export/filenameaddtimeformat": "HHmm"})"
        << QStringList() << QStringList() << 1 << "shot_S0001_P1_1000fps_1407";
}

void tst_OutputNaming::fileName()
{
    QFETCH(QString, setup);
    QFETCH(QStringList, existing);
    QFETCH(QStringList, noted);
    QFETCH(int, mode);
    QVERIFY(start(setup, existing));
    note(noted);
    QTEST(composeFileName(m_host.get(), mode, m_host->document(1), 1, true, batchTime), "expected");
}

void tst_OutputNaming::savePaths_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("expected"); // the paths in partition order
    QTest::addColumn<QString>("error");
    const QString save = QStringLiteral(R"("prefs": {"export/dir": "$DIR", )");
    const QString twoPartitions = QStringLiteral(R"("camera": {"partitions": [{}, {}]}, )");

    QTest::newRow("blank name refused") << save + "}" << 1 << QStringList() << "Invalid filename.";
    QTest::newRow("blank name allowed by the preference")
        << save + R"("save/EnableBlankFilename": true})" << 1 << QStringList { "$DIR/" } << "";
    QTest::newRow("blank name allowed in mode 17")
        << R"("prefs": {"report/dir": "$DIR"})" << 17 << QStringList { "$DIR/" } << "";
    QTest::newRow("245 characters pass")
        << save + R"("export/filename": "$NAME245"})" << 1 << QStringList { "$DIR/$NAME245" } << "";
    QTest::newRow("246 characters are refused")
        << save + R"("export/filename": "$NAME246"})" << 1 << QStringList()
        << "The path of the target is too long.";
    QTest::newRow("the thumbnail's path counts")
        << save + R"("export/filename": "$NAME240", "export/savethumbnail": true,
              "export/savethumbnailaddtextvalue": "_thumb1"})"
        << 1 << QStringList() << "The path of the target is too long.";
    QTest::newRow("no thumbnail beside an information file")
        << save + R"("export/filename": "$NAME240", "export/savethumbnail": true,
              "export/savethumbnailaddtextvalue": "_thumb1", "save/SaveInfFile": true,
              "export/saveinf": true})"
        << 1 << QStringList { "$DIR/$NAME240" } << "";
    QTest::newRow("report with round brackets and no length limit")
        << R"("prefs": {"report/dir": "$DIR", "report/filename": "[r]$NAME300",
              "report/subdir": true, "report/subdirname": "[s]"})"
        << 16 << QStringList { "$DIR/(s)/(r)$NAME300" } << "";
    QTest::newRow("each partition its own session")
        << twoPartitions + save + R"("export/filename": "shot", "export/filenameaddnumber": true,
              "export/filenameaddnumbersessionnodigits": 4})"
        << 1 << QStringList { "$DIR/shot_S0001", "$DIR/shot_S0002" } << "";
    QTest::newRow("one group directory for the batch")
        << twoPartitions + save + R"("export/filename": "shot",
              "export/filenameadddetails": true, "export/groupdir": true,
              "export/groupdirname": "G", "export/groupdiraddnumber": true,
              "export/groupdiraddnumbersessionnodigits": 4})"
        << 1 << QStringList { "$DIR/G_S0001/shot_P1_1000fps", "$DIR/G_S0001/shot_P2_1000fps" }
        << "";
    QTest::newRow("fixed target directory")
        << R"("saveRegistry": {"directory": "/fixed/"}, )" + save + R"("export/filename": "x"})"
        << 1 << QStringList { "/fixed/x" } << "";
}

void tst_OutputNaming::savePaths()
{
    QFETCH(QString, setup);
    QFETCH(int, mode);
    QFETCH(QStringList, expected);
    QFETCH(QString, error);
    QVERIFY(start(setup, {}));
    QMap<int, QString> groups;
    QMap<int, QString> dirs;
    QMap<int, QString> paths;
    QString thrown;
    try {
        composeSavePaths(m_host.get(), mode, m_host->document(1), true, groups, dirs, paths,
            batchTime, mode == 16 ? 1 : 0);
    } catch (const UTL_Exception& e) {
        thrown = QString::fromUtf8(e.what());
    }
    QCOMPARE(thrown, error);
    if (!error.isEmpty())
        return;
    for (QString& path : expected)
        path = rooted(path);
    QCOMPARE(paths.values(), expected);
    for (auto it = paths.begin(); it != paths.end(); ++it)
        QVERIFY(it.value().startsWith(dirs.value(it.key())));
}

void tst_OutputNaming::registryPasses_data()
{
    QTest::addColumn<QString>("pass");
    QTest::addColumn<QString>("expected"); // the path the second batch gets
    QTest::newRow("same batch: group fixed, name taken") << ""
                                                         << "$DIR/G_S0001/shot_S0002";
    QTest::newRow("committed: all forgotten") << "commitPendingNames"
                                              << "$DIR/G_S0001/shot_S0001";
    QTest::newRow("new group pass: planned group directory taken") << "beginGroupPass"
                                                                   << "$DIR/G_S0002/shot_S0001";
    QTest::newRow("new name pass: group stays fixed, names forgotten") << "beginNamePass"
                                                                       << "$DIR/G_S0001/shot_S0001";
}

void tst_OutputNaming::registryPasses()
{
    QFETCH(QString, pass);
    QVERIFY(start(R"("prefs": {"export/dir": "$DIR", "export/filename": "shot",
        "export/filenameaddnumber": true, "export/filenameaddnumbersessionnodigits": 4,
        "export/groupdir": true, "export/groupdirname": "G", "export/groupdiraddnumber": true,
        "export/groupdiraddnumbersessionnodigits": 4})",
        {}));
    QMap<int, QString> groups;
    QMap<int, QString> dirs;
    QMap<int, QString> paths;
    composeSavePaths(
        m_host.get(), 1, m_host->document(1), false, groups, dirs, paths, batchTime, 0);
    QCOMPARE(paths.value(1), rooted(QStringLiteral("$DIR/G_S0001/shot_S0001")));
    if (pass == QLatin1String("commitPendingNames"))
        m_host->commitPendingNames();
    else if (pass == QLatin1String("beginGroupPass"))
        m_host->beginGroupPass();
    else if (pass == QLatin1String("beginNamePass"))
        m_host->beginNamePass();
    composeSavePaths(
        m_host.get(), 1, m_host->document(1), false, groups, dirs, paths, batchTime, 0);
    QFETCH(QString, expected);
    QCOMPARE(paths.value(1), rooted(expected));
}

QTEST_GUILESS_MAIN(tst_OutputNaming)
#include "tst_outputnaming.moc"
