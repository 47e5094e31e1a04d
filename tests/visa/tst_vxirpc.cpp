// The RPC transport and message layer on byte buffers: what a hostile or broken peer can make
// the parsers read or allocate.
#include "RecordAssembler.h"
#include "RpcCodec.h"
#include "Vxi11Messages.h"
#include "XdrReader.h"
#include "XdrWriter.h"

#include <QtTest>

namespace {
std::vector<uint8_t> words(std::initializer_list<uint32_t> values)
{
    XdrWriter writer;
    for (const uint32_t v : values)
        writer.putUint(v);
    return writer.bytes();
}
} // namespace

Q_DECLARE_METATYPE(std::vector<uint8_t>)

class tst_VxiRpc : public QObject
{
    Q_OBJECT

private slots:
    void opaqueRoundTripPadsToFourBytes_data();
    void opaqueRoundTripPadsToFourBytes();
    void opaqueRejectsBadLengths_data();
    void opaqueRejectsBadLengths();
    void recordsSurviveAnySplit_data();
    void recordsSurviveAnySplit();
    void recordLargerThanLimitFails();
    void replyParsing_data();
    void replyParsing();
    void readReplyRejectsTruncatedOrOversizedData_data();
    void readReplyRejectsTruncatedOrOversizedData();
    void callRoundTrip();
};

void tst_VxiRpc::opaqueRoundTripPadsToFourBytes_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("encodedSize");
    QTest::newRow("empty") << QByteArray() << 4;
    QTest::newRow("one byte padded by three") << QByteArray("a") << 8;
    QTest::newRow("exact multiple, no padding") << QByteArray("abcd") << 8;
    QTest::newRow("five bytes") << QByteArray("abcde") << 12;
}

void tst_VxiRpc::opaqueRoundTripPadsToFourBytes()
{
    QFETCH(QByteArray, payload);
    QFETCH(int, encodedSize);
    XdrWriter writer;
    writer.putOpaque(payload.constData(), size_t(payload.size()));
    writer.putUint(0xCAFEF00D);
    QCOMPARE(int(writer.size()), encodedSize + 4);
    XdrReader reader(writer.bytes().data(), writer.size());
    std::vector<uint8_t> out;
    QVERIFY(reader.getOpaque(out, 1024));
    QCOMPARE(QByteArray(reinterpret_cast<const char*>(out.data()), int(out.size())), payload);
    QCOMPARE(reader.getUint(), 0xCAFEF00Du); // the padding was skipped, not read as data
    QVERIFY(reader.ok());
}

void tst_VxiRpc::opaqueRejectsBadLengths_data()
{
    QTest::addColumn<std::vector<uint8_t>>("bytes");
    QTest::newRow("length beyond the buffer") << words({ 8, 0x41414141 });
    QTest::newRow("length near 2^32 must not wrap") << words({ 0xFFFFFFFF, 0x41414141 });
    QTest::newRow("padding missing") << std::vector<uint8_t> { 0, 0, 0, 1, 'a' };
    QTest::newRow("over the caller's maximum") << words({ 20, 0, 0, 0, 0, 0 });
    QTest::newRow("length word itself cut short") << std::vector<uint8_t> { 0, 0 };
}

void tst_VxiRpc::opaqueRejectsBadLengths()
{
    QFETCH(std::vector<uint8_t>, bytes);
    XdrReader reader(bytes.data(), bytes.size());
    std::vector<uint8_t> out;
    QVERIFY(!reader.getOpaque(out, 16));
    QVERIFY(!reader.ok());
    QCOMPARE(reader.getUint(), 0u); // stays failed
}

void tst_VxiRpc::recordsSurviveAnySplit_data()
{
    QTest::addColumn<int>("split");
    for (int split : { 1, 2, 3, 4, 5, 7, 1000 })
        QTest::newRow(qPrintable(QStringLiteral("%1-byte pieces").arg(split))) << split;
}

void tst_VxiRpc::recordsSurviveAnySplit()
{
    QFETCH(int, split);
    // Two records, the first in two fragments, back to back as they come off a socket.
    std::vector<uint8_t> stream
        = { 0, 0, 0, 3, 'a', 'b', 'c', 0x80, 0, 0, 2, 'd', 'e', 0x80, 0, 0, 1, 'f' };
    RecordAssembler assembler(64);
    std::vector<std::vector<uint8_t>> records;
    size_t pos = 0;
    std::vector<uint8_t> pending;
    while (pos < stream.size() || !pending.empty()) {
        const size_t take = std::min<size_t>(size_t(split), stream.size() - pos);
        pending.insert(
            pending.end(), stream.begin() + long(pos), stream.begin() + long(pos + take));
        pos += take;
        const size_t used = assembler.feed(pending.data(), pending.size());
        pending.erase(pending.begin(), pending.begin() + long(used));
        if (assembler.hasRecord())
            records.push_back(assembler.takeRecord());
        else if (take == 0)
            break;
    }
    QCOMPARE(records.size(), size_t(2));
    QCOMPARE(records[0], (std::vector<uint8_t> { 'a', 'b', 'c', 'd', 'e' }));
    QCOMPARE(records[1], (std::vector<uint8_t> { 'f' }));
}

