#include "Simulator.h"

#include "Vxi11Messages.h"

#include <arpa/inet.h>

namespace {
ScpiInstrument::Identity identityOf(const SimOptions& options)
{
    return { options.maker, options.model, options.serial, options.firmware };
}
} // namespace

Simulator::Simulator(const SimOptions& options)
    : m_options(options)
    , m_log(options.logPath)
    , m_instrument(identityOf(options), &m_log)
    , m_portmapper(options.silentAt == SimOptions::Stage::Portmapper)
    , m_core(options, m_instrument)
    , m_server(*this, options.tcpNoDelay)
{
}

Simulator::~Simulator()
{
    stop();
}

bool Simulator::start(std::string& error)
{
    if (!m_options.logPath.empty() && !m_log.isOpen()) {
        error = "cannot open log file " + m_options.logPath;
        return false;
    }
    uint16_t udpPort = 0;
    if (!m_server.listenTcp(m_options.listenAddress, m_options.corePort, m_corePort, error)
        || !m_server.listenTcp(
            m_options.listenAddress, m_options.portmapperPort, m_portmapperPort, error)
        || !m_server.listenUdp(m_options.listenAddress, m_portmapperPort, udpPort, error))
        return false;
    in_addr address;
    if (::inet_pton(AF_INET, m_options.listenAddress.c_str(), &address) == 1 && address.s_addr != 0)
        m_portmapper.setAddress(ntohl(address.s_addr));
    m_portmapper.setCorePort(m_corePort);
    m_server.start();
    return true;
}

void Simulator::stop()
{
    m_core.stop();
    m_server.stop();
}

std::string Simulator::readyLine() const
{
    return "SIM33210A_READY address=" + m_options.listenAddress
        + " portmapper=" + std::to_string(m_portmapperPort) + " core=" + std::to_string(m_corePort);
}

RpcHandler::Action Simulator::handle(
    uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args, size_t size)
{
    if (call.program == vxi11::kPortmapperProgram)
        return m_portmapper.handle(call, args, size);
    // Links belong to a TCP connection; over UDP (connection 0) only the portmapper answers.
    if (call.program == vxi11::kCoreProgram && connectionId != 0)
        return m_core.handle(connectionId, call, args, size);
    Action action;
    action.acceptStat = RpcCodec::ProgUnavail;
    return action;
}

void Simulator::connectionClosed(uint64_t connectionId)
{
    m_core.connectionClosed(connectionId);
}
