#pragma once

#include "Deadline.h"
#include "RpcClient.h"
#include "Vxi11Messages.h"

#include <cstdint>
#include <string>

// The VXI-11 procedures a session needs, one function each, over one core-channel connection.
// A result of Ok means a well-formed reply arrived; its error field is the device's answer.
class Vxi11Client
{
public:
    using Status = RpcClient::Status;

    Vxi11Client();

    // Asks the portmapper at host:portmapperPort for the core channel's TCP port.
    static Status queryCorePort(const std::string& host, uint16_t portmapperPort,
        const Deadline& deadline, uint16_t& corePort);

    Status connect(const std::string& host, uint16_t port, const Deadline& deadline);
    void disconnect() { m_rpc.close(); }
    bool isConnected() const { return m_rpc.isConnected(); }

    Status createLink(
        const vxi11::CreateLinkParms& parms, vxi11::CreateLinkResp& resp, const Deadline& deadline);
    Status deviceWrite(
        const vxi11::WriteParms& parms, vxi11::WriteResp& resp, const Deadline& deadline);
    Status deviceRead(
        const vxi11::ReadParms& parms, vxi11::ReadResp& resp, const Deadline& deadline);
    Status deviceClear(const vxi11::GenericParms& parms, int32_t& error, const Deadline& deadline);
    Status destroyLink(uint32_t linkId, int32_t& error, const Deadline& deadline);

private:
    template <typename Resp>
    Status invoke(
        uint32_t procedure, const std::vector<uint8_t>& args, Resp& resp, const Deadline& deadline);

    RpcClient m_rpc;
};
