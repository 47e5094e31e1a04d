// The VISA entry points against a scripted VXI-11 server on loopback: the read loop, the error
// mapping, what a slow or broken instrument must never do to the next call, and no call sent
// before the previous reply is in (with Nagle on at the instrument, that cost ~40 ms a query).
#include "../NetNamespace.h"
#include "FakeVxi11Server.h"
#include "visa.h"

#include <QtTest>

#include <cstring>
#include <memory>

namespace {
constexpr int kTimeoutMs = 300;
using Step = FakeVxi11Server::ReadStep;
using Script = FakeVxi11Server::Script;
using Kind = RpcHandler::Action::Kind;
constexpr uint32_t kReqCnt = 1;
constexpr uint32_t kChr = 2;
constexpr uint32_t kEnd = 4;
} // namespace

Q_DECLARE_METATYPE(std::vector<FakeVxi11Server::ReadStep>)

class tst_VisaSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void queries_data();
    void queries();
    void writeSplitsAtMaxRecvSize();
    void closeDestroysLinkAndHandle();
    void openFailures_data();
    void openFailures();

private:
    ViStatus open();
    ViStatus query(const char* command, QByteArray& reply);

    std::unique_ptr<FakeVxi11Server> m_server;
    ViSession m_rm = 0;
    ViSession m_vi = 0;
};

void tst_VisaSession::initTestCase()
{
    REQUIRE_PRIVATE_NETWORK();
    qputenv("SYNC_VISA_TIMEOUT_MS", QByteArray::number(kTimeoutMs));
}

void tst_VisaSession::init()
{
    m_server.reset(new FakeVxi11Server);
    QVERIFY(m_server->start());
    qputenv("SYNC_VXI11_PORTMAPPER_PORT", QByteArray::number(m_server->port()));
    QCOMPARE(viOpenDefaultRM(&m_rm), VI_SUCCESS);
    m_vi = 0;
}

void tst_VisaSession::cleanup()
{
    viClose(m_rm);
    m_server.reset();
}

ViStatus tst_VisaSession::open()
{
    return viOpen(
        m_rm, const_cast<ViRsrc>("TCPIP0::127.0.0.1::inst0::INSTR"), VI_NO_LOCK, 0, &m_vi);
}

ViStatus tst_VisaSession::query(const char* command, QByteArray& reply)
{
    const ViStatus written = viPrintf(m_vi, const_cast<ViString>(command));
    if (written < VI_SUCCESS)
        return written;
    char buffer[1024];
    std::memset(buffer, 0, sizeof buffer);
    const ViStatus status = viScanf(m_vi, const_cast<ViString>("%1024t"), buffer);
    reply = QByteArray(buffer, int(strnlen(buffer, sizeof buffer)));
    return status;
}

// One "FREQ?" with the given write error and read steps, then "*IDN?" answered "fresh\n".
void tst_VisaSession::queries_data()
{
    QTest::addColumn<int>("writeError");
    QTest::addColumn<std::vector<Step>>("steps");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("recovers");
    const auto row = [](const char* name, int writeError, std::vector<Step> steps, ViStatus status,
                         QByteArray reply = {}, bool recovers = true) {
        QTest::newRow(name) << writeError << steps << int(status) << reply << recovers;
    };
    row("END in the first chunk", 0, { { "+1.0E+03\n", kEnd } }, VI_SUCCESS, "+1.0E+03\n");
    row("chunks until END", 0, { { "ab", kReqCnt }, { "cd", kReqCnt }, { "e\n", kEnd } },
        VI_SUCCESS, "abcde\n");
    row("empty chunk in between", 0, { { "ab", kReqCnt }, { "", 0 }, { "c\n", kEnd } }, VI_SUCCESS,
        "abc\n");
    row("exact multiple of the chunk, END on an empty chunk", 0,
        { { "abcd", kReqCnt }, { "", kEnd } }, VI_SUCCESS, "abcd");
    row("term char ends the message", 0, { { "ok\n", kChr } }, VI_SUCCESS, "ok\n");
    row("reply longer than the buffer: cut, the rest drained", 0,
        { { std::string(1000, 'y'), kReqCnt }, { std::string(500, 'z') + "\n", kEnd } }, VI_SUCCESS,
        QByteArray(1000, 'y') + QByteArray(24, 'z'));
    row("silent instrument times out", 0, { { "", 0, 0, 0, Kind::Silent } }, VI_ERROR_TMO);
    row("time-out with partial data is not kept for the next read", 0,
        { { "stale", kReqCnt }, { "", 0, 0, 0, Kind::Silent } }, VI_ERROR_TMO);
    row("late reply is not the next call's answer", 0, { { "late\n", kEnd, 0, 700 } },
        VI_ERROR_TMO);
    row("write refused: the write reports it", 17, {}, VI_ERROR_IO);
    row("device I/O timeout", 0, { { "", 0, 15 } }, VI_ERROR_TMO);
    row("locked by another link", 0, { { "", 0, 11 } }, VI_ERROR_RSRC_LOCKED);
    row("invalid link", 0, { { "", 0, 4 } }, VI_ERROR_CONN_LOST);
    row("unknown error code still an error", 0, { { "", 0, 1234 } }, VI_ERROR_IO);
    row("connection dropped mid-reply", 0, { { "half\n", kEnd, 0, 0, Kind::DropMidReply } },
        VI_ERROR_CONN_LOST, {}, false);
    row("garbage reply", 0, { { "x\n", kEnd, 0, 0, Kind::Garbage } }, VI_ERROR_IO, {}, false);
}

