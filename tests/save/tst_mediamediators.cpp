// The removable media pages' mediators against the reference host: what each kind answers for
// media that are in, out, unformatted or not there at all, the data lists, formatting with
// and without the user's consent, and a medium taken out half way.
#include "../ScenarioHost.h"

#include "save/FileDialogKind.h"
#include "save/JS_Mediator_FileDialog.h"
#include "save/JS_Mediator_SaveCFast.h"
#include "save/JS_Mediator_SaveSD.h"
#include "save/JS_Mediator_SaveVaultPack.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

const char threeSets[]
    = R"("recordings": [{"name": "a", "frames": 10}, {"name": "b"}, {"name": "c"}])";

QString recids(const QString& list)
{
    QStringList ids;
    for (const QJsonValue& row : QJsonDocument::fromJson(list.toUtf8()).array())
        ids << QString::number(row.toObject().value(QStringLiteral("recid")).toInt());
    return ids.join(QLatin1Char(','));
}

} // namespace

class tst_MediaMediators : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void answers_data();
    void answers();
    void dataListFields();
    void format_data();
    void format();
    void dataName_data();
    void dataName();
    void passwordOfADriveThatIsNotThere();

private:
    // camera: the keys of the one camera; beyond: more keys of the scenario.
    bool start(const QString& camera, const QString& beyond = QString());
    std::unique_ptr<JS_Mediator_SaveMedia> mediator(const QString& kind) const;
    QStringList events(const QString& call, const QString& field) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<HST_Recorder> m_recorder;
    std::unique_ptr<HST_Host> m_host;
    QTimer m_answerer;
    // The button that answers a question.
    QMessageBox::StandardButton m_answer = QMessageBox::Ok;
};

void tst_MediaMediators::init()
{
    m_answer = QMessageBox::Ok;
    connect(&m_answerer, &QTimer::timeout, this, [this] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            QAbstractButton* button = box->button(m_answer);
            (button ? button : box->button(QMessageBox::Ok))->click();
        }
    });
    m_answerer.start(10);
}

void tst_MediaMediators::cleanup()
{
    m_answerer.stop();
    m_answerer.disconnect();
    m_host.reset();
    m_recorder.reset();
}

bool tst_MediaMediators::start(const QString& camera, const QString& beyond)
{
    m_host.reset();
    m_recorder.reset(new HST_Recorder);
    m_dir.reset(new QTemporaryDir);
    QString error;
    m_host = makeScenarioHost(QStringLiteral(R"({"cameras": [{"name": "Left", %1}]%2})")
                                  .arg(camera, beyond.isEmpty() ? QString() : ", " + beyond)
                                  .toUtf8(),
        m_recorder.get(), *m_dir, error);
    if (!m_host)
        qWarning("%s", qPrintable(error));
    return m_host != nullptr;
}

std::unique_ptr<JS_Mediator_SaveMedia> tst_MediaMediators::mediator(const QString& kind) const
{
    if (kind == QLatin1String("sd"))
        return std::make_unique<JS_Mediator_SaveSD>(m_host.get(), kind);
    if (kind == QLatin1String("vp"))
        return std::make_unique<JS_Mediator_SaveVaultPack>(m_host.get(), kind);
    return std::make_unique<JS_Mediator_SaveCFast>(m_host.get(), kind);
}

QStringList tst_MediaMediators::events(const QString& call, const QString& field) const
{
    QStringList found;
    for (const QJsonObject& event : m_recorder->events(call))
        found << event.value(field).toVariant().toString();
    return found;
}

