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

enum class Parser { Opaque, Reply, ReadReply };
} // namespace

Q_DECLARE_METATYPE(std::vector<uint8_t>)
Q_DECLARE_METATYPE(Parser)

class tst_VxiRpc : public QObject
{
    Q_OBJECT

private slots:
    void parsersRefuseWhatTheBufferDoesNotHold_data();
    void parsersRefuseWhatTheBufferDoesNotHold();
    void recordsSurviveAnySplit_data();
    void recordsSurviveAnySplit();
    void recordLargerThanLimitFails();
};

void tst_VxiRpc::parsersRefuseWhatTheBufferDoesNotHold_data()
{
    QTest::addColumn<Parser>("parser");
    QTest::addColumn<std::vector<uint8_t>>("bytes");
    QTest::addColumn<bool>("parses");
    const auto row = [](const char* name, Parser parser, std::vector<uint8_t> bytes, bool parses) {
        QTest::newRow(name) << parser << bytes << parses;
    };
    // Opaque data, at most 16 bytes.
    row("opaque length beyond the buffer", Parser::Opaque, words({ 8, 0x41414141 }), false);
    row("opaque length near 2^32 must not wrap", Parser::Opaque, words({ 0xFFFFFFFF, 0x41414141 }),
        false);
    row("opaque padding missing", Parser::Opaque, { 0, 0, 0, 1, 'a' }, false);
    row("opaque over the caller's maximum", Parser::Opaque, words({ 20, 0, 0, 0, 0, 0 }), false);
    row("opaque length word cut short", Parser::Opaque, { 0, 0 }, false);
    // RPC replies, xid 7.
    row("reply accepted, success", Parser::Reply, words({ 7, 1, 0, 0, 0, RpcCodec::Success, 42 }),
        true);
    row("reply accepted, procedure unavailable", Parser::Reply,
        words({ 7, 1, 0, 0, 0, RpcCodec::ProcUnavail }), true);
    row("reply denied", Parser::Reply, words({ 7, 1, 1, 0, 2, 2 }), true);
    row("a call where a reply belongs", Parser::Reply, words({ 7, 0, 2, 1, 1, 1 }), false);
    row("unknown reply status", Parser::Reply, words({ 7, 1, 9, 0, 0, 0 }), false);
    row("verifier longer than allowed", Parser::Reply, words({ 7, 1, 0, 0, 401 }), false);
    row("verifier beyond the record", Parser::Reply, words({ 7, 1, 0, 0, 16, 0 }), false);
    row("reply cut after the xid", Parser::Reply, words({ 7 }), false);
    // device_read replies carrying "OK".
    row("read reply well-formed", Parser::ReadReply, words({ 0, vxi11::ReasonEnd, 2, 0x4F4B0000 }),
        true);
    row("read reply declares more data than sent", Parser::ReadReply,
        words({ 0, vxi11::ReasonEnd, 100, 0 }), false);
    row("read reply declares more than any reply may hold", Parser::ReadReply,
        words({ 0, vxi11::ReasonEnd, uint32_t(vxi11::kMaxData + 1) }), false);
    row("read reply without reason", Parser::ReadReply, words({ 0 }), false);
}

void tst_VxiRpc::parsersRefuseWhatTheBufferDoesNotHold()
{
    QFETCH(Parser, parser);
    QFETCH(std::vector<uint8_t>, bytes);
    QFETCH(bool, parses);
    switch (parser) {
    case Parser::Opaque: {
        XdrReader reader(bytes.data(), bytes.size());
        std::vector<uint8_t> out;
        QCOMPARE(reader.getOpaque(out, 16), parses);
        QCOMPARE(reader.getUint(), 0u); // stays failed
        QVERIFY(!reader.ok());
        break;
    }
    case Parser::Reply: {
        RpcCodec::Reply reply;
        QCOMPARE(RpcCodec::parseReply(bytes.data(), bytes.size(), reply), parses);
        if (parses) {
            QCOMPARE(reply.xid, 7u);
            QCOMPARE(reply.accepted, bytes[11] == 0); // reply_stat, the third word
            QVERIFY(reply.resultOffset <= bytes.size());
        }
        break;
    }
    case Parser::ReadReply: {
        vxi11::ReadResp resp;
        QCOMPARE(vxi11::decode(bytes.data(), bytes.size(), resp), parses);
        if (parses)
            QCOMPARE(resp.data, (std::vector<uint8_t> { 'O', 'K' }));
        break;
    }
    }
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

QTEST_APPLESS_MAIN(tst_VxiRpc)
#include "tst_vxirpc.moc"
