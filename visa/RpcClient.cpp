#include "RpcClient.h"

#include "RpcCodec.h"

#include <chrono>

namespace {
RpcClient::Status fromSocket(TcpSocket::Result result)
{
    switch (result) {
    case TcpSocket::Result::Ok:
        return RpcClient::Status::Ok;
    case TcpSocket::Result::Timeout:
        return RpcClient::Status::Timeout;
    case TcpSocket::Result::Unreachable:
        return RpcClient::Status::Unreachable;
    case TcpSocket::Result::Closed:
    case TcpSocket::Result::Error:
        break;
    }
    return RpcClient::Status::ConnectionLost;
}
} // namespace

RpcClient::RpcClient(uint32_t program, uint32_t version)
    : m_program(program)
    , m_version(version)
    // Distinct starting points keep two clients from sharing xids in a server's log.
    , m_nextXid(static_cast<uint32_t>(std::chrono::steady_clock::now().time_since_epoch().count()))
    , m_assembler(kMaxRecordSize)
{
}

RpcClient::Status RpcClient::connect(
    const std::string& host, uint16_t port, const Deadline& deadline)
{
    close();
    return fromSocket(m_socket.connect(host, port, deadline));
}

void RpcClient::close()
{
    m_socket.close();
    m_assembler.reset();
    m_pending.clear();
}

RpcClient::Status RpcClient::receiveRecord(std::vector<uint8_t>& record, const Deadline& deadline)
{
    for (;;) {
        if (!m_pending.empty()) {
            const size_t used = m_assembler.feed(m_pending.data(), m_pending.size());
            m_pending.erase(
                m_pending.begin(), m_pending.begin() + static_cast<std::ptrdiff_t>(used));
        }
        if (m_assembler.failed())
            return Status::ProtocolError;
        if (m_assembler.hasRecord()) {
            record = m_assembler.takeRecord();
            return Status::Ok;
        }
        uint8_t buffer[16384];
        size_t received = 0;
        const TcpSocket::Result result
            = m_socket.receiveSome(buffer, sizeof buffer, received, deadline);
        if (result != TcpSocket::Result::Ok)
            return fromSocket(result);
        m_pending.insert(m_pending.end(), buffer, buffer + received);
    }
}

RpcClient::Status RpcClient::call(uint32_t procedure, const std::vector<uint8_t>& args,
    const Deadline& deadline, std::vector<uint8_t>& results)
{
    if (!m_socket.isOpen())
        return Status::ConnectionLost;
    RpcCodec::Call call;
    call.xid = m_nextXid++;
    call.program = m_program;
    call.version = m_version;
    call.procedure = procedure;
    // Record mark and body in one send: a small call is then one segment, and nothing of it
    // waits for an acknowledgement.
    const std::vector<uint8_t> record = RpcCodec::encodeCall(call, args);
    const TcpSocket::Result sent = m_socket.sendAll(record.data(), record.size(), deadline);
    if (sent != TcpSocket::Result::Ok)
        return fromSocket(sent);
    return receive(call.xid, deadline, results);
}

RpcClient::Status RpcClient::receive(
    uint32_t xid, const Deadline& deadline, std::vector<uint8_t>& results)
{
    for (;;) {
        std::vector<uint8_t> reply;
        const Status status = receiveRecord(reply, deadline);
        if (status != Status::Ok)
            return status;
        uint32_t replyXid = 0;
        if (!RpcCodec::peekXid(reply.data(), reply.size(), replyXid))
            return Status::ProtocolError;
        if (replyXid != xid)
            continue; // the late answer to a call that already timed out
        RpcCodec::Reply header;
        if (!RpcCodec::parseReply(reply.data(), reply.size(), header))
            return Status::ProtocolError;
        if (!header.accepted || header.acceptStat != RpcCodec::Success)
            return Status::Rejected;
        results.assign(
            reply.begin() + static_cast<std::ptrdiff_t>(header.resultOffset), reply.end());
        return Status::Ok;
    }
}
