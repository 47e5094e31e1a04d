// The sim33210a executable as a test or host starts it: ready line, clean stop, the command
// log, several links, malformed RPC, and each fault flag as our VISA library sees it.
#include "../NetNamespace.h"
#include "SimProcess.h"
#include "visa.h"

#include <QTemporaryDir>
#include <QtTest>

#include <arpa/inet.h>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
constexpr int kTimeoutMs = 500;

ViStatus openInstrument(ViSession rm, ViSession& vi)
{
    return viOpen(rm, const_cast<ViRsrc>("TCPIP0::127.0.0.1::inst0::INSTR"), VI_NO_LOCK, 0, &vi);
}

ViStatus query(ViSession vi, const char* command, QByteArray& reply)
{
    const ViStatus written = viPrintf(vi, const_cast<ViString>(command));
    if (written < VI_SUCCESS)
        return written;
    char buffer[1024] = {};
    const ViStatus status = viScanf(vi, const_cast<ViString>("%1024t"), buffer);
    reply = QByteArray(buffer, int(strnlen(buffer, sizeof buffer)));
    return status;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Sends raw bytes to a loopback port and waits briefly for whatever comes back.
void sendRaw(quint16 port, const QByteArray& bytes)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in addr = {};
    addr.sin_family = AF_INET;
    addr.sin_port = htons(port);
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0) {
        (void)!::send(fd, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL);
        timeval tv = { 0, 200000 };
        ::setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
        char sink[256];
        (void)!::recv(fd, sink, sizeof sink, 0);
    }
    ::close(fd);
}

QByteArray words(std::initializer_list<quint32> values)
{
    QByteArray out;
    for (const quint32 v : values) {
        const quint32 be = htonl(v);
        out.append(reinterpret_cast<const char*>(&be), 4);
    }
    return out;
}
} // namespace

class tst_Sim33210a : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void announcesPortsAndStopsOnSigterm();
    void logsTheSetupSequenceInOrder();
    void logsLinksLostWithTheirConnection();
    void servesSeveralLinks();
    void survivesMalformedRpc_data();
    void survivesMalformedRpc();
    void faultFlags_data();
    void faultFlags();

private:
    ViSession m_rm = 0;
    QTemporaryDir m_dir;
};

void tst_Sim33210a::initTestCase()
{
    REQUIRE_PRIVATE_NETWORK();
    qputenv("SYNC_VISA_TIMEOUT_MS", QByteArray::number(kTimeoutMs));
    qunsetenv("SYNC_VXI11_PORTMAPPER_PORT");
}

void tst_Sim33210a::init()
{
    QCOMPARE(viOpenDefaultRM(&m_rm), VI_SUCCESS);
}

void tst_Sim33210a::cleanup()
{
    viClose(m_rm);
}

void tst_Sim33210a::announcesPortsAndStopsOnSigterm()
{
    SimProcess sim;
    QString error;
    QVERIFY2(sim.start({}, &error), qPrintable(error));
    QCOMPARE(sim.portmapperPort(), quint16(111));
    QVERIFY(sim.corePort() != 0);
    ViSession vi = 0;
    QCOMPARE(openInstrument(m_rm, vi), VI_SUCCESS);
    // Stops with a link still open.
    QCOMPARE(sim.stop(), 0);
}

void tst_Sim33210a::logsTheSetupSequenceInOrder()
{
    const QString log = m_dir.filePath("setup.log");
    SimProcess sim;
    QVERIFY(sim.start({ "--log", log }));
    ViSession vi = 0;
    QCOMPARE(openInstrument(m_rm, vi), VI_SUCCESS);
    QCOMPARE(viPrintf(vi, const_cast<ViString>("*RST\n")), VI_SUCCESS);
    QCOMPARE(viClear(vi), VI_SUCCESS);
    QCOMPARE(viPrintf(vi, const_cast<ViString>("FREQ %d\n"), 4000), VI_SUCCESS);
    QByteArray reply;
    QCOMPARE(query(vi, "FREQ?\n", reply), VI_SUCCESS);
    QCOMPARE(reply, QByteArray("+4.00000000000000E+03\n"));
    QCOMPARE(viClose(vi), VI_SUCCESS);
    QCOMPARE(sim.stop(), 0);
    QCOMPARE(readFile(log),
        QByteArray("<link 1 open>\n*RST\n<device clear>\nFREQ 4000\nFREQ?\n"
                   "<link 1 closed>\n"));
}

// A test counts the links left open from the log alone: a link whose connection ends without
// destroy_link must show as lost, and one still open at the stop must not.
void tst_Sim33210a::logsLinksLostWithTheirConnection()
{
    const QString log = m_dir.filePath("links.log");
    SimProcess sim;
    QVERIFY(sim.start({ "--log", log, "--drop-mid-reply" }));
    ViSession dropped = 0;
    ViSession kept = 0;
    QCOMPARE(openInstrument(m_rm, dropped), VI_SUCCESS);
    QCOMPARE(openInstrument(m_rm, kept), VI_SUCCESS);
    QByteArray reply;
    QCOMPARE(query(dropped, "FREQ?\n", reply), VI_ERROR_CONN_LOST);
    // The client may see the close before the simulator has noted the loss.
    QTRY_VERIFY(readFile(log).contains("lost"));
    QCOMPARE(sim.stop(), 0);
    viClose(dropped);
    viClose(kept);
    QCOMPARE(readFile(log), QByteArray("<link 1 open>\n<link 2 open>\nFREQ?\n<link 1 lost>\n"));
}

