#include "RpcCodec.h"

#include "RecordAssembler.h"
#include "XdrReader.h"
#include "XdrWriter.h"

namespace {
constexpr uint32_t kMsgCall = 0;
constexpr uint32_t kMsgReply = 1;
constexpr uint32_t kMsgAccepted = 0;
constexpr uint32_t kMsgDenied = 1;
constexpr uint32_t kAuthNone = 0;
constexpr uint32_t kRpcMismatch = 0;

bool skipAuth(XdrReader& reader)
{
    reader.getUint(); // flavor
    const uint8_t* body = nullptr;
    size_t size = 0;
    return reader.getOpaqueView(body, size, RpcCodec::kMaxAuthBody);
}

std::vector<uint8_t> finish(XdrWriter& writer, const std::vector<uint8_t>& tail)
{
    std::vector<uint8_t>& bytes = writer.bytes();
    bytes.reserve(bytes.size() + tail.size() + 4);
    bytes.insert(bytes.end(), tail.begin(), tail.end());
    RecordAssembler::prependRecordMark(bytes);
    // bytes refers into the writer, so without the move the buffer would be copied.
    // cppcheck-suppress returnStdMoveLocal
    return std::move(bytes);
}
} // namespace

std::vector<uint8_t> RpcCodec::encodeCall(const Call& call, const std::vector<uint8_t>& args)
{
    XdrWriter writer;
    writer.putUint(call.xid);
    writer.putUint(kMsgCall);
    writer.putUint(kRpcVersion);
    writer.putUint(call.program);
    writer.putUint(call.version);
    writer.putUint(call.procedure);
    writer.putUint(kAuthNone);
    writer.putUint(0);
    writer.putUint(kAuthNone);
    writer.putUint(0);
    return finish(writer, args);
}

std::vector<uint8_t> RpcCodec::encodeReply(
    uint32_t xid, AcceptStat stat, const std::vector<uint8_t>& results)
{
    XdrWriter writer;
    writer.putUint(xid);
    writer.putUint(kMsgReply);
    writer.putUint(kMsgAccepted);
    writer.putUint(kAuthNone);
    writer.putUint(0);
    writer.putUint(stat);
    if (stat == ProgMismatch) {
        writer.putUint(1);
        writer.putUint(1);
    }
    return finish(writer, stat == Success ? results : std::vector<uint8_t>());
}

std::vector<uint8_t> RpcCodec::encodeRpcMismatch(uint32_t xid)
{
    XdrWriter writer;
    writer.putUint(xid);
    writer.putUint(kMsgReply);
    writer.putUint(kMsgDenied);
    writer.putUint(kRpcMismatch);
    writer.putUint(kRpcVersion);
    writer.putUint(kRpcVersion);
    return finish(writer, {});
}

bool RpcCodec::peekXid(const uint8_t* data, size_t size, uint32_t& xid)
{
    XdrReader reader(data, size);
    xid = reader.getUint();
    return reader.ok();
}

bool RpcCodec::parseCall(const uint8_t* data, size_t size, Call& call)
{
    XdrReader reader(data, size);
    call.xid = reader.getUint();
    if (reader.getUint() != kMsgCall)
        return false;
    if (reader.getUint() != kRpcVersion)
        return false;
    call.program = reader.getUint();
    call.version = reader.getUint();
    call.procedure = reader.getUint();
    if (!skipAuth(reader) || !skipAuth(reader))
        return false;
    call.argsOffset = reader.position();
    return reader.ok();
}

bool RpcCodec::parseReply(const uint8_t* data, size_t size, Reply& reply)
{
    XdrReader reader(data, size);
    reply.xid = reader.getUint();
    if (reader.getUint() != kMsgReply)
        return false;
    const uint32_t replyStat = reader.getUint();
    if (replyStat == kMsgDenied) {
        reply.accepted = false;
        return reader.ok();
    }
    if (replyStat != kMsgAccepted || !skipAuth(reader))
        return false;
    reply.accepted = true;
    reply.acceptStat = reader.getUint();
    reply.resultOffset = reader.position();
    return reader.ok();
}
