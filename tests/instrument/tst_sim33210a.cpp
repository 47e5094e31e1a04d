// The sim33210a executable as a test or host starts it: ready line, clean stop, the command
// log, several links, malformed RPC, and each option as our VISA library sees it.
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
    if (bytes.isEmpty())
        return;
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
    void logsTheSetupSequenceInOrder();
    void logsLinksLostWithTheirConnection();
    void optionsAndMalformedRpc_data();
    void optionsAndMalformedRpc();

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

void tst_Sim33210a::logsTheSetupSequenceInOrder()
{
    const QString log = m_dir.filePath("setup.log");
    SimProcess sim;
    QVERIFY(sim.start({ "--log", log }));
    ViSession vi = 0;
    ViSession other = 0;
    QCOMPARE(openInstrument(m_rm, vi), VI_SUCCESS);
    QCOMPARE(viPrintf(vi, const_cast<ViString>("*RST\n")), VI_SUCCESS);
    QCOMPARE(viClear(vi), VI_SUCCESS);
    QCOMPARE(viPrintf(vi, const_cast<ViString>("FREQ %d\n"), 4000), VI_SUCCESS);
    // A second link's query crossing this one's: each link gets its own reply.
    QCOMPARE(openInstrument(m_rm, other), VI_SUCCESS);
    QCOMPARE(viPrintf(vi, const_cast<ViString>("FREQ?\n")), VI_SUCCESS);
    QByteArray reply;
    QCOMPARE(query(other, "*IDN?\n", reply), VI_SUCCESS);
    QVERIFY(reply.contains(",33210A,"));
    char buffer[1024] = {};
    QCOMPARE(viScanf(vi, const_cast<ViString>("%1024t"), buffer), VI_SUCCESS);
    QCOMPARE(QByteArray(buffer), QByteArray("+4.00000000000000E+03\n"));
    QCOMPARE(viClose(vi), VI_SUCCESS);
    QCOMPARE(viClose(other), VI_SUCCESS);
    QCOMPARE(sim.stop(), 0);
    QCOMPARE(readFile(log),
        QByteArray("<link 1 open>\n*RST\n<device clear>\nFREQ 4000\n<link 2 open>\n"
                   "FREQ?\n*IDN?\n<link 1 closed>\n<link 2 closed>\n"));
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

// The simulator started with the options and sent the raw bytes first; then our library opens a
// link and asks "*IDN?".
void tst_Sim33210a::optionsAndMalformedRpc_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("toPortmapper");
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<int>("openStatus");
    QTest::addColumn<int>("queryStatus");
    QTest::addColumn<QByteArray>("model");
    const auto option = [](const char* name, QStringList arguments, ViStatus open, ViStatus query,
                            QByteArray model = {}) {
        QTest::newRow(name) << arguments << false << QByteArray() << int(open) << int(query)
                            << model;
    };
    option("silent portmapper", { "--silent-at", "portmapper" }, VI_ERROR_TMO, 0);
    option("silent create_link", { "--silent-at", "create_link" }, VI_ERROR_TMO, 0);
    option("silent device_read", { "--silent-at", "device_read" }, VI_SUCCESS, VI_ERROR_TMO);
    option(
        "drops the connection mid-reply", { "--drop-mid-reply" }, VI_SUCCESS, VI_ERROR_CONN_LOST);
    option("answers garbage", { "--garbage" }, VI_SUCCESS, VI_ERROR_IO);
    option("no links left", { "--max-links", "0" }, VI_ERROR_ALLOC, 0);
    option(
        "slow but within the time-out", { "--delay-ms", "100" }, VI_SUCCESS, VI_SUCCESS, "33210A");
    option("another model", { "--model", "33220A" }, VI_SUCCESS, VI_SUCCESS, "33220A");
    option("Nagle off", { "--tcp-nodelay" }, VI_SUCCESS, VI_SUCCESS, "33210A");
    // Whatever a connection sends costs it that connection, never the server.
    const auto survives = [](const char* name, bool toPortmapper, QByteArray raw) {
        QTest::newRow(name) << QStringList() << toPortmapper << raw << int(VI_SUCCESS)
                            << int(VI_SUCCESS) << QByteArray("33210A");
    };
    const QByteArray write = words({ 1, 0, 2, 0x0607AF, 1, 11, 0, 0, 0, 0 });
    survives("noise", false, "GET / HTTP/1.0\r\n\r\n");
    survives("record claims 2 GB", false, words({ 0xFFFFFFF0 }) + QByteArray(64, 'x'));
    survives("record cut short, then hang-up", false, words({ 0x80000100, 1, 0 }));
    survives("device_write declaring more data than sent", false,
        words({ 0x80000000 | quint32(write.size() + 20) }) + write
            + words({ 1, 0, 0, 8, 0x7FFFFFFF }));
    survives("wrong RPC version", true, words({ 0x80000028, 1, 0, 3, 100000, 2, 3, 0, 0, 0, 0 }));
    survives(
        "auth longer than allowed", true, words({ 0x80000020, 1, 0, 2, 100000, 2, 3, 0, 5000 }));
    survives("GETPORT without arguments", true,
        words({ 0x80000028, 1, 0, 2, 100000, 2, 3, 0, 0, 0, 0 }));
}

void tst_Sim33210a::optionsAndMalformedRpc()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, toPortmapper);
    QFETCH(QByteArray, raw);
    QFETCH(int, openStatus);
    QFETCH(int, queryStatus);
    QFETCH(QByteArray, model);
    SimProcess sim;
    QVERIFY(sim.start(arguments));
    sendRaw(toPortmapper ? sim.portmapperPort() : sim.corePort(), raw);
    ViSession vi = 0;
    QCOMPARE(int(openInstrument(m_rm, vi)), openStatus);
    if (openStatus == VI_SUCCESS) {
        QByteArray reply;
        QCOMPARE(int(query(vi, "*IDN?\n", reply)), queryStatus);
        if (queryStatus == VI_SUCCESS)
            QVERIFY2(
                reply.startsWith("Simulated Instruments Inc.," + model + ","), reply.constData());
        viClose(vi);
    }
    QCOMPARE(sim.stop(), 0);
}

NETNS_MAIN(tst_Sim33210a)
#include "tst_sim33210a.moc"