void tst_MediaMediators::answers_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("camera"); // the camera's scenario keys
    QTest::addColumn<int>("slot");
    QTest::addColumn<QString>("expected"); // managed enabled present formatted, as 0 and 1
    QTest::addColumn<QString>("recids");
    QTest::addColumn<bool>("freeSpace");
    QTest::addColumn<QStringList>("reported");

    const QString sd = QStringLiteral(R"("media": {"sd": [{%1}]})");
    const QString vp = QStringLiteral(R"("media": {"storageUnit": [{%1}]})");
    const QString cf = QStringLiteral(R"("media": {"cfast": [{%1}]})");
    QTest::newRow("sd: a card with three data sets") << "sd" << sd.arg(threeSets) << 1 << "1111"
                                                     << "1,2,3" << false << QStringList();
    QTest::newRow("sd: 0 is the first enabled slot") << "sd" << sd.arg(threeSets) << 0 << "1111"
                                                     << "1,2,3" << false << QStringList();
    QTest::newRow("sd: no card in") << "sd" << sd.arg(R"("present": false)") << 1 << "1100"
                                    << "" << false << QStringList();
    QTest::newRow("sd: an unformatted card lists nothing")
        << "sd" << sd.arg(QStringLiteral(R"("formatted": false, %1)").arg(threeSets)) << 1 << "1110"
        << "" << false << QStringList();
    QTest::newRow("sd: a slot the camera hasn't")
        << "sd" << sd.arg(threeSets) << 3 << "1000"
        << "" << false << QStringList { "Left has no SD slot 3." };
    QTest::newRow("sd: a camera with CFast only")
        << "sd" << cf.arg(threeSets) << 1 << "0000"
        << "" << false << QStringList { "Left has no SD slot 1." };
    QTest::newRow("vp: three named data sets") << "vp" << vp.arg(threeSets) << 0 << "1111"
                                               << "1,2,3" << true << QStringList();
    QTest::newRow("vp: function 163 gives the camera's limit")
        << "vp"
        << QStringLiteral(R"("functions": [163], %1)")
               .arg(vp.arg(QStringLiteral(R"("dataLimit": 2, %1)").arg(threeSets)))
        << 0 << "1111"
        << "1,2" << true << QStringList();
    QTest::newRow("vp: not connected, no free space")
        << "vp" << vp.arg(R"("present": false)") << 0 << "1100"
        << "" << false << QStringList();
    QTest::newRow("vp: unformatted") << "vp" << vp.arg(R"("formatted": false)") << 0 << "1110"
                                     << "" << true << QStringList();
    QTest::newRow("cf: data sets number from 1, rows from 2")
        << "cf" << cf.arg(threeSets) << 0 << "1111"
        << "2,3,4" << true << QStringList();
    QTest::newRow("cf: no card in") << "cf" << cf.arg(R"("present": false)") << 0 << "1100"
                                    << "" << false << QStringList();
    QTest::newRow("cf: unformatted") << "cf" << cf.arg(R"("formatted": false)") << 0 << "1110"
                                     << "" << true << QStringList();
}

void tst_MediaMediators::answers()
{
    QFETCH(QString, kind);
    QFETCH(QString, camera);
    QFETCH(int, slot);
    QVERIFY(start(camera));
    const auto media = mediator(kind);
    const char* presence = kind == QLatin1String("vp") ? "isConnected" : "isInserted";
    bool managed = false;
    bool enabled = false;
    bool present = false;
    bool formatted = false;
    QString list;
    QVERIFY(QMetaObject::invokeMethod(
        media.get(), "isManaged", Q_RETURN_ARG(bool, managed), Q_ARG(int, 1)));
    QVERIFY(QMetaObject::invokeMethod(media.get(), "isEnabaleSlot", Q_RETURN_ARG(bool, enabled),
        Q_ARG(int, 1), Q_ARG(int, slot)));
    QVERIFY(QMetaObject::invokeMethod(
        media.get(), presence, Q_RETURN_ARG(bool, present), Q_ARG(int, 1), Q_ARG(int, slot)));
    QVERIFY(QMetaObject::invokeMethod(media.get(), "isFormatted", Q_RETURN_ARG(bool, formatted),
        Q_ARG(int, 1), Q_ARG(int, slot)));
    QVERIFY(QMetaObject::invokeMethod(
        media.get(), "getDataList", Q_RETURN_ARG(QString, list), Q_ARG(int, 1), Q_ARG(int, slot)));
    QTEST(QStringLiteral("%1%2%3%4").arg(managed).arg(enabled).arg(present).arg(formatted),
        "expected");
    QTEST(recids(list), "recids");
    if (kind != QLatin1String("sd")) {
        QString space;
        QVERIFY(QMetaObject::invokeMethod(
            media.get(), "getFreeSpace", Q_RETURN_ARG(QString, space), Q_ARG(int, 1)));
        QTEST(!space.isEmpty(), "freeSpace");
    }
    QTEST(events(QStringLiteral("reportException"), QStringLiteral("text")), "reported");
    // A key that has gone: the status methods answer false and only log.
    QVERIFY(QMetaObject::invokeMethod(
        media.get(), presence, Q_RETURN_ARG(bool, present), Q_ARG(int, 99), Q_ARG(int, slot)));
    QVERIFY(!present);
    QTEST(events(QStringLiteral("reportException"), QStringLiteral("text")), "reported");
}

