// The driver through our VXI-11 VISA library against the simulated instrument, inside a private
// network namespace where only loopback exists: the simulator owns port 111 and no packet can
// leave the machine.
#include "../NetNamespace.h"
#include "Simulator.h"

#include "generator/DOC_VIGen.h"
#include "plugin/APP_Host.h"
#include "util/UTL_TextHelpers.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMutex>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdlib>
#include <memory>
#include <unistd.h>
#include <vector>

namespace {

// Short, so that the silent cases stay quick; the chain scales with it.
constexpr int visaTimeoutMs = 400;

// The open failures of all threads: vi::open writes its line on the connect worker. (Closing
// what isn't open also warns, by design, and isn't counted.)
QMutex warningsMutex;
QStringList warnings;
void collectWarnings(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtWarningMsg || !text.contains(QLatin1String("function: vi::open ")))
        return;
    QMutexLocker lock(&warningsMutex);
    warnings.append(text);
}

QStringList takeWarnings()
{
    QMutexLocker lock(&warningsMutex);
    QStringList result = warnings;
    warnings.clear();
    return result;
}

} // namespace

class tst_VIGenInstrument : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void recognisesReadsAndSetsUp();
    void wrongModelIsRefused();
    void failingAddresses_data();
    void failingAddresses();
    void silentInstrument_data();
    void silentInstrument();

private:
    bool startSimulator(const SimOptions& options);
    QStringList commandLog() const;

    QTemporaryDir m_dir;
    std::unique_ptr<Simulator> m_simulator;
    std::unique_ptr<DOC_VIGen> m_driver;
};

void tst_VIGenInstrument::initTestCase()
{
    REQUIRE_PRIVATE_NETWORK();
    qputenv("SYNC_VISA_LIBRARY", VXIVISA_FILE);
    qputenv("SYNC_VISA_TIMEOUT_MS", QByteArray::number(visaTimeoutMs));
    qunsetenv("SYNC_VXI11_PORTMAPPER_PORT");
    qInstallMessageHandler(collectWarnings);
}

void tst_VIGenInstrument::init()
{
    m_driver.reset(new DOC_VIGen(nullptr));
    QVERIFY(m_driver->loadLibrary());
    takeWarnings();
}

void tst_VIGenInstrument::cleanup()
{
    m_driver.reset();
    m_simulator.reset();
    QFile::remove(m_dir.filePath(QStringLiteral("commands.log")));
}

bool tst_VIGenInstrument::startSimulator(const SimOptions& options)
{
    SimOptions withLog = options;
    withLog.logPath = m_dir.filePath(QStringLiteral("commands.log")).toStdString();
    m_simulator.reset(new Simulator(withLog));
    std::string error;
    if (!m_simulator->start(error)) {
        qWarning("simulator: %s", error.c_str());
        return false;
    }
    return true;
}

QStringList tst_VIGenInstrument::commandLog() const
{
    QFile file(m_dir.filePath(QStringLiteral("commands.log")));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void tst_VIGenInstrument::recognisesReadsAndSetsUp()
{
    QVERIFY(startSimulator(SimOptions()));
    QVERIFY(m_driver->connect(0, ipToNumber(QStringLiteral("127.0.0.1"))));
    QVERIFY(m_driver->isConnected());
    QVERIFY(m_driver->isSupportedDevice());
    QCOMPARE(m_driver->getIdentity().section(QLatin1Char(','), 1, 1), QStringLiteral("33210A"));
    m_driver->sync(7000);
    QCOMPARE(m_driver->getFrequency(), 7000);
    const QStringList log = commandLog();
    const int reset = log.indexOf(QStringLiteral("*RST"));
    QVERIFY2(reset >= 0, qPrintable(log.join(QLatin1Char('|'))));
    QVERIFY(log.mid(reset).contains(QStringLiteral("FREQ 7000")));
    QVERIFY(log.mid(reset).contains(QStringLiteral("OUTP ON")));
    QCOMPARE(m_simulator->openLinks(), size_t(1));
    m_driver->disconnect();
    QTRY_COMPARE(m_simulator->openLinks(), size_t(0));
    QVERIFY(takeWarnings().isEmpty());
}

void tst_VIGenInstrument::wrongModelIsRefused()
{
    SimOptions options;
    options.model = "33220A";
    QVERIFY(startSimulator(options));
    QVERIFY(m_driver->connect(0, ipToNumber(QStringLiteral("127.0.0.1"))));
    QVERIFY(m_driver->isConnected());
    QVERIFY(!m_driver->isSupportedDevice());
    // What the sync dialog then does; the instrument gets its link back.
    m_driver->disconnect();
    QTRY_COMPARE(m_simulator->openLinks(), size_t(0));
    QVERIFY(!m_driver->isConnected());
}

void tst_VIGenInstrument::failingAddresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("closed port on loopback") << "127.0.0.2";
    QTest::newRow("no route out of the namespace") << "1.2.3.4";
}

void tst_VIGenInstrument::failingAddresses()
{
    QFETCH(QString, address);
    QVERIFY(startSimulator(SimOptions()));
    QVERIFY(!m_driver->connect(0, ipToNumber(address)));
    QVERIFY(!m_driver->isConnected());
    QVERIFY(!m_driver->isSupportedDevice());
    const QStringList lines = takeWarnings();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().endsWith(QStringLiteral("constr: TCPIP0::%1::inst0::INSTR\"").arg(address)),
             qPrintable(lines.first()));
}

void tst_VIGenInstrument::silentInstrument_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<bool>("opens");
    QTest::newRow("portmapper") << int(SimOptions::Stage::Portmapper) << false;
    QTest::newRow("create_link") << int(SimOptions::Stage::CreateLink) << false;
    QTest::newRow("device_read: opens, then fails the live test")
        << int(SimOptions::Stage::DeviceRead) << true;
}

void tst_VIGenInstrument::silentInstrument()
{
    QFETCH(int, stage);
    QFETCH(bool, opens);
    SimOptions options;
    options.silentAt = SimOptions::Stage(stage);
    QVERIFY(startSimulator(options));
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(m_driver->connect(0, ipToNumber(QStringLiteral("127.0.0.1"))), opens);
    QVERIFY(!m_driver->isConnected());
    // Not a timing assertion: a bound far above the chain of VISA time-outs (open, then a
    // write and a read of the live test), so that only a hang fails here.
    QVERIFY2(elapsed.elapsed() < 10 * 3 * visaTimeoutMs, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(takeWarnings().size(), opens ? 0 : 1);
}

int main(int argc, char** argv)
{
    NetNamespace::enterPrivateNetwork(argc, argv);
    QApplication app(argc, argv);
    tst_VIGenInstrument test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_vigenInstrument.moc"
