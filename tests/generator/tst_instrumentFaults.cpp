// Instrument faults end to end: the real plug-in file in the reference host, our VISA library and
// the simulated instrument, inside a private network namespace. Every fault must end within the
// chained time-outs, be told where the user looks, store nothing for a sync that did not happen,
// leave no link open on the instrument, and let a later connect work in the same host.
#include "../NetNamespace.h"

#include "host/HST_Application.h"
#include "host/HST_GeneratorSimulator.h"
#include "host/HST_Recorder.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <atomic>
#include <csignal>
#include <thread>

namespace {

// Short, so that the suite stays quick; every bound below scales with it.
constexpr int visaTimeoutMs = 500;
// The chained worst case of one connect test with this time-out: closing the old session (1 s),
// the open (T), the live test and the identification (2 x (T + 250 ms) each).
constexpr qint64 connectWorstMs = 1000 + visaTimeoutMs + 4 * (visaTimeoutMs + 250);
// Far above any chain, far below the step time-out: a hang shows as a failure, not a pass.
constexpr qint64 slack = 3000;
constexpr quint16 portmapperPort = 5111;

const QString couldNotConnect = QStringLiteral("Could not connect with signal generator");
const QString unsupported = QStringLiteral("can not be connected because unsupported device.");
const QString failedSync = QStringLiteral("Failed sync to signal generator.");
const QString complete = QStringLiteral("Synchronization is complete.");

// The preferences a sync stores; none may be written unless it succeeded.
const QStringList syncKeys { "sync/nrack", "sync/external", "sync/generator/ctrl",
    "sync/generator/frequency", "sync/generator/input", "sync/triggerSignalPolarity",
    "sync/masterCamera" };

QJsonObject click(const QString& target)
{
    return { { QStringLiteral("click"), target } };
}

// Types the address and presses OK in the connect dialog's page; gives the page's clock before
// and after, so the test sees how long the user waited on the button.
QJsonObject connectTo(const QString& address)
{
    return { { QStringLiteral("js"),
        QStringLiteral("var t0 = Date.now(); $('#signal_generator_address_textbox').val('%1');"
                       " $('#signal_generator_ok').click(); [t0, Date.now()]")
            .arg(address) } };
}

// Opens the connect dialog from the sync dialog and waits for its page.
QJsonArray openConnectDialog()
{
    return { click(QStringLiteral("connect_signal_generator_button")),
        QJsonObject { { QStringLiteral("wait"), 1500 } } };
}

QJsonArray syncWithGenerator()
{
    return { QJsonObject { { QStringLiteral("set"),
                 QJsonArray { QStringLiteral("signal_generator_control_checkBox"), true } } },
        click(QStringLiteral("Sync execute")), click(QStringLiteral("OK")),
        click(QStringLiteral("OK")) };
}

QJsonArray operator+(QJsonArray a, const QJsonArray& b)
{
    for (const QJsonValue& v : b)
        a.append(v);
    return a;
}

QStringList readLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// Links the simulator's log shows open: created, never destroyed, connection never lost.
QStringList openLinks(const QString& log)
{
    QStringList open;
    const QRegularExpression line(QStringLiteral("^<link (\\d+) (open|closed|lost)>$"));
    for (const QString& entry : readLines(log)) {
        const QRegularExpressionMatch m = line.match(entry);
        if (!m.hasMatch())
            continue;
        if (m.captured(2) == QLatin1String("open"))
            open << m.captured(1);
        else
            open.removeAll(m.captured(1));
    }
    return open;
}

// The pid of the simulator whose command line has exactly this log: only ours has it.
pid_t simulatorWithLog(const QString& log)
{
    for (const QString& entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        bool numeric = false;
        const int pid = entry.toInt(&numeric);
        if (!numeric)
            continue;
        QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
        if (!cmdline.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> args = cmdline.readAll().split('\0');
        const int at = args.indexOf(QByteArray("--log"));
        if (at >= 0 && args.value(at + 1) == log.toUtf8())
            return pid_t(pid);
    }
    return 0;
}

struct Run
{
    int code = -1;
    QList<QJsonObject> events;
    qint64 totalMs = 0;
    qint64 dialogShownMs = -1; // press to the sync dialog: includes the reconnect at start

    QList<QPair<QString, QString>> messages() const
    {
        QList<QPair<QString, QString>> result;
        for (const QJsonObject& e : events) {
            if (e.value(QStringLiteral("call")) == QLatin1String("message"))
                result.append({ e.value(QStringLiteral("kind")).toString(),
                    e.value(QStringLiteral("text")).toString() });
        }
        return result;
    }
    QStringList texts(const QString& kind) const
    {
        QStringList result;
        for (const auto& m : messages()) {
            if (m.first == kind)
                result << m.second;
        }
        return result;
    }
    int indexOf(const QString& call, const QString& field, const QString& value, int from = 0) const
    {
        for (int i = from; i < events.size(); ++i) {
            if (events[i].value(QStringLiteral("call")) == call
                && events[i].value(field).toString() == value)
                return i;
        }
        return -1;
    }
    // Index of the first preference a sync stores, or -1.
    int firstSyncPref() const
    {
        for (int i = 0; i < events.size(); ++i) {
            if (events[i].value(QStringLiteral("call")) == QLatin1String("setPref")
                && syncKeys.contains(events[i].value(QStringLiteral("key")).toString()))
                return i;
        }
        return -1;
    }
    // Durations the page measured around each OK press, in order.
    QList<qint64> pressMs() const
    {
        QList<qint64> result;
        for (const QJsonObject& e : events) {
            const QJsonArray t = e.value(QStringLiteral("result")).toArray();
            if (e.value(QStringLiteral("call")) == QLatin1String("js") && t.size() == 2)
                result << qint64(t[1].toDouble() - t[0].toDouble());
        }
        return result;
    }
    int count(const QString& call) const
    {
        return int(std::count_if(events.begin(), events.end(),
            [&call](const QJsonObject& e) { return e.value(QStringLiteral("call")) == call; }));
    }
};

} // namespace

class tst_InstrumentFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void faultAtConnect_data();
    void faultAtConnect();
    void lostDuringSetup_data();
    void lostDuringSetup();

private:
    QByteArray scenario(const QJsonObject& generator) const;
    Run run(
        const QByteArray& world, const QJsonArray& steps, const std::function<void()>& tick = {});

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_InstrumentFaults::initTestCase()
{
    if (HST_GeneratorSimulator::executable().isEmpty())
        QSKIP("the simulator was not built");
    qputenv("SYNC_VISA_TIMEOUT_MS", QByteArray::number(visaTimeoutMs));
}

void tst_InstrumentFaults::init()
{
    REQUIRE_PRIVATE_NETWORK();
    m_dir.reset(new QTemporaryDir);
}

QByteArray tst_InstrumentFaults::scenario(const QJsonObject& generator) const
{
    QJsonObject options = generator;
    options.insert(QStringLiteral("listen"), QStringLiteral("127.0.0.1"));
    options.insert(QStringLiteral("portmapperPort"), portmapperPort);
    options.insert(QStringLiteral("log"), m_dir->filePath(QStringLiteral("first.log")));
    const QJsonObject world { { "syncCapableTypes", QJsonArray { 1 } },
        { "cameras",
            QJsonArray {
                QJsonObject { { "ip", "10.0.0.1" } }, QJsonObject { { "ip", "10.0.0.2" } } } },
        { "generator", options },
        { "prefs",
            QJsonObject { { "sync/generator/address", "127.0.0.1" },
                { "sync/generator/tryconnect", true }, { "sync/generator/ctrl", true },
                { "sync/external", true }, { "sync/generator/frequency", 3000 } } } };
    return QJsonDocument(world).toJson();
}

Run tst_InstrumentFaults::run(
    const QByteArray& world, const QJsonArray& steps, const std::function<void()>& tick)
{
    HST_Options options;
    options.scenarioJson = world;
    options.pluginFile = QStringLiteral(SYNC_PLUGIN_FILE);
    options.prefsFile = m_dir->filePath(QStringLiteral("prefs.ini"));
    options.press = QStringLiteral("synccontrol");
    options.steps = steps + QJsonArray { click(QStringLiteral("Sync quit")) };
    options.quit = true;
    options.stepTimeoutMs = 15000;
    Run result;
    QElapsedTimer clock;
    HST_Application application(options);
    QTimer watch;
    watch.setInterval(10);
    QObject::connect(&watch, &QTimer::timeout, [&] {
        const QWidget* modal = QApplication::activeModalWidget();
        if (result.dialogShownMs < 0 && modal
            && modal->objectName() == QLatin1String("GUI_SyncControl"))
            result.dialogShownMs = clock.elapsed();
        if (tick)
            tick();
    });
    watch.start();
    clock.start();
    result.code = application.run();
    result.totalMs = clock.elapsed();
    result.events = application.recorder()->events();
    if (result.code != 0)
        qWarning("host run ended with %d: %s", result.code, qPrintable(application.error()));
    return result;
}

// The instrument at 127.0.0.1 is faulty from the start: the reconnect on opening fails, the
// user's connect is refused with a warning, and a connect to a sound instrument (127.0.0.2,
// same portmapper port) then works and the sync goes through it.
void tst_InstrumentFaults::faultAtConnect_data()
{
    QTest::addColumn<QJsonObject>("fault");
    QTest::addColumn<QString>("warning");

    QTest::newRow("silent at the portmapper")
        << QJsonObject { { "silentAt", "portmapper" } } << couldNotConnect;
    QTest::newRow("silent at create_link")
        << QJsonObject { { "silentAt", "create_link" } } << couldNotConnect;
    QTest::newRow("silent at device_read")
        << QJsonObject { { "silentAt", "device_read" } } << couldNotConnect;
    QTest::newRow("slow past the time-out")
        << QJsonObject { { "delayMs", 3 * visaTimeoutMs } } << couldNotConnect;
    QTest::newRow("connection dropped mid-reply")
        << QJsonObject { { "dropMidReply", true } } << couldNotConnect;
    QTest::newRow("garbage reply") << QJsonObject { { "garbage", true } } << couldNotConnect;
    QTest::newRow("another model") << QJsonObject { { "model", "33220A" } } << unsupported;
}

void tst_InstrumentFaults::faultAtConnect()
{
    QFETCH(QJsonObject, fault);
    QFETCH(QString, warning);

    const QString soundLog = m_dir->filePath(QStringLiteral("sound.log"));
    HST_GeneratorSimulator sound;
    QString problem;
    QVERIFY2(sound.start({ { "listen", "127.0.0.2" }, { "portmapperPort", portmapperPort },
                             { "log", soundLog } },
                 problem),
        qPrintable(problem));

    const Run r = run(scenario(fault),
        openConnectDialog()
            + QJsonArray { connectTo(QStringLiteral("127.0.0.1")), click(QStringLiteral("OK")),
                connectTo(QStringLiteral("127.0.0.2")) }
            + syncWithGenerator()
            // A slow instrument creates the link of a request given up long ago
            // and only then sees the connection gone: let it see that.
            + QJsonArray { QJsonObject { { "wait", fault.value("delayMs").toInt() } } });
    const QList<qint64> presses = r.pressMs();
    qInfo("opening %lld ms, refused connect %lld ms, accepted connect %lld ms, whole run %lld ms",
        r.dialogShownMs, presses.value(0, -1), presses.value(1, -1), r.totalMs);
    QCOMPARE(r.code, 0);

    // The reconnect on opening fails without a word; the user's attempt gets one warning.
    QCOMPARE(r.texts(QStringLiteral("warning")), QStringList { warning });
    QVERIFY(r.texts(QStringLiteral("error")).isEmpty());
    QVERIFY2(
        r.dialogShownMs < connectWorstMs + slack, "the reconnect on opening outlasted its chain");
    QCOMPARE(presses.size(), 2);
    QVERIFY2(presses[0] < connectWorstMs + slack, "the refused connect outlasted its chain");

    // The later connect worked: the sync went through the sound instrument, stored afterwards.
    QCOMPARE(r.texts(QStringLiteral("information")), QStringList { complete });
    const int success = r.indexOf(QStringLiteral("message"), QStringLiteral("text"), complete);
    QVERIFY(r.firstSyncPref() > success);
    QCOMPARE(r.count(QStringLiteral("applySync")), 1);
    const QStringList setup = readLines(soundLog);
    QVERIFY2(setup.contains(QStringLiteral("FREQ 3000")), qPrintable(setup.join('|')));

    QCOMPARE(openLinks(m_dir->filePath(QStringLiteral("first.log"))), QStringList());
    QCOMPARE(openLinks(soundLog), QStringList());
}

// The instrument answered the reconnect on opening and goes away while the setup sequence
// runs: "Failed sync to signal generator.", no camera touched, nothing stored; back again, a
// connect from the same dialog and a second sync work.
void tst_InstrumentFaults::lostDuringSetup_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("simulator killed, then restarted") << int(SIGKILL);
    QTest::newRow("simulator frozen, then resumed") << int(SIGSTOP);
}