void tst_MediaMediators::dataListFields()
{
    const QString unit = QStringLiteral(R"("media": {"storageUnit": [{"recordings": [{"name":
        "run \"1\"", "frames": 5, "date": "2024/3/15", "time": "09:04:56"}]}]})");
    QVERIFY(start(unit));
    JS_Mediator_SaveVaultPack vaultPack(m_host.get(), QStringLiteral("vp"));
    QCOMPARE(vaultPack.getDataList(1, 0),
        QStringLiteral(R"([{"recid":1,"name":"run \"1\"","frame":5,"date":"2024/3/15",)"
                       R"("time":"09:04:56"}])"));
    const QString card = QStringLiteral(R"("media": {"sd": [{"recordings": [{"name": "x",
        "frames": 7, "date": "2031/12/1", "time": "23:59:00"}]}]})");
    QVERIFY(start(card));
    JS_Mediator_SaveSD sd(m_host.get(), QStringLiteral("sd"));
    QCOMPARE(sd.getDataList(1, 1),
        QStringLiteral(R"([{"recid":1,"frame":7,"date":"2031/12/1","time":"23:59:00"}])"));
    const QVariantMap info = sd.getSDInfo(1, 1);
    QCOMPARE(info.value(QStringLiteral("class")).toString(), QStringLiteral("Class10"));
    QCOMPARE(info.value(QStringLiteral("speed")).toString(), QStringLiteral("SDR25"));
}

void tst_MediaMediators::format_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QString>("beyond");
    QTest::addColumn<bool>("consent");
    QTest::addColumn<QStringList>("formatted"); // formatMedia events: kind, slot
    QTest::addColumn<QString>("recids"); // afterwards
    QTest::addColumn<bool>("isFormatted");
    QTest::addColumn<QStringList>("reported");

    const QString sd = QStringLiteral(R"("media": {"sd": [{}, {%1}]})").arg(threeSets);
    QTest::newRow("sd declined: nothing changes")
        << "sd" << sd << "" << false << QStringList() << "1,2,3" << true << QStringList();
    QTest::newRow("sd done: the card is empty")
        << "sd" << sd << "" << true << QStringList { "SD 1" } << "" << true << QStringList();
    QTest::newRow("sd taken out half way: a clear message, the card left unformatted")
        << "sd" << sd << R"("faults": {"document.finishSdFormat": "The card was taken out."})"
        << true << QStringList { "SD 1" } << "" << false
        << QStringList { "The card was taken out." };
    QTest::newRow("sd write protected: refused")
        << "sd"
        << QStringLiteral(R"("media": {"sd": [{}, {"protected": true, %1}]})").arg(threeSets) << ""
        << true << QStringList() << "1,2,3" << true
        << QStringList { "The card in SD slot 2 of Left is write protected." };
    QTest::newRow("sd: no card in, refused")
        << "sd"
        << R"("media": {"sd": [{}, {"present": false}]})"
        << "" << true << QStringList() << "" << false
        << QStringList { "There is no medium in SD slot 2 of Left." };
    QTest::newRow("vp asks nothing")
        << "vp" << QStringLiteral(R"("media": {"storageUnit": [{%1}]})").arg(threeSets) << ""
        << false << QStringList { "storage unit 0" } << "" << true << QStringList();
    QTest::newRow("cf asks nothing")
        << "cf" << QStringLiteral(R"("media": {"cfast": [{%1}]})").arg(threeSets) << "" << false
        << QStringList { "CFast 0" } << "" << true << QStringList();
}

