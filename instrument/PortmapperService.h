#pragma once

#include "RpcHandler.h"

#include <atomic>
#include <cstdint>

// Program 100000: GETPORT of version 2, and GETADDR of the rpcbind versions 3 and 4 that
// libtirpc clients may try; both know only the VXI-11 core channel.
class PortmapperService
{
public:
    explicit PortmapperService(bool silent)
        : m_silent(silent)
    {
    }

    void setCorePort(uint16_t port) { m_corePort = port; }
    void setAddress(uint32_t hostOrderAddress) { m_address = hostOrderAddress; }
    RpcHandler::Action handle(const RpcCodec::Call& call, const uint8_t* args, size_t size) const;

private:
    bool m_silent;
    std::atomic<uint16_t> m_corePort { 0 };
    std::atomic<uint32_t> m_address { 0x7F000001 };
};
