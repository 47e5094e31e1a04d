#pragma once

#include "RpcHandler.h"
#include "RpcServer.h"

#include <deque>
#include <mutex>
#include <string>
#include <vector>

// A scripted VXI-11 instrument on one loopback port that also answers the portmapper: each
// device_read takes the next step of the script, so a test decides chunking, END, errors,
// silence, lateness and broken replies exactly.
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

    FakeVxi11Server();
    ~FakeVxi11Server() override;

    bool start();
    uint16_t port() const { return m_port; }

    void setCreateLinkError(int32_t error) { m_createLinkError = error; }
    void setMaxRecvSize(uint32_t size) { m_maxRecvSize = size; }
    // The next device_write answers with this error.
    void failNextWrite(int32_t error);
    void addRead(const ReadStep& step);
    void addReply(const std::string& data) { addRead({ data, 4, 0, 0, Action::Reply }); }

    std::vector<WriteChunk> writes();
    // Every complete message written, in order.
    std::vector<std::string> messages();
    std::string lastMessage();
    int destroyedLinks();
    int openConnections();

private:
    Action handle(uint64_t connectionId, const RpcCodec::Call& call, const uint8_t* args,
        size_t size) override;
    void connectionClosed(uint64_t connectionId) override;

    RpcServer m_server;
    uint16_t m_port = 0;
    std::mutex m_mutex;
    int32_t m_createLinkError = 0;
    uint32_t m_maxRecvSize = 4096;
    int32_t m_nextWriteError = 0;
    std::deque<ReadStep> m_reads;
    std::vector<WriteChunk> m_writes;
    std::string m_input;
    std::vector<std::string> m_messages;
    int m_destroyed = 0;
    int m_connections = 0;
    std::vector<uint64_t> m_seen;
};
