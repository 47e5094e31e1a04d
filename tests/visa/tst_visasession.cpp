// The VISA entry points against a scripted VXI-11 server on loopback: the read loop, the error
// mapping, and what a slow or broken instrument must never do to the next call.
#include "../NetNamespace.h"
#include "FakeVxi11Server.h"
#include "visa.h"

#include <QtTest>

#include <cstring>
#include <memory>

namespace {
constexpr int kTimeoutMs = 300;
using Step = FakeVxi11Server::ReadStep;
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
    void readsWholeMessage_data();
    void readsWholeMessage();
    void readFailures_data();
    void readFailures();
    void writeSplitsAtMaxRecvSize();
    void queryWriteFailureIsReportedByTheRead();
    void heldQueryStillReachesTheInstrument_data();
    void heldQueryStillReachesTheInstrument();
    void longReplyFillsBufferAndIsDrained();
    void linkIsDestroyedOnEveryClose();
    void openFailures_data();
    void openFailures();
    void staleHandlesAreRefused();

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

void tst_VisaSession::readsWholeMessage_data()
{
    QTest::addColumn<std::vector<Step>>("steps");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("END in the first chunk")
        << std::vector<Step> { { "+1.0E+03\n", kEnd } } << QByteArray("+1.0E+03\n");
    QTest::newRow("chunks until END") << std::vector<Step> { { "ab", kReqCnt }, { "cd", kReqCnt },
        { "e\n", kEnd } } << QByteArray("abcde\n");
    QTest::newRow("empty chunk in between") << std::vector<Step> { { "ab", kReqCnt }, { "", 0 },
        { "c\n", kEnd } } << QByteArray("abc\n");
    QTest::newRow("exact multiple of the chunk, END on an empty chunk")
        << std::vector<Step> { { "abcd", kReqCnt }, { "", kEnd } } << QByteArray("abcd");
    QTest::newRow("term char ends the message")
        << std::vector<Step> { { "ok\n", kChr } } << QByteArray("ok\n");
}

void tst_VisaSession::readsWholeMessage()
{
    QFETCH(std::vector<Step>, steps);
    QFETCH(QByteArray, expected);
    QCOMPARE(open(), VI_SUCCESS);
    for (const Step& step : steps)
        m_server->addRead(step);
    QByteArray reply;
    QCOMPARE(query("FREQ?\n", reply), VI_SUCCESS);
    QCOMPARE(reply, expected);
    QCOMPARE(m_server->lastMessage(), std::string("FREQ?\n"));
}

void tst_VisaSession::readFailures_data()
{
    QTest::addColumn<std::vector<Step>>("steps");
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("recovers");
    QTest::newRow("silent instrument times out")
        << std::vector<Step> { { "", 0, 0, 0, Kind::Silent } } << int(VI_ERROR_TMO) << true;
    QTest::newRow("time-out with partial data is not kept for the next read")
        << std::vector<Step> { { "stale", kReqCnt }, { "", 0, 0, 0, Kind::Silent } }
        << int(VI_ERROR_TMO) << true;
    QTest::newRow("late reply is not the next call's answer")
        << std::vector<Step> { { "late\n", kEnd, 0, 700 } } << int(VI_ERROR_TMO) << true;
    QTest::newRow("device I/O timeout")
        << std::vector<Step> { { "", 0, 15 } } << int(VI_ERROR_TMO) << true;
    QTest::newRow("device I/O error")
        << std::vector<Step> { { "", 0, 17 } } << int(VI_ERROR_IO) << true;
    QTest::newRow("locked by another link")
        << std::vector<Step> { { "", 0, 11 } } << int(VI_ERROR_RSRC_LOCKED) << true;
    QTest::newRow("invalid link") << std::vector<Step> { { "", 0, 4 } } << int(VI_ERROR_CONN_LOST)
                                  << true;
    QTest::newRow("unknown error code still an error")
        << std::vector<Step> { { "", 0, 1234 } } << int(VI_ERROR_IO) << true;
    QTest::newRow("connection dropped mid-reply")
        << std::vector<Step> { { "half\n", kEnd, 0, 0, Kind::DropMidReply } }
        << int(VI_ERROR_CONN_LOST) << false;
    QTest::newRow("garbage reply")
        << std::vector<Step> { { "x\n", kEnd, 0, 0, Kind::Garbage } } << int(VI_ERROR_IO) << false;
}

void tst_VisaSession::readFailures()
{
    QFETCH(std::vector<Step>, steps);
    QFETCH(int, status);
    QFETCH(bool, recovers);
    QCOMPARE(open(), VI_SUCCESS);
    for (const Step& step : steps)
        m_server->addRead(step);
    QByteArray reply;
    QElapsedTimer elapsed;
    elapsed.start();
    QCOMPARE(int(query("FREQ?\n", reply)), status);
    // Far above the time-out: only a hang fails here.
    QVERIFY2(elapsed.elapsed() < 10 * kTimeoutMs, qPrintable(QString::number(elapsed.elapsed())));

    m_server->addReply("fresh\n");
    const ViStatus next = query("*IDN?\n", reply);
    if (recovers) {
        QCOMPARE(next, VI_SUCCESS);
        QCOMPARE(reply, QByteArray("fresh\n"));
    } else {
        QCOMPARE(next, VI_ERROR_CONN_LOST);
    }
    QCOMPARE(viClose(m_vi), VI_SUCCESS);
}

void tst_VisaSession::writeSplitsAtMaxRecvSize()
{
    m_server->setMaxRecvSize(16);
    QCOMPARE(open(), VI_SUCCESS);
    const QByteArray text(40, 'w');
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("%s"), text.constData()), VI_SUCCESS);
    const auto chunks = m_server->writes();
    QCOMPARE(chunks.size(), size_t(3));
    QCOMPARE(chunks[0].size, size_t(16));
    QCOMPARE(chunks[1].size, size_t(16));
    QCOMPARE(chunks[2].size, size_t(8));
    QVERIFY(!chunks[0].end && !chunks[1].end && chunks[2].end);
    QCOMPARE(m_server->lastMessage(), text.toStdString());
}

