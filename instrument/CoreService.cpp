#include "CoreService.h"

#include "ScpiInstrument.h"
#include "Vxi11Messages.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <thread>
#include <vector>

namespace {
constexpr size_t kMaxInput = size_t(1024) * 1024;
constexpr uint32_t kMaxWaitMs = 10000;

RpcHandler::Action reply(std::vector<uint8_t> results)
{
    RpcHandler::Action action;
    action.results = std::move(results);
    return action;
}

RpcHandler::Action garbageArgs()
{
    RpcHandler::Action action;
    action.acceptStat = RpcCodec::GarbageArgs;
    return action;
}

RpcHandler::Action silent()
{
    RpcHandler::Action action;
    action.kind = RpcHandler::Action::Silent;
    return action;
}

RpcHandler::Action readError(int32_t error)
{
    vxi11::ReadResp resp;
    resp.error = error;
    return reply(vxi11::encode(resp));
}
} // namespace

CoreService::CoreService(const SimOptions& options, ScpiInstrument& instrument)
    : m_options(options)
    , m_instrument(instrument)
{
}

size_t CoreService::openLinks()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_links.size();
}

void CoreService::pause(uint32_t ms)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
    while (!m_stopping && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(std::min<uint32_t>(ms, 20)));
}

void CoreService::strikeIfDue(const std::string& message)
{
    const auto holds = [&message](const std::string& text) {
        return !text.empty() && message.find(text) != std::string::npos;
    };
    const bool freeze = holds(m_options.freezeOn);
    // To this thread: it stops (or dies) before it answers, and the whole process with it. Sent
    // to the process, the signal may go to another thread, and this one answer on meanwhile.
    if ((freeze || holds(m_options.dieOn)) && !m_struck.exchange(true))
        std::raise(freeze ? SIGSTOP : SIGKILL);
}

void CoreService::logLink(uint32_t linkId, const char* what)
{
    m_instrument.logEvent("<link " + std::to_string(linkId) + " " + what + ">");
}

void CoreService::connectionClosed(uint64_t connectionId)
{
    std::vector<uint32_t> lost;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (auto it = m_links.begin(); it != m_links.end();) {
            if (it->second.connectionId == connectionId) {
                lost.push_back(it->first);
                it = m_links.erase(it);
            } else {
                ++it;
            }
        }
    }
    // Links still open when the simulator stops are not logged as lost: the log then shows
    // them open, which is what a test looks for.
    if (!m_stopping) {
        for (const uint32_t linkId : lost)
            logLink(linkId, "lost");
    }
}

RpcHandler::Action CoreService::handle(
    uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args, size_t size)
{
    if (call.version != vxi11::kCoreVersion) {
        RpcHandler::Action action;
        action.acceptStat = RpcCodec::ProgMismatch;
        return action;
    }
    if (m_options.delayMs > 0)
        pause(m_options.delayMs);
    switch (call.procedure) {
    case vxi11::CreateLink:
        return createLink(connectionId, args, size);
    case vxi11::DeviceWrite:
        return deviceWrite(args, size);
    case vxi11::DeviceRead:
        return deviceRead(args, size);
    case vxi11::DestroyLink:
        return destroyLink(args, size);
    case vxi11::DeviceReadStb:
    case vxi11::DeviceTrigger:
    case vxi11::DeviceClear:
    case vxi11::DeviceRemote:
    case vxi11::DeviceLocal:
    case vxi11::DeviceLock:
    case vxi11::DeviceUnlock:
    case vxi11::DeviceEnableSrq:
    case vxi11::DeviceDoCmd:
    case vxi11::CreateIntrChan:
    case vxi11::DestroyIntrChan:
        return genericCall(call.procedure, args, size);
    default: {
        RpcHandler::Action action;
        action.acceptStat = RpcCodec::ProcUnavail;
        return action;
    }
    }
}

RpcHandler::Action CoreService::createLink(uint64_t connectionId, const uint8_t* args, size_t size)
{
    vxi11::CreateLinkParms parms;
    if (!vxi11::decode(args, size, parms))
        return garbageArgs();
    if (m_options.silentAt == SimOptions::Stage::CreateLink)
        return silent();
    vxi11::CreateLinkResp resp;
    resp.maxRecvSize = m_options.maxRecvSize;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (parms.device.rfind("inst", 0) != 0 && parms.device.rfind("gpib", 0) != 0) {
            resp.error = vxi11::InvalidAddress;
        } else if (m_links.size() >= m_options.maxLinks) {
            resp.error = vxi11::OutOfResources;
        } else {
            resp.linkId = m_nextLinkId++;
            m_links[resp.linkId].connectionId = connectionId;
        }
    }
    if (resp.error == vxi11::NoError)
        logLink(resp.linkId, "open");
    return reply(vxi11::encode(resp));
}

