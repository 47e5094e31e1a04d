#include "FakeVxi11Server.h"

#include "Vxi11Messages.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

FakeVxi11Server::FakeVxi11Server()
    : m_server(*this)
{
}

FakeVxi11Server::~FakeVxi11Server()
{
    m_server.stop();
}

bool FakeVxi11Server::start()
{
    std::string error;
    if (!m_server.listenTcp("127.0.0.1", 0, m_port, error))
        return false;
    m_server.start();
    return true;
}

void FakeVxi11Server::connectionClosed(uint64_t)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    --m_seen.openConnections;
}

RpcHandler::Action FakeVxi11Server::handle(
    uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args, size_t size)
{
    Action action;
    std::unique_lock<std::mutex> lock(m_mutex);
    if (std::find(m_connections.begin(), m_connections.end(), connectionId)
        == m_connections.end()) {
        m_connections.push_back(connectionId);
        ++m_seen.openConnections;
    }
    if (call.program == vxi11::kPortmapperProgram) {
        action.results = vxi11::encodeUint(m_port);
        return action;
    }
    switch (call.procedure) {
    case vxi11::CreateLink: {
        vxi11::CreateLinkResp resp;
        resp.error = m_script.createLinkError;
        resp.linkId = 7;
        resp.maxRecvSize = m_script.maxRecvSize;
        action.results = vxi11::encode(resp);
        break;
    }
    case vxi11::DeviceWrite: {
        vxi11::WriteParms parms;
        vxi11::decode(args, size, parms);
        m_seen.writes.push_back({ parms.data.size(), (parms.flags & vxi11::FlagEnd) != 0 });
        m_input.append(parms.data.begin(), parms.data.end());
        if (parms.flags & vxi11::FlagEnd) {
            m_seen.lastMessage.swap(m_input);
            m_input.clear();
        }
        vxi11::WriteResp resp;
        resp.size = static_cast<uint32_t>(parms.data.size());
        resp.error = std::exchange(m_script.nextWriteError, 0);
        action.results = vxi11::encode(resp);
        break;
    }
    case vxi11::DeviceRead: {
        if (m_script.reads.empty()) {
            action.kind = Action::Silent;
            break;
        }
        const ReadStep step = m_script.reads.front();
        m_script.reads.pop_front();
        vxi11::ReadResp resp;
        resp.error = step.error;
        resp.reason = step.reason;
        resp.data.assign(step.data.begin(), step.data.end());
        action.kind = step.kind;
        action.results = vxi11::encode(resp);
        lock.unlock();
        std::this_thread::sleep_for(std::chrono::milliseconds(step.delayMs));
        break;
    }
    case vxi11::DestroyLink:
        ++m_seen.destroyedLinks;
        action.results = vxi11::encodeError(0);
        break;
    default:
        action.results = vxi11::encodeError(0);
        break;
    }
    return action;
}
