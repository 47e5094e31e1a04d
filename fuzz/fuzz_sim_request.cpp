// What a malicious or broken client can send the simulated instrument: a TCP byte stream
// (record marking, RPC calls, portmapper and core-channel arguments, SCPI inside device_write),
// a UDP datagram to the portmapper, or SCPI text straight to the instrument. The stream is
// handled by the server's own RpcStream, with the services the Simulator routes to; every
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
#include "RpcStream.h"
#include "ScpiInstrument.h"
#include "SimOptions.h"
#include "Vxi11Messages.h"

#include "FuzzCheck.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void checkReply(const RpcCodec::Call &call, const std::vector<uint8_t> &record);

struct Sim : RpcHandler
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

    // As Simulator::handle, with every reply checked as it leaves.
    Action handle(uint64_t connectionId, const RpcCodec::Call &call, const uint8_t *args,
                  size_t size) override
    {
        const Action action = route(connectionId, call, args, size);
        if (action.kind == Action::Reply)
            checkReply(call, RpcCodec::encodeReply(call.xid, action.acceptStat, action.results));
        return action;
    }

    void connectionClosed(uint64_t connectionId) override { core.connectionClosed(connectionId); }

    Action route(uint64_t connectionId, const RpcCodec::Call &call, const uint8_t *args, size_t size)
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

// Every record the stream sends must read as a reply: accepted ones were checked as they
// left, and a refusal goes to the caller's own xid.
void checkOutgoing(const std::vector<uint8_t> &outgoing)
{
    RecordAssembler assembler(RpcServer::kMaxRecordSize);
    size_t offset = 0;
    while (offset < outgoing.size()) {
        offset += assembler.feed(outgoing.data() + offset, outgoing.size() - offset);
        check(!assembler.failed());
        if (!assembler.hasRecord())
            break;
        const std::vector<uint8_t> body = assembler.takeRecord();
        RpcCodec::Reply reply;
        check(RpcCodec::parseReply(body.data(), body.size(), reply));
    }
    check(offset == outgoing.size() && !assembler.hasRecord());
}

// A TCP connection, with the bytes arriving split pieces at a time.
void serveStream(Sim &sim, const uint8_t *data, size_t size, size_t split)
{
    const uint64_t id = 1;
    RpcStream stream(sim, id, RpcServer::kMaxRecordSize);
    bool open = true;
    for (size_t offset = 0; open && offset < size;) {
        const size_t take = split < size - offset ? split : size - offset;
        std::vector<uint8_t> outgoing;
        open = stream.receive(data + offset, take, outgoing);
        offset += take;
        checkOutgoing(outgoing);
    }
    sim.connectionClosed(id);
    check(sim.core.openLinks() == 0);
}

// As RpcServer::udpLoop: one datagram, no record mark, connection 0.
void serveDatagram(Sim &sim, const uint8_t *data, size_t size)
{
    RpcCodec::Call call;
    if (!RpcCodec::parseCall(data, size, call))
        return;
    sim.handle(0, call, data + call.argsOffset, size - call.argsOffset);
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
