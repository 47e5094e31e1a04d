#include "PortmapperService.h"

#include "Vxi11Messages.h"
#include "XdrReader.h"
#include "XdrWriter.h"

#include <string>

namespace {
constexpr uint32_t kProcNull = 0;
constexpr size_t kMaxRpcbString = 256;

RpcHandler::Action reply(std::vector<uint8_t> results)
{
    RpcHandler::Action action;
    action.results = std::move(results);
    return action;
}

RpcHandler::Action failure(RpcCodec::AcceptStat stat)
{
    RpcHandler::Action action;
    action.acceptStat = stat;
    return action;
}
} // namespace

RpcHandler::Action PortmapperService::handle(
    const RpcCodec::Call& call, const uint8_t* args, size_t size) const
{
    if (m_silent) {
        RpcHandler::Action action;
        action.kind = RpcHandler::Action::Silent;
        return action;
    }
    if (call.version < 2 || call.version > 4)
        return failure(RpcCodec::ProgMismatch);
    if (call.procedure == kProcNull)
        return reply({});

    if (call.version == 2) {
        if (call.procedure != vxi11::kPmapGetPort)
            return failure(RpcCodec::ProcUnavail);
        vxi11::GetPortParms parms;
        if (!vxi11::decode(args, size, parms))
            return failure(RpcCodec::GarbageArgs);
        const bool known = parms.program == vxi11::kCoreProgram
            && parms.version == vxi11::kCoreVersion && parms.protocol == vxi11::kIpProtoTcp;
        return reply(vxi11::encodeUint(known ? m_corePort.load() : 0));
    }

    if (call.procedure != vxi11::kRpcbGetAddr)
        return failure(RpcCodec::ProcUnavail);
    XdrReader reader(args, size);
    const uint32_t program = reader.getUint();
    const uint32_t version = reader.getUint();
    std::string netid, address, owner;
    reader.getString(netid, kMaxRpcbString);
    reader.getString(address, kMaxRpcbString);
    reader.getString(owner, kMaxRpcbString);
    if (!reader.ok())
        return failure(RpcCodec::GarbageArgs);
    std::string universal;
    if (program == vxi11::kCoreProgram && version == vxi11::kCoreVersion
        && netid.rfind("tcp", 0) == 0) {
        const uint32_t a = m_address;
        const uint16_t port = m_corePort;
        universal = std::to_string(a >> 24) + "." + std::to_string((a >> 16) & 255) + "."
            + std::to_string((a >> 8) & 255) + "." + std::to_string(a & 255) + "."
            + std::to_string(port >> 8) + "." + std::to_string(port & 255);
    }
    XdrWriter writer;
    writer.putString(universal);
    return reply(std::move(writer.bytes()));
}
