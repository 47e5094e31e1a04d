#pragma once

#include "RpcHandler.h"
#include "SimOptions.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>

class ScpiInstrument;

// The VXI-11 core channel: links, the message exchange with the instrument, and the fault
// behaviour chosen on the command line.
class CoreService
{
public:
    CoreService(const SimOptions& options, ScpiInstrument& instrument);

    RpcHandler::Action handle(
        uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args, size_t size);
    void connectionClosed(uint64_t connectionId);
    void stop() { m_stopping = true; }
    size_t openLinks();

private:
    struct Link
    {
        uint64_t connectionId = 0;
        std::string input; // a message being written, until END
        std::string output; // replies not yet read
    };

    RpcHandler::Action createLink(uint64_t connectionId, const uint8_t* args, size_t size);
    RpcHandler::Action deviceWrite(const uint8_t* args, size_t size);
    RpcHandler::Action deviceRead(const uint8_t* args, size_t size);
    RpcHandler::Action genericCall(uint32_t procedure, const uint8_t* args, size_t size);
    RpcHandler::Action destroyLink(const uint8_t* args, size_t size);
    void pause(uint32_t ms);
    // The --freeze-on and --die-on faults, once.
    void strikeIfDue(const std::string& message);
    // "<link N open>", "<link N closed>" (destroy_link), "<link N lost>" (connection closed).
    void logLink(uint32_t linkId, const char* what);

    SimOptions m_options;
    ScpiInstrument& m_instrument;
    std::mutex m_mutex;
    std::map<uint32_t, Link> m_links;
    uint32_t m_nextLinkId = 1;
    std::atomic<bool> m_stopping { false };
    std::atomic<bool> m_struck { false };
};
