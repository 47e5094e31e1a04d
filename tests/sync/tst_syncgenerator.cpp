#include "../NetNamespace.h"

#include "host/HST_Application.h"
#include "host/HST_Recorder.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

// The sync with the signal generator driving the signal, against the simulated instrument on
// loopback inside a private network namespace.
class tst_SyncGenerator : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void generatorSetUpBeforeTheCameras();
    void generatorGoneIsSkippedSilently();

private:
    QByteArray scenario() const;
    // The host presses the sync button and answers with the given clicks; tick runs meanwhile.
    QList<QJsonObject> run(const QStringList& answers, const std::function<void()>& tick = {});
    QStringList commands() const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

namespace {

QList<QJsonObject> only(const QList<QJsonObject>& events, const QString& call)
{
    QList<QJsonObject> result;
    for (const QJsonObject& event : events) {
        if (event.value(QStringLiteral("call")).toString() == call)
            result.append(event);
    }
    return result;
}

} // namespace

void tst_SyncGenerator::init()
{
    REQUIRE_PRIVATE_NETWORK();
    m_dir.reset(new QTemporaryDir);
}

QByteArray tst_SyncGenerator::scenario() const
{
    return QStringLiteral(
        "{\"syncCapableTypes\": [1], \"cameras\": [{\"ip\": \"10.0.0.1\", \"type\": 1},"
        " {\"ip\": \"10.0.0.2\", \"type\": 1}],"
        " \"generator\": {\"listen\": \"127.0.0.1\", \"log\": \"%1\"},"
        " \"prefs\": {\"sync/generator/address\": \"127.0.0.1\","
        " \"sync/generator/tryconnect\": true, \"sync/generator/ctrl\": true,"
        " \"sync/external\": true, \"sync/generator/frequency\": 3000}}")
        .arg(m_dir->filePath(QStringLiteral("commands.log")))
        .toUtf8();
}

QList<QJsonObject> tst_SyncGenerator::run(
    const QStringList& answers, const std::function<void()>& tick)
{
    HST_Options options;
    options.scenarioJson = scenario();
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir->filePath(QStringLiteral("prefs.ini"));
    options.press = QStringLiteral("synccontrol");
    options.quit = true;
    options.answers = answers;
    options.stepTimeoutMs = 15000;
    HST_Application application(options);
    QTimer ticker;
    ticker.setInterval(10);
    QObject::connect(&ticker, &QTimer::timeout, [&tick] { tick(); });
    if (tick)
        ticker.start();
    const int code = application.run();
    if (code != 0)
        qWarning("host run ended with %d: %s", code, qPrintable(application.error()));
    return application.recorder()->events();
}

QStringList tst_SyncGenerator::commands() const
{
    QFile log(m_dir->filePath(QStringLiteral("commands.log")));
    if (!log.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(log.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void tst_SyncGenerator::generatorSetUpBeforeTheCameras()
{
    const QList<QJsonObject> events = run({ "Sync execute", "OK", "OK", "Sync quit" });
    const QList<QJsonObject> requests = only(events, QStringLiteral("applySync"));
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests.first().value(QStringLiteral("generatorControl")).toBool(), true);
    QCOMPARE(requests.first().value(QStringLiteral("frequency")).toInt(), 3000);

    // After the identification of the reconnect, the setup goes out whole and in order.
    const QStringList log = commands();
    const int reset = log.indexOf(QStringLiteral("*RST"));
    QVERIFY2(reset >= 0, qPrintable(log.join(QLatin1Char('|'))));
    QCOMPARE(log.mid(reset, 11),
        (QStringList { "*RST", "<device clear>", "DISP ON", "DISP:TEXT \"Tarvix4 Setting Start\"",
            "FUNC:SHAP PULS", "FREQ 3000", "VOLT:LOW 0", "VOLT:HIGH 5", "FUNC:PULS:DCYC 50",
            "OUTP ON", "DISP:TEXT \"Tarvix4 Setting End\"" }));
}

void tst_SyncGenerator::generatorGoneIsSkippedSilently()
{
    // The instrument goes silent after the dialog opened: the live test before the setup
    // fails, the setup is skipped, and the cameras are synced with the box still checked.
    const QString marker = m_dir->filePath(QStringLiteral("commands.log"));
    qputenv("SYNC_VISA_TIMEOUT_MS", "500");
    // Freeze the instrument once the dialog has shown it connected. Only this test's simulator
    // has its log at this path.
    bool frozen = false;
    const QList<QJsonObject> events
        = run({ "Sync execute", "OK", "OK", "Sync quit" }, [&frozen, marker] {
              QWidget* modal = QApplication::activeModalWidget();
              if (frozen || !modal || modal->objectName() != QLatin1String("GUI_SyncControl"))
                  return;
              frozen = true;
              QProcess::execute(QStringLiteral("pkill"),
                  { QStringLiteral("-STOP"), QStringLiteral("-f"), marker });
          });
    qunsetenv("SYNC_VISA_TIMEOUT_MS");
    QProcess::execute(
        QStringLiteral("pkill"), { QStringLiteral("-CONT"), QStringLiteral("-f"), marker });
    const QList<QJsonObject> requests = only(events, QStringLiteral("applySync"));
    QCOMPARE(requests.size(), 1);
    QCOMPARE(requests.first().value(QStringLiteral("generatorControl")).toBool(), true);
    QCOMPARE(requests.first().value(QStringLiteral("frequency")).toInt(), -1);
    QVERIFY(!commands().contains(QStringLiteral("*RST")));
    for (const QJsonObject& message : only(events, QStringLiteral("message")))
        QVERIFY(message.value(QStringLiteral("kind")).toString() != QLatin1String("error"));
}

int main(int argc, char** argv)
{
    NetNamespace::enterPrivateNetwork(argc, argv);
    QApplication app(argc, argv);
    tst_SyncGenerator test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_syncgenerator.moc"