void tst_Sim33210a::servesSeveralLinks()
{
    SimProcess sim;
    QVERIFY(sim.start({}));
    ViSession first = 0;
    ViSession second = 0;
    QCOMPARE(openInstrument(m_rm, first), VI_SUCCESS);
    QCOMPARE(openInstrument(m_rm, second), VI_SUCCESS);
    // Each link gets its own reply, even when the queries cross.
    QCOMPARE(viPrintf(first, const_cast<ViString>("*IDN?\n")), VI_SUCCESS);
    QByteArray reply;
    QCOMPARE(query(second, "FREQ?\n", reply), VI_SUCCESS);
    QCOMPARE(reply, QByteArray("+1.00000000000000E+03\n"));
    char buffer[1024] = {};
    QCOMPARE(viScanf(first, const_cast<ViString>("%1024t"), buffer), VI_SUCCESS);
    QVERIFY(QByteArray(buffer).contains(",33210A,"));
}

void tst_Sim33210a::survivesMalformedRpc_data()
{
    QTest::addColumn<bool>("toPortmapper");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray call = words({ 1, 0, 2, 0x0607AF, 1, 11, 0, 0, 0, 0 });
    QTest::newRow("noise") << false << QByteArray("GET / HTTP/1.0\r\n\r\n");
    QTest::newRow("record claims 2 GB") << false << words({ 0xFFFFFFF0 }) + QByteArray(64, 'x');
    QTest::newRow("record cut short, then hang-up") << false << words({ 0x80000100, 1, 0 });
    QTest::newRow("wrong RPC version")
        << true << words({ 0x80000028, 1, 0, 3, 100000, 2, 3, 0, 0, 0, 0 });
    QTest::newRow("auth longer than allowed")
        << true << words({ 0x80000020, 1, 0, 2, 100000, 2, 3, 0, 5000 });
    QTest::newRow("device_write declaring more data than sent")
        << false
        << words({ 0x80000000 | quint32(call.size() + 20) }) + call
            + words({ 1, 0, 0, 8, 0x7FFFFFFF });
    QTest::newRow("GETPORT without arguments")
        << true << words({ 0x80000028, 1, 0, 2, 100000, 2, 3, 0, 0, 0, 0 });
}

void tst_Sim33210a::survivesMalformedRpc()
{
    QFETCH(bool, toPortmapper);
    QFETCH(QByteArray, bytes);
    SimProcess sim;
    QVERIFY(sim.start({}));
    sendRaw(toPortmapper ? sim.portmapperPort() : sim.corePort(), bytes);
    ViSession vi = 0;
    QCOMPARE(openInstrument(m_rm, vi), VI_SUCCESS);
    QByteArray reply;
    QCOMPARE(query(vi, "*IDN?\n", reply), VI_SUCCESS);
    QVERIFY(reply.startsWith("Simulated Instruments Inc.,33210A,"));
    QCOMPARE(sim.stop(), 0);
}

void tst_Sim33210a::faultFlags_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("openStatus");
    QTest::addColumn<int>("queryStatus");
    QTest::addColumn<QByteArray>("replyStart");
    QTest::newRow("silent portmapper")
        << QStringList { "--silent-at", "portmapper" } << int(VI_ERROR_TMO) << 0 << QByteArray();
    QTest::newRow("silent create_link")
        << QStringList { "--silent-at", "create_link" } << int(VI_ERROR_TMO) << 0 << QByteArray();
    QTest::newRow("silent device_read") << QStringList { "--silent-at", "device_read" }
                                        << int(VI_SUCCESS) << int(VI_ERROR_TMO) << QByteArray();
    QTest::newRow("drops the connection mid-reply")
        << QStringList { "--drop-mid-reply" } << int(VI_SUCCESS) << int(VI_ERROR_CONN_LOST)
        << QByteArray();
    QTest::newRow("answers garbage")
        << QStringList { "--garbage" } << int(VI_SUCCESS) << int(VI_ERROR_IO) << QByteArray();
    QTest::newRow("no links left")
        << QStringList { "--max-links", "0" } << int(VI_ERROR_ALLOC) << 0 << QByteArray();
    QTest::newRow("slow but within the time-out")
        << QStringList { "--delay-ms", "100" } << int(VI_SUCCESS) << int(VI_SUCCESS)
        << QByteArray("Simulated Instruments Inc.,33210A,");
    QTest::newRow("another model")
        << QStringList { "--model", "33220A" } << int(VI_SUCCESS) << int(VI_SUCCESS)
        << QByteArray("Simulated Instruments Inc.,33220A,");
}

void tst_Sim33210a::faultFlags()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, openStatus);
    QFETCH(int, queryStatus);
    QFETCH(QByteArray, replyStart);
    SimProcess sim;
    QVERIFY(sim.start(arguments));
    QElapsedTimer elapsed;
    elapsed.start();
    ViSession vi = 0;
    QCOMPARE(int(openInstrument(m_rm, vi)), openStatus);
    if (openStatus == VI_SUCCESS) {
        QByteArray reply;
        QCOMPARE(int(query(vi, "*IDN?\n", reply)), queryStatus);
        QVERIFY(reply.startsWith(replyStart));
        viClose(vi);
    }
    // Not a timing assertion: far above the time-outs, so only a hang fails here.
    QVERIFY2(elapsed.elapsed() < 10 * kTimeoutMs, qPrintable(QString::number(elapsed.elapsed())));
    QCOMPARE(sim.stop(), 0);
}

NETNS_MAIN(tst_Sim33210a)
#include "tst_sim33210a.moc"