void tst_MediaMediators::format()
{
    QFETCH(QString, kind);
    QFETCH(QString, camera);
    QFETCH(QString, beyond);
    QFETCH(bool, consent);
    QVERIFY(start(camera, beyond));
    m_answer = consent ? QMessageBox::Ok : QMessageBox::Cancel;
    const auto media = mediator(kind);
    // The SD page counts slots from 1, the others as the camera does.
    const int slot = kind == QLatin1String("sd") ? 2 : 0;
    QVERIFY(QMetaObject::invokeMethod(media.get(), "format", Q_ARG(int, 1), Q_ARG(int, slot)));
    QStringList formats;
    for (const QJsonObject& event : m_recorder->events(QStringLiteral("formatMedia")))
        formats << QStringLiteral("%1 %2")
                       .arg(event.value("kind").toString())
                       .arg(event.value("slot").toInt());
    QTEST(formats, "formatted");
    QString list;
    bool formatted = false;
    QVERIFY(QMetaObject::invokeMethod(
        media.get(), "getDataList", Q_RETURN_ARG(QString, list), Q_ARG(int, 1), Q_ARG(int, slot)));
    QVERIFY(QMetaObject::invokeMethod(media.get(), "isFormatted", Q_RETURN_ARG(bool, formatted),
        Q_ARG(int, 1), Q_ARG(int, slot)));
    QTEST(recids(list), "recids");
    QTEST(formatted, "isFormatted");
    QTEST(events(QStringLiteral("reportException"), QStringLiteral("text")), "reported");
    if (kind == QLatin1String("sd")) {
        const QStringList asked = events(QStringLiteral("message"), QStringLiteral("text"));
        QCOMPARE(asked.value(0),
            QStringLiteral("All data connected to Slot 2 of Left will be deleted.<br>Is this OK?"));
    } else {
        QCOMPARE(events(QStringLiteral("message"), QStringLiteral("text")), QStringList());
        QCOMPARE(
            events(QStringLiteral("prepareFormat"), QStringLiteral("device")), QStringList { "0" });
    }
}

void tst_MediaMediators::dataName_data()
{
    QTest::addColumn<bool>("addNumber");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("as typed") << false << "take"
                              << "take";
    QTest::newRow("sequence 7 in six digits") << true << "take"
                                              << "take_000007";
    QTest::newRow("cut at a zero character")
        << false << QStringLiteral("ab") + QChar(0) + QStringLiteral("cd") << "ab";
    QTest::newRow("an empty name is refused") << false << ""
                                              << "b";
}

void tst_MediaMediators::dataName()
{
    QFETCH(bool, addNumber);
    QFETCH(QString, typed);
    QVERIFY(start(QStringLiteral(R"("media": {"storageUnit": [{%1}]})").arg(threeSets),
        QStringLiteral(R"("prefs": {"convert/vp/datanameaddnumber": %1})")
            .arg(addNumber ? "true" : "false")));
    JS_Mediator_SaveVaultPack vaultPack(m_host.get(), QStringLiteral("vp"));
    QVERIFY(vaultPack.canConvertDataName(1));
    vaultPack.convertDataName(1, 0, 1, typed, 7);
    const QJsonArray rows = QJsonDocument::fromJson(vaultPack.getDataList(1, 0).toUtf8()).array();
    QTEST(rows.at(1).toObject().value(QStringLiteral("name")).toString(), "stored");
}

void tst_MediaMediators::passwordOfADriveThatIsNotThere()
{
    const QString unit
        = QStringLiteral(R"("media": {"storageUnit": [{"drive": "F:", "password": "pw"}]})");
    QVERIFY(start(unit));
    JS_Mediator_FileDialog files(m_host.get(), FileDialogKind::open);
    QVERIFY(files.existSetVaultPackPassword(0, 5));
    QVERIFY(!files.existSetVaultPackPassword(0, 99));
    QCOMPARE(events(QStringLiteral("reportException"), QStringLiteral("text")),
        QStringList { "There is no storage unit drive 99." });
}

QTEST_MAIN(tst_MediaMediators)
#include "tst_mediamediators.moc"
