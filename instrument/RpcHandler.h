#pragma once

#include "RpcCodec.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// What a served program does with one call. The transport (RpcServer) turns the action into
// bytes on the wire, including the deliberate faults.
class RpcHandler
{
public:
    struct Action
    {
        enum Kind {
            Reply, // send results with acceptStat
            Silent, // never answer this call
            DropMidReply, // send half the reply record, then close the connection
            Garbage, // send a record with the right xid and a malformed body
        };
        Kind kind = Reply;
        RpcCodec::AcceptStat acceptStat = RpcCodec::Success;
        std::vector<uint8_t> results;
    };

    virtual ~RpcHandler() = default;
    virtual Action handle(
        uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args, size_t size)
        = 0;
    // The connection is gone; whatever the handler kept for it can go too.
    virtual void connectionClosed(uint64_t connectionId) = 0;
};