void tst_VisaSession::queries()
{
    QFETCH(int, writeError);
    QFETCH(std::vector<Step>, steps);
    QFETCH(int, status);
    QFETCH(QByteArray, reply);
    QFETCH(bool, recovers);
    QCOMPARE(open(), VI_SUCCESS);
    m_server->script([&](Script& s) {
        s.nextWriteError = writeError;
        s.reads.assign(steps.begin(), steps.end());
    });
    QByteArray got;
    QCOMPARE(int(query("FREQ?\n", got)), status);
    if (status == VI_SUCCESS) {
        QCOMPARE(got, reply);
        QCOMPARE(m_server->seen().lastMessage, std::string("FREQ?\n"));
        QCOMPARE(m_server->overlappingCalls(), 0u);
    }

    m_server->addReply("fresh\n");
    const ViStatus next = query("*IDN?\n", got);
    if (recovers) {
        QCOMPARE(next, VI_SUCCESS);
        QCOMPARE(got, QByteArray("fresh\n"));
    } else {
        QCOMPARE(next, VI_ERROR_CONN_LOST);
    }
    QCOMPARE(viClose(m_vi), VI_SUCCESS);
}

void tst_VisaSession::writeSplitsAtMaxRecvSize()
{
    m_server->script([](Script& s) { s.maxRecvSize = 16; });
    QCOMPARE(open(), VI_SUCCESS);
    const QByteArray text(40, 'w');
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("%s"), text.constData()), VI_SUCCESS);
    const auto chunks = m_server->seen().writes;
    QCOMPARE(chunks.size(), size_t(3));
    QCOMPARE(chunks[0].size, size_t(16));
    QCOMPARE(chunks[1].size, size_t(16));
    QCOMPARE(chunks[2].size, size_t(8));
    QVERIFY(!chunks[0].end && !chunks[1].end && chunks[2].end);
    QCOMPARE(m_server->seen().lastMessage, text.toStdString());
    QCOMPARE(m_server->overlappingCalls(), 0u);
}

void tst_VisaSession::closeDestroysLinkAndHandle()
{
    QCOMPARE(open(), VI_SUCCESS);
    ViSession other = 0;
    // An instrument session is not a resource manager.
    QCOMPARE(viOpen(m_vi, const_cast<ViRsrc>("TCPIP::127.0.0.1::INSTR"), VI_NO_LOCK, 0, &other),
        VI_ERROR_INV_OBJECT);
    QCOMPARE(viClose(m_vi), VI_SUCCESS);
    QCOMPARE(m_server->seen().destroyedLinks, 1);
    char buffer[1024];
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("*RST\n")), VI_ERROR_INV_OBJECT);
    QCOMPARE(viScanf(m_vi, const_cast<ViString>("%1024t"), buffer), VI_ERROR_INV_OBJECT);
    QCOMPARE(viClear(m_vi), VI_ERROR_INV_OBJECT);
    QCOMPARE(viClose(m_vi), VI_ERROR_INV_OBJECT);
    // Closing the resource manager closes what it opened.
    QCOMPARE(open(), VI_SUCCESS);
    QCOMPARE(viClose(m_rm), VI_SUCCESS);
    QCOMPARE(m_server->seen().destroyedLinks, 2);
    QTRY_COMPARE(m_server->seen().openConnections, 0);
}

void tst_VisaSession::openFailures_data()
{
    QTest::addColumn<QByteArray>("resource");
    QTest::addColumn<int>("linkError");
    QTest::addColumn<int>("status");
    const QByteArray good = "TCPIP0::127.0.0.1::inst0::INSTR";
    QTest::newRow("instrument out of links") << good << 9 << int(VI_ERROR_ALLOC);
    QTest::newRow("device name refused") << good << 21 << int(VI_ERROR_INV_RSRC_NAME);
    QTest::newRow("nothing listening")
        << QByteArray("TCPIP0::127.0.0.2::inst0::INSTR") << 0 << int(VI_ERROR_RSRC_NFOUND);
    QTest::newRow("malformed resource string")
        << QByteArray("TCPIP0::") << 0 << int(VI_ERROR_INV_RSRC_NAME);
}

void tst_VisaSession::openFailures()
{
    QFETCH(QByteArray, resource);
    QFETCH(int, linkError);
    QFETCH(int, status);
    m_server->script([&](Script& s) { s.createLinkError = linkError; });
    m_vi = 1234;
    QCOMPARE(int(viOpen(m_rm, resource.data(), VI_NO_LOCK, 0, &m_vi)), status);
    QCOMPARE(m_vi, ViSession(VI_NULL));
    // A failed open leaves no connection behind at the instrument.
    QTRY_COMPARE(m_server->seen().openConnections, 0);
}

NETNS_MAIN(tst_VisaSession)
#include "tst_visasession.moc"
