#pragma once

#include "CommandLog.h"
#include "CoreService.h"
#include "PortmapperService.h"
#include "RpcServer.h"
#include "ScpiInstrument.h"
#include "SimOptions.h"

#include <memory>
#include <string>

// The simulated 33210A as a whole: portmapper and core channel on their ports, one instrument
// behind them. Usable in-process by tests and hosts, or through the sim33210a executable.
class Simulator : private RpcHandler
{
public:
    explicit Simulator(const SimOptions& options);
    ~Simulator() override;

    // Binds the ports and starts serving; false with a message when a port can't be had.
    bool start(std::string& error);
    void stop();

    uint16_t portmapperPort() const { return m_portmapperPort; }
    uint16_t corePort() const { return m_corePort; }
    size_t openLinks() { return m_core.openLinks(); }
    // The one line printed on start, for whoever waits for the simulator to be ready.
    std::string readyLine() const;

private:
    Action handle(uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args,
        size_t size) override;
    void connectionClosed(uint64_t connectionId) override;

    SimOptions m_options;
    CommandLog m_log;
    ScpiInstrument m_instrument;
    PortmapperService m_portmapper;
    CoreService m_core;
    RpcServer m_server;
    uint16_t m_portmapperPort = 0;
    uint16_t m_corePort = 0;
};
