// Instrument faults end to end: the real plug-in file in the reference host, our VISA library and
// the simulated instrument, inside a private network namespace. Every fault must be told where
// the user looks, store nothing for a sync that did not happen, leave no link open on the
// instrument, and let a later connect work in the same host. Nothing here waits for the clock:
// the simulators strike at a command and the presses wait for the page; the times the user
// waited are printed, not asserted.
#include "../NetNamespace.h"

#include "host/HST_Application.h"
#include "host/HST_GeneratorSimulator.h"
#include "host/HST_Recorder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebFrame>
#include <QWebView>
#include <QtTest>

#include <csignal>

namespace {

// Short, so that the faulty cases stay quick; a sound instrument answers in well under 1 ms.
constexpr int visaTimeoutMs = 500;
constexpr quint16 portmapperPort = 5111;
// The simulators strike here, in the middle of the setup sequence.
const QString setupCommand = QStringLiteral("FUNC:SHAP PULS");

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

// A simulator of the test's own, so that it outlives the host's run (a slow one may see a
// connection given up long ago only after the host has gone) and can be given faults the
// scenario can't pass. Killed with the test.
struct Simulator
{
    QProcess process;

    ~Simulator()
    {
        process.kill();
        process.waitForFinished();
    }

    bool start(const QJsonObject& options, const QStringList& extra = {})
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(HST_GeneratorSimulator::executable(),
            HST_GeneratorSimulator::arguments(options, portmapperPort) + extra);
        while (process.waitForReadyRead(10000) || process.canReadLine()) {
            if (process.canReadLine())
                return process.readLine().startsWith("SIM33210A_READY");
        }
        return false;
    }
};

