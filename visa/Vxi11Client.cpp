#include "Vxi11Client.h"

namespace {
struct ErrorOnly
{
    int32_t error = 0;
};

bool decodeResult(const std::vector<uint8_t>& bytes, ErrorOnly& resp)
{
    return vxi11::decodeError(bytes.data(), bytes.size(), resp.error);
}

template <typename Resp> bool decodeResult(const std::vector<uint8_t>& bytes, Resp& resp)
{
    return vxi11::decode(bytes.data(), bytes.size(), resp);
}
} // namespace

Vxi11Client::Vxi11Client()
    : m_rpc(vxi11::kCoreProgram, vxi11::kCoreVersion)
{
}

Vxi11Client::Status Vxi11Client::queryCorePort(
    const std::string& host, uint16_t portmapperPort, const Deadline& deadline, uint16_t& corePort)
{
    RpcClient portmapper(vxi11::kPortmapperProgram, vxi11::kPortmapperVersion);
    Status status = portmapper.connect(host, portmapperPort, deadline);
    if (status != Status::Ok)
        return status;
    vxi11::GetPortParms parms;
    parms.program = vxi11::kCoreProgram;
    parms.version = vxi11::kCoreVersion;
    parms.protocol = vxi11::kIpProtoTcp;
    std::vector<uint8_t> results;
    status = portmapper.call(vxi11::kPmapGetPort, vxi11::encode(parms), deadline, results);
    if (status != Status::Ok)
        return status;
    uint32_t port = 0;
    if (!vxi11::decodeUint(results.data(), results.size(), port) || port > 65535)
        return Status::ProtocolError;
    if (port == 0)
        return Status::Unreachable; // not registered
    corePort = static_cast<uint16_t>(port);
    return Status::Ok;
}

Vxi11Client::Status Vxi11Client::connect(
    const std::string& host, uint16_t port, const Deadline& deadline)
{
    return m_rpc.connect(host, port, deadline);
}

template <typename Resp>
Vxi11Client::Status Vxi11Client::invoke(
    uint32_t procedure, const std::vector<uint8_t>& args, Resp& resp, const Deadline& deadline)
{
    std::vector<uint8_t> results;
    const Status status = m_rpc.call(procedure, args, deadline, results);
    if (status != Status::Ok)
        return status;
    return decodeResult(results, resp) ? Status::Ok : Status::ProtocolError;
}

Vxi11Client::Status Vxi11Client::createLink(
    const vxi11::CreateLinkParms& parms, vxi11::CreateLinkResp& resp, const Deadline& deadline)
{
    return invoke(vxi11::CreateLink, vxi11::encode(parms), resp, deadline);
}

Vxi11Client::Status Vxi11Client::deviceWrite(
    const vxi11::WriteParms& parms, vxi11::WriteResp& resp, const Deadline& deadline)
{
    return invoke(vxi11::DeviceWrite, vxi11::encode(parms), resp, deadline);
}

Vxi11Client::Status Vxi11Client::deviceRead(
    const vxi11::ReadParms& parms, vxi11::ReadResp& resp, const Deadline& deadline)
{
    return invoke(vxi11::DeviceRead, vxi11::encode(parms), resp, deadline);
}

Vxi11Client::Status Vxi11Client::deviceClear(
    const vxi11::GenericParms& parms, int32_t& error, const Deadline& deadline)
{
    ErrorOnly resp;
    const Status status = invoke(vxi11::DeviceClear, vxi11::encode(parms), resp, deadline);
    error = resp.error;
    return status;
}

Vxi11Client::Status Vxi11Client::destroyLink(
    uint32_t linkId, int32_t& error, const Deadline& deadline)
{
    ErrorOnly resp;
    const Status status = invoke(vxi11::DestroyLink, vxi11::encodeUint(linkId), resp, deadline);
    error = resp.error;
    return status;
}
