#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// ONC RPC version 2 call and reply messages (RFC 5531) with AUTH_NONE, for both ends: the VISA
// client encodes calls and parses replies, the simulated instrument the reverse. Parse functions
// work on a plain byte buffer and never trust a length from it.
class RpcCodec
{
public:
    enum AcceptStat : uint32_t {
        Success = 0,
        ProgUnavail = 1,
        ProgMismatch = 2,
        ProcUnavail = 3,
        GarbageArgs = 4,
        SystemErr = 5,
    };

    struct Call
    {
        uint32_t xid = 0;
        uint32_t program = 0;
        uint32_t version = 0;
        uint32_t procedure = 0;
        size_t argsOffset = 0; // where the procedure's arguments start in the parsed buffer
    };

    struct Reply
    {
        uint32_t xid = 0;
        bool accepted = false;
        uint32_t acceptStat = 0; // meaningful when accepted
        size_t resultOffset = 0; // where the procedure's results start, when Success
    };

    // A complete record, record mark included, ready for one send.
    static std::vector<uint8_t> encodeCall(const Call& call, const std::vector<uint8_t>& args);
    static std::vector<uint8_t> encodeReply(
        uint32_t xid, AcceptStat stat, const std::vector<uint8_t>& results);
    static std::vector<uint8_t> encodeRpcMismatch(uint32_t xid);

    // Only the xid of a record, so a late reply can be recognised even when the rest is damaged.
    static bool peekXid(const uint8_t* data, size_t size, uint32_t& xid);
    static bool parseCall(const uint8_t* data, size_t size, Call& call);
    static bool parseReply(const uint8_t* data, size_t size, Reply& reply);

    static constexpr uint32_t kRpcVersion = 2;
    static constexpr size_t kMaxAuthBody = 400;
};