struct Run
{
    int code = -1;
    QList<QJsonObject> events;
    qint64 totalMs = 0;
    qint64 dialogShownMs = -1; // press to the sync dialog: includes the reconnect at start
    QList<qint64> pressMs; // each OK in the connect dialog, until it returned

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
    QByteArray scenario() const;
    Run run(const QJsonArray& steps, const QStringList& connectTo,
        const std::function<void()>& tick = {});

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_InstrumentFaults::initTestCase()
{
    if (HST_GeneratorSimulator::executable().isEmpty())
        QSKIP("the simulator was not built");
    qputenv("SYNC_VISA_TIMEOUT_MS", QByteArray::number(visaTimeoutMs));
    qputenv("SYNC_VXI11_PORTMAPPER_PORT", QByteArray::number(portmapperPort));
}

void tst_InstrumentFaults::init()
{
    REQUIRE_PRIVATE_NETWORK();
    m_dir.reset(new QTemporaryDir);
}

QByteArray tst_InstrumentFaults::scenario() const
{
    const QJsonObject world { { "syncCapableTypes", QJsonArray { 1 } },
        { "cameras",
            QJsonArray {
                QJsonObject { { "ip", "10.0.0.1" } }, QJsonObject { { "ip", "10.0.0.2" } } } },
        { "visa", true },
        { "prefs",
            QJsonObject { { "sync/generator/address", "127.0.0.1" },
                { "sync/generator/tryconnect", true }, { "sync/generator/ctrl", true },
                { "sync/external", true }, { "sync/generator/frequency", 3000 } } } };
    return QJsonDocument(world).toJson();
}

// Runs the steps; each time the connect dialog's page is up, with its own handlers in place,
// the next address of connectTo is typed there and OK pressed.
Run tst_InstrumentFaults::run(
    const QJsonArray& steps, const QStringList& connectTo, const std::function<void()>& tick)
{
    HST_Options options;
    options.scenarioJson = scenario();
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
    int pressed = 0;
    bool pressing = false;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (result.dialogShownMs < 0 && modal
            && modal->objectName() == QLatin1String("GUI_SyncControl"))
            result.dialogShownMs = clock.elapsed();
        QWebView* view = modal ? modal->findChild<QWebView*>() : nullptr;
        // A user presses once the dialog has faded in and the page's handlers are in place.
        if (view && !pressing && pressed < connectTo.size() && modal->windowOpacity() >= 1.0) {
            QWebFrame* frame = view->page()->mainFrame();
            // The page binds OK in its ready handler, which jQuery runs some time after load.
            const QVariant ready = frame->evaluateJavaScript(QStringLiteral(
                "!!(window.jQuery && jQuery._data(document.getElementById('signal_generator_ok')"
                " || {}, 'events'))"));
            if (ready.toBool()) {
                pressing = true;
                const QString code
                    = QStringLiteral("$('#signal_generator_address_textbox').val('%1');"
                                     " $('#signal_generator_ok').click();")
                          .arg(connectTo.at(pressed++));
                // Posted, as a user's click comes: the press may open a box that the script
                // answers meanwhile.
                QMetaObject::invokeMethod(
                    &watch,
                    [&, frame = QPointer<QWebFrame>(frame), code] {
                        QElapsedTimer press;
                        press.start();
                        if (frame)
                            frame->evaluateJavaScript(code);
                        result.pressMs << press.elapsed();
                        pressing = false;
                    },
                    Qt::QueuedConnection);
            }
        }
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

    const QString faultyLog = m_dir->filePath(QStringLiteral("faulty.log"));
    const QString soundLog = m_dir->filePath(QStringLiteral("sound.log"));
    QJsonObject faultyOptions = fault;
    faultyOptions.insert(QStringLiteral("log"), faultyLog);
    Simulator faulty;
    Simulator sound;
    QVERIFY(faulty.start(faultyOptions));
    QVERIFY(sound.start({ { "listen", "127.0.0.2" }, { "log", soundLog } }));

    const Run r = run(QJsonArray { click(QStringLiteral("connect_signal_generator_button")),
                          click(QStringLiteral("OK")) }
            + syncWithGenerator(),
        { QStringLiteral("127.0.0.1"), QStringLiteral("127.0.0.2") });
    qInfo("opening %lld ms, refused connect %lld ms, accepted connect %lld ms, whole run %lld ms",
        r.dialogShownMs, r.pressMs.value(0, -1), r.pressMs.value(1, -1), r.totalMs);
    QCOMPARE(r.code, 0);

    // The reconnect on opening fails without a word; the user's attempt gets one warning.
    QCOMPARE(r.texts(QStringLiteral("warning")), QStringList { warning });
    QVERIFY(r.texts(QStringLiteral("error")).isEmpty());
    QCOMPARE(r.pressMs.size(), 2);

    // The later connect worked: the sync went through the sound instrument, stored afterwards.
    QCOMPARE(r.texts(QStringLiteral("information")), QStringList { complete });
    const int success = r.indexOf(QStringLiteral("message"), QStringLiteral("text"), complete);
    QVERIFY(r.firstSyncPref() > success);
    QCOMPARE(r.count(QStringLiteral("applySync")), 1);
    const QStringList setup = readLines(soundLog);
    QVERIFY2(setup.contains(QStringLiteral("FREQ 3000")), qPrintable(setup.join('|')));

    // A slow instrument creates the link of a request given up long ago, and sees the
    // connection gone only after that.
    QTRY_COMPARE_WITH_TIMEOUT(openLinks(faultyLog), QStringList(), 30000);
    QCOMPARE(openLinks(soundLog), QStringList());
}

// The instrument answered the reconnect on opening and goes away in the middle of the setup
// sequence (it kills or freezes itself there): "Failed sync to signal generator.", no camera
// touched, nothing stored; back again, a connect from the same dialog and a second sync work.
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
    Simulator first;
    Simulator restarted;
    QVERIFY(first.start({ { "log", firstLog } },
        { signal == SIGKILL ? QStringLiteral("--die-on") : QStringLiteral("--freeze-on"),
            setupCommand }));

    bool told = false;
    bool back = false;
    // On the failure's box: the instrument comes back, restarted once the killed one has gone
    // and freed its ports, or resumed.
    const auto tick = [&] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (told || !box || box->text() != failedSync)
            return;
        told = true;
        if (signal == SIGSTOP)
            back = ::kill(pid_t(first.process.processId()), SIGCONT) == 0;
        else
            back = (first.process.state() == QProcess::NotRunning
                       || first.process.waitForFinished(10000))
                && restarted.start({ { "log", restartedLog } });
    };
    const Run r = run(syncWithGenerator()
            + QJsonArray { click(QStringLiteral("connect_signal_generator_button")) }
            + syncWithGenerator(),
        { QStringLiteral("127.0.0.1") }, tick);
    qInfo("reconnect %lld ms, whole run %lld ms", r.pressMs.value(0, -1), r.totalMs);
    QCOMPARE(r.code, 0);
    QVERIFY2(back, "the instrument did not come back");
    QVERIFY2(readLines(firstLog).contains(QStringLiteral("*RST")),
        "the setup sequence never reached the instrument");

    // Told by the error box alone.
    QCOMPARE(r.texts(QStringLiteral("error")), QStringList { failedSync });
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
    QTRY_COMPARE(openLinks(liveLog), QStringList());
}

int main(int argc, char** argv)
{
    NetNamespace::enterPrivateNetwork(argc, argv);
    QApplication app(argc, argv);
    tst_InstrumentFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_instrumentFaults.moc"
