#pragma once

#include "RpcHandler.h"
#include "RpcServer.h"

#include <deque>
#include <mutex>
#include <string>
#include <vector>

// A scripted VXI-11 instrument on one loopback port that also answers the portmapper: each
// device_read takes the next step of the script, so a test decides chunking, END, errors,
// silence, lateness and broken replies exactly. Nagle's algorithm stays on, as in most firmware.
class FakeVxi11Server : private RpcHandler
{
public:
    struct ReadStep
    {
        std::string data;
        uint32_t reason = 0;
        int32_t error = 0;
        int delayMs = 0;
        Action::Kind kind = Action::Reply;
    };

    struct WriteChunk
    {
        size_t size;
        bool end;
    };

    // What the instrument does; set before the calls it concerns.
    struct Script
    {
        int32_t createLinkError = 0;
        uint32_t maxRecvSize = 4096;
        int32_t nextWriteError = 0; // the next device_write answers with it
        std::deque<ReadStep> reads;
    };

    // What the instrument saw.
    struct Seen
    {
        std::vector<WriteChunk> writes;
        std::string lastMessage;
        int destroyedLinks = 0;
        int openConnections = 0;
    };

    FakeVxi11Server();
    ~FakeVxi11Server() override;

    bool start();
    uint16_t port() const { return m_port; }

    template <typename Change> void script(Change change)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        change(m_script);
    }
    void addReply(const std::string& data)
    {
        script([&](Script& s) { s.reads.push_back({ data, 4, 0, 0, Action::Reply }); });
    }
    Seen seen()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_seen;
    }
    // Calls that came before the reply to the call ahead of them had gone out.
    uint64_t overlappingCalls() const { return m_server.overlappingCalls(); }

private:
    Action handle(uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args,
        size_t size) override;
    void connectionClosed(uint64_t connectionId) override;

    RpcServer m_server;
    uint16_t m_port = 0;
    std::mutex m_mutex;
    Script m_script;
    Seen m_seen;
    std::string m_input;
    std::vector<uint64_t> m_connections;
};