void tst_InstrumentFaults::lostDuringSetup()
{
    QFETCH(int, signal);

    const QString firstLog = m_dir->filePath(QStringLiteral("first.log"));
    const QString restartedLog = m_dir->filePath(QStringLiteral("restarted.log"));
    // Slow enough that the sequence is still running when the watcher strikes.
    const QJsonObject slowish { { "delayMs", 100 } };

    std::atomic<pid_t> victim { 0 };
    std::atomic<qint64> struckAtMs { -1 };
    std::atomic<bool> stop { false };
    QElapsedTimer clock;
    clock.start();
    // On a thread of its own: the setup runs on the GUI thread, which is blocked meanwhile.
    std::thread striker([&] {
        while (!stop) {
            if (readLines(firstLog).contains(QStringLiteral("FUNC:SHAP PULS"))) {
                const pid_t pid = simulatorWithLog(firstLog);
                if (pid > 0 && ::kill(pid, signal) == 0) {
                    victim = pid;
                    struckAtMs = clock.elapsed();
                }
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });

    HST_GeneratorSimulator restarted;
    qint64 toldAtMs = -1;
    QString problem;
    const auto tick = [&] {
        if (struckAtMs < 0 || toldAtMs >= 0)
            return;
        if (!qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            return;
        toldAtMs = clock.elapsed();
        if (signal == SIGSTOP) {
            ::kill(victim, SIGCONT);
        } else if (!restarted.start(
                       { { "listen", "127.0.0.1" }, { "portmapperPort", portmapperPort },
                           { "log", restartedLog } },
                       problem)) {
            qWarning("restart: %s", qPrintable(problem));
        }
    };
    const Run r = run(scenario(slowish),
        syncWithGenerator() + openConnectDialog()
            + QJsonArray { connectTo(QStringLiteral("127.0.0.1")) } + syncWithGenerator(),
        tick);
    stop = true;
    striker.join();
    if (signal == SIGSTOP && victim > 0)
        ::kill(victim, SIGCONT);
    qInfo("struck at %lld ms, told at %lld ms, reconnect %lld ms, whole run %lld ms",
        qint64(struckAtMs), toldAtMs, r.pressMs().value(0, -1), r.totalMs);
    QCOMPARE(r.code, 0);
    QVERIFY2(struckAtMs >= 0, "the setup sequence never reached the instrument");

    // Told by the error box, within a write's time-out (twice, after an unread query).
    QCOMPARE(r.texts(QStringLiteral("error")), QStringList { failedSync });
    QVERIFY(toldAtMs >= 0);
    QVERIFY2(toldAtMs - struckAtMs < 2 * (visaTimeoutMs + 250) + slack,
        "the failed setup outlasted its time-out");
    QVERIFY(r.texts(QStringLiteral("warning")).isEmpty());

    // Nothing stored nor synced for the failed request; the second one went through.
    const int failed = r.indexOf(QStringLiteral("message"), QStringLiteral("text"), failedSync);
    const int success = r.indexOf(QStringLiteral("message"), QStringLiteral("text"), complete);
    QVERIFY(failed >= 0 && success > failed);
    QVERIFY(r.firstSyncPref() > success);
    QCOMPARE(r.count(QStringLiteral("applySync")), 1);
    QVERIFY(r.indexOf(QStringLiteral("applySync"), QStringLiteral("result"), QStringLiteral("ok"))
        > failed);

    const QString liveLog = signal == SIGKILL ? restartedLog : firstLog;
    const QStringList setup = readLines(liveLog);
    QVERIFY2(
        setup.lastIndexOf(QStringLiteral("OUTP ON")) > setup.lastIndexOf(QStringLiteral("*RST")),
        qPrintable(setup.join('|')));
    QCOMPARE(openLinks(liveLog), QStringList());
}

int main(int argc, char** argv)
{
    NetNamespace::enterPrivateNetwork(argc, argv);
    QApplication app(argc, argv);
    tst_InstrumentFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_instrumentFaults.moc"