void tst_VxiRpc::recordLargerThanLimitFails()
{
    // Fragments that add up past the limit, each harmless alone.
    const std::vector<uint8_t> stream = { 0, 0, 0, 6, 1, 2, 3, 4, 5, 6, 0x80, 0, 0, 6 };
    RecordAssembler assembler(10);
    assembler.feed(stream.data(), stream.size());
    QVERIFY(assembler.failed());
    QVERIFY(!assembler.hasRecord());
}

void tst_VxiRpc::replyParsing_data()
{
    QTest::addColumn<std::vector<uint8_t>>("bytes");
    QTest::addColumn<bool>("parses");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("accepted, success")
        << words({ 7, 1, 0, 0, 0, RpcCodec::Success, 42 }) << true << true;
    QTest::newRow("accepted, procedure unavailable")
        << words({ 7, 1, 0, 0, 0, RpcCodec::ProcUnavail }) << true << true;
    QTest::newRow("denied") << words({ 7, 1, 1, 0, 2, 2 }) << true << false;
    QTest::newRow("a call where a reply belongs") << words({ 7, 0, 2, 1, 1, 1 }) << false << false;
    QTest::newRow("unknown reply status") << words({ 7, 1, 9, 0, 0, 0 }) << false << false;
    QTest::newRow("verifier longer than allowed") << words({ 7, 1, 0, 0, 401 }) << false << false;
    QTest::newRow("verifier beyond the record") << words({ 7, 1, 0, 0, 16, 0 }) << false << false;
    QTest::newRow("cut after the xid") << words({ 7 }) << false << false;
}

void tst_VxiRpc::replyParsing()
{
    QFETCH(std::vector<uint8_t>, bytes);
    QFETCH(bool, parses);
    QFETCH(bool, accepted);
    RpcCodec::Reply reply;
    QCOMPARE(RpcCodec::parseReply(bytes.data(), bytes.size(), reply), parses);
    if (parses) {
        QCOMPARE(reply.xid, 7u);
        QCOMPARE(reply.accepted, accepted);
        QVERIFY(reply.resultOffset <= bytes.size());
    }
}

void tst_VxiRpc::readReplyRejectsTruncatedOrOversizedData_data()
{
    QTest::addColumn<std::vector<uint8_t>>("bytes");
    QTest::addColumn<bool>("parses");
    QTest::newRow("well-formed") << words({ 0, vxi11::ReasonEnd, 2, 0x4F4B0000 }) << true;
    QTest::newRow("declares more data than sent")
        << words({ 0, vxi11::ReasonEnd, 100, 0 }) << false;
    QTest::newRow("declares more than any reply may hold")
        << words({ 0, vxi11::ReasonEnd, uint32_t(vxi11::kMaxData + 1) }) << false;
    QTest::newRow("reason missing") << words({ 0 }) << false;
}

void tst_VxiRpc::readReplyRejectsTruncatedOrOversizedData()
{
    QFETCH(std::vector<uint8_t>, bytes);
    QFETCH(bool, parses);
    vxi11::ReadResp resp;
    QCOMPARE(vxi11::decode(bytes.data(), bytes.size(), resp), parses);
    if (parses)
        QCOMPARE(resp.data, (std::vector<uint8_t> { 'O', 'K' }));
}

void tst_VxiRpc::callRoundTrip()
{
    vxi11::WriteParms parms;
    parms.linkId = 3;
    parms.flags = vxi11::FlagEnd;
    parms.data = { '*', 'R', 'S', 'T', '\n' };
    RpcCodec::Call call;
    call.xid = 99;
    call.program = vxi11::kCoreProgram;
    call.version = vxi11::kCoreVersion;
    call.procedure = vxi11::DeviceWrite;
    const std::vector<uint8_t> record = RpcCodec::encodeCall(call, vxi11::encode(parms));
    // One buffer, record mark first, so it goes out in one send.
    QCOMPARE(record[0] & 0x80, 0x80);
    RpcCodec::Call parsed;
    QVERIFY(RpcCodec::parseCall(record.data() + 4, record.size() - 4, parsed));
    QCOMPARE(parsed.procedure, uint32_t(vxi11::DeviceWrite));
    vxi11::WriteParms decoded;
    QVERIFY(vxi11::decode(
        record.data() + 4 + parsed.argsOffset, record.size() - 4 - parsed.argsOffset, decoded));
    QCOMPARE(decoded.data, parms.data);
    QCOMPARE(decoded.flags, uint32_t(vxi11::FlagEnd));
}

QTEST_APPLESS_MAIN(tst_VxiRpc)
#include "tst_vxirpc.moc"
