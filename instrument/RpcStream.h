#pragma once

#include "RecordAssembler.h"
#include "RpcHandler.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// One TCP connection's calls as the simulator reads them: bytes in as they arrive, each
// complete call answered through the handler, the replies (and deliberate faults) out. No
// socket here, so what a client sends can be driven straight through it.
class RpcStream
{
public:
    RpcStream(RpcHandler& handler, uint64_t connectionId, size_t maxRecordSize);

    // Takes bytes received and appends the replies to send; replies to calls that arrived
    // together come out together. False once the connection must close (after sending
    // whatever was appended): a call that can't be read, a broken record or a drop fault.
    bool receive(const uint8_t* data, size_t size, std::vector<uint8_t>& outgoing);

private:
    RpcHandler& m_handler;
    const uint64_t m_connectionId;
    RecordAssembler m_assembler;
    std::vector<uint8_t> m_pending;
    bool m_open = true;
};
