#pragma once

#include "Deadline.h"
#include "RecordAssembler.h"
#include "TcpSocket.h"

#include <cstdint>
#include <string>
#include <vector>

// One ONC RPC client connection over TCP to one program and version, one call at a time: the
// next call goes out only once the reply to the last one is in or given up. A call that times
// out leaves its reply to arrive later; the next call recognises it by its xid and drops it.
class RpcClient
{
public:
    enum class Status {
        Ok,
        Timeout,
        ConnectionLost,
        Unreachable,
        ProtocolError, // the peer sent something that is not a reply we can use
        Rejected, // a well-formed reply that refuses the call
    };

    RpcClient(uint32_t program, uint32_t version);

    Status connect(const std::string& host, uint16_t port, const Deadline& deadline);
    // Sends the call and waits for its reply; results holds the procedure's encoded results.
    Status call(uint32_t procedure, const std::vector<uint8_t>& args, const Deadline& deadline,
        std::vector<uint8_t>& results);
    void close();
    bool isConnected() const { return m_socket.isOpen(); }

    static constexpr size_t kMaxRecordSize = size_t(4) * 1024 * 1024;

private:
    Status receive(uint32_t xid, const Deadline& deadline, std::vector<uint8_t>& results);
    Status receiveRecord(std::vector<uint8_t>& record, const Deadline& deadline);

    uint32_t m_program;
    uint32_t m_version;
    uint32_t m_nextXid;
    TcpSocket m_socket;
    RecordAssembler m_assembler;
    std::vector<uint8_t> m_pending; // received bytes not yet given to the assembler
};