void tst_VisaSession::queryWriteFailureIsReportedByTheRead()
{
    QCOMPARE(open(), VI_SUCCESS);
    m_server->failNextWrite(17);
    m_server->addReply("never read\n");
    // The query's write goes out with the read, so the read reports the write's failure.
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("FREQ?\n")), VI_SUCCESS);
    char buffer[1024];
    QCOMPARE(viScanf(m_vi, const_cast<ViString>("%1024t"), buffer), VI_ERROR_IO);
    // A command's write is not held: its failure is its own.
    m_server->failNextWrite(17);
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("OUTP ON\n")), VI_ERROR_IO);
    // The orphaned read reply was not taken for this one.
    m_server->addReply("fresh\n");
    QByteArray reply;
    QCOMPARE(query("*IDN?\n", reply), VI_SUCCESS);
    QCOMPARE(reply, QByteArray("fresh\n"));
}

void tst_VisaSession::heldQueryStillReachesTheInstrument_data()
{
    QTest::addColumn<QString>("next");
    QTest::newRow("another write") << "write";
    QTest::newRow("a clear") << "clear";
    QTest::newRow("a close") << "close";
}

void tst_VisaSession::heldQueryStillReachesTheInstrument()
{
    QFETCH(QString, next);
    QCOMPARE(open(), VI_SUCCESS);
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("*IDN?\n")), VI_SUCCESS);
    if (next == "write")
        QCOMPARE(viPrintf(m_vi, const_cast<ViString>("*RST\n")), VI_SUCCESS);
    else if (next == "clear")
        QCOMPARE(viClear(m_vi), VI_SUCCESS);
    else
        QCOMPARE(viClose(m_vi), VI_SUCCESS);
    const std::vector<std::string> messages = m_server->messages();
    QVERIFY(!messages.empty());
    QCOMPARE(messages.front(), std::string("*IDN?\n"));
    if (next == "write")
        QCOMPARE(messages.back(), std::string("*RST\n"));
}

void tst_VisaSession::longReplyFillsBufferAndIsDrained()
{
    QCOMPARE(open(), VI_SUCCESS);
    m_server->addRead({ std::string(1000, 'y'), kReqCnt });
    m_server->addRead({ std::string(500, 'z') + "\n", kEnd });
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("*IDN?\n")), VI_SUCCESS);
    std::vector<char> memory(1024 + 16, '#');
    QVERIFY(viScanf(m_vi, const_cast<ViString>("%1024t"), memory.data()) >= VI_SUCCESS);
    QCOMPARE(memory[999], 'y');
    QCOMPARE(memory[1023], 'z');
    for (size_t i = 1024; i < memory.size(); ++i)
        QCOMPARE(memory[i], '#');
    // The tail of the long reply must not come back as the answer to the next query.
    m_server->addReply("next\n");
    QByteArray reply;
    QCOMPARE(query("FREQ?\n", reply), VI_SUCCESS);
    QCOMPARE(reply, QByteArray("next\n"));
}

void tst_VisaSession::linkIsDestroyedOnEveryClose()
{
    QCOMPARE(open(), VI_SUCCESS);
    QCOMPARE(viClose(m_vi), VI_SUCCESS);
    QCOMPARE(m_server->destroyedLinks(), 1);
    // Closing the resource manager closes what it opened.
    QCOMPARE(open(), VI_SUCCESS);
    QCOMPARE(viClose(m_rm), VI_SUCCESS);
    QCOMPARE(m_server->destroyedLinks(), 2);
    QTRY_COMPARE(m_server->openConnections(), 0);
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
    m_server->setCreateLinkError(linkError);
    m_vi = 1234;
    QCOMPARE(int(viOpen(m_rm, resource.data(), VI_NO_LOCK, 0, &m_vi)), status);
    QCOMPARE(m_vi, ViSession(VI_NULL));
    // A failed open leaves no connection behind at the instrument.
    QTRY_COMPARE(m_server->openConnections(), 0);
}

void tst_VisaSession::staleHandlesAreRefused()
{
    QCOMPARE(open(), VI_SUCCESS);
    QCOMPARE(viClose(m_vi), VI_SUCCESS);
    char buffer[1024];
    QCOMPARE(viPrintf(m_vi, const_cast<ViString>("*RST\n")), VI_ERROR_INV_OBJECT);
    QCOMPARE(viScanf(m_vi, const_cast<ViString>("%1024t"), buffer), VI_ERROR_INV_OBJECT);
    QCOMPARE(viClear(m_vi), VI_ERROR_INV_OBJECT);
    QCOMPARE(viClose(m_vi), VI_ERROR_INV_OBJECT);
    ViSession other = 0;
    // An instrument session is not a resource manager.
    QCOMPARE(open(), VI_SUCCESS);
    QCOMPARE(viOpen(m_vi, const_cast<ViRsrc>("TCPIP::127.0.0.1::INSTR"), VI_NO_LOCK, 0, &other),
        VI_ERROR_INV_OBJECT);
}

NETNS_MAIN(tst_VisaSession)
#include "tst_visasession.moc"
