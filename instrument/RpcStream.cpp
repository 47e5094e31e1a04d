#include "RpcStream.h"

namespace {
// A reply whose xid matches but whose body is no RPC reply at all.
std::vector<uint8_t> garbageRecord(uint32_t xid)
{
    std::vector<uint8_t> record = { uint8_t(xid >> 24), uint8_t(xid >> 16), uint8_t(xid >> 8),
        uint8_t(xid), 0x00, 0x00, 0x00, 0x07, 0xde, 0xad, 0xbe };
    RecordAssembler::prependRecordMark(record);
    return record;
}
} // namespace

RpcStream::RpcStream(RpcHandler& handler, uint64_t connectionId, size_t maxRecordSize)
    : m_handler(handler)
    , m_connectionId(connectionId)
    , m_assembler(maxRecordSize)
{
}

bool RpcStream::receive(const uint8_t* data, size_t size, std::vector<uint8_t>& outgoing)
{
    return receive(data, size, [&outgoing](const std::vector<uint8_t>& record) {
        outgoing.insert(outgoing.end(), record.begin(), record.end());
        return true;
    });
}

bool RpcStream::receive(const uint8_t* data, size_t size, const Send& send)
{
    if (!m_open)
        return false;
    m_pending.insert(m_pending.end(), data, data + size);
    while (m_open && !m_pending.empty()) {
        const size_t used = m_assembler.feed(m_pending.data(), m_pending.size());
        m_pending.erase(m_pending.begin(), m_pending.begin() + static_cast<std::ptrdiff_t>(used));
        if (m_assembler.failed()) {
            m_open = false;
            break;
        }
        if (!m_assembler.hasRecord())
            break;
        const std::vector<uint8_t> record = m_assembler.takeRecord();
        RpcCodec::Call call;
        if (!RpcCodec::parseCall(record.data(), record.size(), call)) {
            uint32_t xid = 0;
            // A call we can't read: tell the caller if we know who it is, then hang up.
            if (RpcCodec::peekXid(record.data(), record.size(), xid))
                send(RpcCodec::encodeRpcMismatch(xid));
            m_open = false;
            break;
        }
        const RpcHandler::Action action = m_handler.handle(
            m_connectionId, call, record.data() + call.argsOffset, record.size() - call.argsOffset);
        std::vector<uint8_t> reply;
        switch (action.kind) {
        case RpcHandler::Action::Reply:
            reply = RpcCodec::encodeReply(call.xid, action.acceptStat, action.results);
            break;
        case RpcHandler::Action::Silent:
            break;
        case RpcHandler::Action::DropMidReply:
            reply = RpcCodec::encodeReply(call.xid, action.acceptStat, action.results);
            reply.resize(reply.size() / 2);
            m_open = false;
            break;
        case RpcHandler::Action::Garbage:
            reply = garbageRecord(call.xid);
            break;
        }
        if (!reply.empty() && !send(reply))
            m_open = false;
    }
    return m_open;
}
