#pragma once

#include "RecordAssembler.h"
#include "RpcHandler.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

// One TCP connection's calls as the simulator reads them: bytes in as they arrive, each
// complete call answered through the handler, the replies (and deliberate faults) out. No
// socket here, so what a client sends can be driven straight through it.
class RpcStream
{
public:
    // Sends one reply record; false when the connection is gone.
    using Send = std::function<bool(const std::vector<uint8_t>& record)>;

    RpcStream(RpcHandler& handler, uint64_t connectionId, size_t maxRecordSize);

    // Takes bytes received and sends each reply as soon as its call is handled, one send per
    // reply as instrument firmware does, even for calls that arrived together. False once the
    // connection must close (after sending what was due): a call that can't be read, a broken
    // record, a drop fault or a failed send.
    bool receive(const uint8_t* data, size_t size, const Send& send);
    // The same, appending the replies to outgoing.
    bool receive(const uint8_t* data, size_t size, std::vector<uint8_t>& outgoing);
    // Received bytes not handled yet: while a reply is being sent, the next call already here.
    bool hasUnhandledInput() const { return !m_pending.empty(); }

private:
    RpcHandler& m_handler;
    const uint64_t m_connectionId;
    RecordAssembler m_assembler;
    std::vector<uint8_t> m_pending;
    bool m_open = true;
};
