// What a malicious or broken client can send the simulated instrument: a TCP byte stream
// (record marking, RPC calls, portmapper and core-channel arguments, SCPI inside device_write),
// a UDP datagram to the portmapper, or SCPI text straight to the instrument. The stream is
// handled as RpcServer::serve handles it, with the services the Simulator routes to; every
// reply that goes out must be one our own client can read.
//
// Input: [flags] [split size] [bytes...]
//   flags & 3: 0 TCP stream, 1 UDP datagram, 2 SCPI messages separated by NUL, 3 TCP stream
//   flags >> 2 & 3: the maxRecvSize the core channel announces (4096, 1, 16, 1 MiB)

#include "CoreService.h"
#include "PortmapperService.h"
#include "RecordAssembler.h"
#include "RpcCodec.h"
#include "RpcServer.h"
#include "ScpiInstrument.h"
#include "SimOptions.h"
#include "Vxi11Messages.h"

#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {


struct Sim
{
    explicit Sim(const SimOptions &options)
        : instrument({options.maker, options.model, options.serial, options.firmware}, nullptr)
        , portmapper(false)
        , core(options, instrument)
    {
        portmapper.setCorePort(40123);
        // A read with nothing to answer would wait out its io_timeout; stopping ends waits at once.
        core.stop();
    }

    // As Simulator::handle.
    RpcHandler::Action handle(uint64_t connectionId, const RpcCodec::Call &call, const uint8_t *args,
                              size_t size)
    {
        if (call.program == vxi11::kPortmapperProgram)
            return portmapper.handle(call, args, size);
        if (call.program == vxi11::kCoreProgram && connectionId != 0)
            return core.handle(connectionId, call, args, size);
        RpcHandler::Action action;
        action.acceptStat = RpcCodec::ProgUnavail;
        return action;
    }

    ScpiInstrument instrument;
    PortmapperService portmapper;
    CoreService core;
};

template <typename Message>
void checkDecodes(const uint8_t *data, size_t size)
{
    Message message;
    check(vxi11::decode(data, size, message));
}

// A reply record (mark included) must be readable by the VISA side as the answer to call.
void checkReply(const RpcCodec::Call &call, const std::vector<uint8_t> &record)
{
    check(record.size() >= 4);
    RecordAssembler assembler(RpcServer::kMaxRecordSize);
    check(assembler.feed(record.data(), record.size()) == record.size());
    check(assembler.hasRecord());
    const std::vector<uint8_t> body = assembler.takeRecord();
    RpcCodec::Reply reply;
    check(RpcCodec::parseReply(body.data(), body.size(), reply));
    check(reply.xid == call.xid && reply.accepted);
    if (reply.acceptStat != RpcCodec::Success || call.program != vxi11::kCoreProgram)
        return;
    const uint8_t *results = body.data() + reply.resultOffset;
    const size_t size = body.size() - reply.resultOffset;
    switch (call.procedure) {
    case vxi11::CreateLink:
        checkDecodes<vxi11::CreateLinkResp>(results, size);
        break;
    case vxi11::DeviceWrite:
        checkDecodes<vxi11::WriteResp>(results, size);
        break;
    case vxi11::DeviceRead: {
        vxi11::ReadResp resp;
        check(vxi11::decode(results, size, resp));
        break;
    }
    default: {
        int32_t error = 0;
        check(vxi11::decodeError(results, size, error));
        break;
    }
    }
}

// As RpcServer::serve, with the bytes arriving split pieces at a time.
void serveStream(Sim &sim, const uint8_t *data, size_t size, size_t split)
{
    const uint64_t id = 1;
    RecordAssembler assembler(RpcServer::kMaxRecordSize);
    std::vector<uint8_t> pending;
    bool open = true;
    size_t offset = 0;
    while (open && offset < size) {
        const size_t take = split < size - offset ? split : size - offset;
        pending.insert(pending.end(), data + offset, data + offset + take);
        offset += take;
        while (open && !pending.empty()) {
            const size_t used = assembler.feed(pending.data(), pending.size());
            pending.erase(pending.begin(), pending.begin() + static_cast<std::ptrdiff_t>(used));
            if (assembler.failed()) {
                open = false;
                break;
            }
            if (!assembler.hasRecord())
                break;
            const std::vector<uint8_t> record = assembler.takeRecord();
            RpcCodec::Call call;
            if (!RpcCodec::parseCall(record.data(), record.size(), call)) {
                uint32_t xid = 0;
                if (RpcCodec::peekXid(record.data(), record.size(), xid)) {
                    // The refusal must reach the caller as a denied reply to its own xid.
                    const std::vector<uint8_t> refusal = RpcCodec::encodeRpcMismatch(xid);
                    RpcCodec::Reply reply;
                    check(RpcCodec::parseReply(refusal.data() + 4, refusal.size() - 4, reply));
                    check(!reply.accepted && reply.xid == xid);
                }
                open = false;
                break;
            }
            check(call.argsOffset <= record.size());
            const RpcHandler::Action action =
                sim.handle(id, call, record.data() + call.argsOffset, record.size() - call.argsOffset);
            if (action.kind == RpcHandler::Action::Reply)
                checkReply(call, RpcCodec::encodeReply(call.xid, action.acceptStat, action.results));
        }
    }
    sim.core.connectionClosed(id);
    check(sim.core.openLinks() == 0);
}

// As RpcServer::udpLoop: one datagram, no record mark, connection 0.
void serveDatagram(Sim &sim, const uint8_t *data, size_t size)
{
    RpcCodec::Call call;
    if (!RpcCodec::parseCall(data, size, call))
        return;
    const RpcHandler::Action action = sim.handle(0, call, data + call.argsOffset, size - call.argsOffset);
    if (action.kind == RpcHandler::Action::Reply)
        checkReply(call, RpcCodec::encodeReply(call.xid, action.acceptStat, action.results));
}

void runScpi(Sim &sim, const uint8_t *data, size_t size)
{
    const std::string all(reinterpret_cast<const char *>(data), size);
    size_t start = 0;
    for (;;) {
        const size_t end = all.find('\0', start);
        const std::string reply = sim.instrument.execute(all.substr(start, end - start));
        check(reply.empty() || reply.back() == '\n');
        if (end == std::string::npos)
            break;
        start = end + 1;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const uint8_t flags = data[0];
    const size_t split = data[1] == 0 ? size : data[1];
    data += 2;
    size -= 2;

    static const uint32_t recvSizes[] = {4096, 1, 16, 1024 * 1024};
    SimOptions options;
    options.maxRecvSize = recvSizes[(flags >> 2) & 3];
    Sim sim(options);
    switch (flags & 3) {
    case 1:
        serveDatagram(sim, data, size);
        break;
    case 2:
        runScpi(sim, data, size);
        break;
    default:
        serveStream(sim, data, size, split);
        break;
    }
    return 0;
}