RpcHandler::Action CoreService::deviceWrite(const uint8_t* args, size_t size)
{
    vxi11::WriteParms parms;
    if (!vxi11::decode(args, size, parms))
        return garbageArgs();
    vxi11::WriteResp resp;
    std::string message;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto it = m_links.find(parms.linkId);
        if (it == m_links.end()) {
            resp.error = vxi11::InvalidLinkIdentifier;
            return reply(vxi11::encode(resp));
        }
        if (parms.data.size() > m_options.maxRecvSize
            || it->second.input.size() + parms.data.size() > kMaxInput) {
            it->second.input.clear();
            resp.error = vxi11::ParameterError;
            return reply(vxi11::encode(resp));
        }
        it->second.input.append(parms.data.begin(), parms.data.end());
        resp.size = static_cast<uint32_t>(parms.data.size());
        if (!(parms.flags & vxi11::FlagEnd))
            return reply(vxi11::encode(resp));
        message.swap(it->second.input);
        // A new message ends any reply that was never read, as on the instrument.
        it->second.output.clear();
    }
    strikeIfDue(message);
    const std::string replies = m_instrument.execute(message);
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto it = m_links.find(parms.linkId);
    if (it != m_links.end())
        it->second.output += replies;
    return reply(vxi11::encode(resp));
}

RpcHandler::Action CoreService::deviceRead(const uint8_t* args, size_t size)
{
    vxi11::ReadParms parms;
    if (!vxi11::decode(args, size, parms))
        return garbageArgs();
    if (m_options.silentAt == SimOptions::Stage::DeviceRead)
        return silent();
    vxi11::ReadResp resp;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto it = m_links.find(parms.linkId);
        if (it == m_links.end())
            return readError(vxi11::InvalidLinkIdentifier);
        std::string& output = it->second.output;
        if (!output.empty()) {
            size_t length = std::min<size_t>(output.size(), parms.requestSize);
            if (parms.flags & vxi11::FlagTermCharSet) {
                const size_t term = output.find(static_cast<char>(parms.termChar));
                if (term != std::string::npos && term < length) {
                    length = term + 1;
                    resp.reason |= vxi11::ReasonTermChar;
                }
            }
            resp.data.assign(output.begin(), output.begin() + static_cast<std::ptrdiff_t>(length));
            output.erase(0, length);
            if (output.empty())
                resp.reason |= vxi11::ReasonEnd;
            if (!(resp.reason & (vxi11::ReasonEnd | vxi11::ReasonTermChar)))
                resp.reason |= vxi11::ReasonRequestCount;
        }
    }
    if (resp.data.empty()) {
        // Nothing to say: an instrument waits io_timeout for a reply that never comes.
        pause(std::min(parms.ioTimeout, kMaxWaitMs));
        return readError(vxi11::IoTimeout);
    }
    RpcHandler::Action action = reply(vxi11::encode(resp));
    if (m_options.dropMidReply)
        action.kind = RpcHandler::Action::DropMidReply;
    else if (m_options.garbage)
        action.kind = RpcHandler::Action::Garbage;
    return action;
}

RpcHandler::Action CoreService::genericCall(uint32_t procedure, const uint8_t* args, size_t size)
{
    // No interrupt channel, no service requests, no bus commands on this instrument.
    if (procedure == vxi11::CreateIntrChan || procedure == vxi11::DestroyIntrChan
        || procedure == vxi11::DeviceEnableSrq || procedure == vxi11::DeviceDoCmd) {
        std::vector<uint8_t> bytes = vxi11::encodeError(vxi11::OperationNotSupported);
        if (procedure == vxi11::DeviceDoCmd)
            bytes.resize(bytes.size() + 4, 0); // Device_DocmdResp: empty data after the error
        return reply(bytes);
    }
    uint32_t linkId = 0;
    if (!vxi11::decodeUint(args, size, linkId))
        return garbageArgs();
    int32_t error = vxi11::NoError;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto it = m_links.find(linkId);
        if (it == m_links.end()) {
            error = vxi11::InvalidLinkIdentifier;
        } else if (procedure == vxi11::DeviceClear) {
            it->second.input.clear();
            it->second.output.clear();
        }
    }
    if (procedure == vxi11::DeviceClear && error == vxi11::NoError)
        m_instrument.logEvent("<device clear>");
    std::vector<uint8_t> bytes = vxi11::encodeError(error);
    if (procedure == vxi11::DeviceReadStb) {
        const std::vector<uint8_t> stb = vxi11::encodeUint(0); // Device_ReadStbResp: status byte
        bytes.insert(bytes.end(), stb.begin(), stb.end());
    }
    return reply(bytes);
}

RpcHandler::Action CoreService::destroyLink(const uint8_t* args, size_t size)
{
    uint32_t linkId = 0;
    if (!vxi11::decodeUint(args, size, linkId))
        return garbageArgs();
    int32_t error = vxi11::InvalidLinkIdentifier;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_links.erase(linkId))
            error = vxi11::NoError;
    }
    if (error == vxi11::NoError)
        logLink(linkId, "closed");
    return reply(vxi11::encodeError(error));
}
