#pragma once

#include "RpcHandler.h"

#include <atomic>
#include <cstdint>
#include <list>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

// ONC RPC over TCP (record marking) and UDP for the simulator: one thread per listening socket
// and per connection. A malformed call costs the caller its connection, never the server.
class RpcServer
{
public:
    // Without tcpNoDelay, Nagle's algorithm stays on, as most instrument firmware leaves it: a
    // client that sends a call before the reply to the one ahead of it has arrived then waits
    // for its own delayed acknowledgement.
    explicit RpcServer(RpcHandler& handler, bool tcpNoDelay = false);
    ~RpcServer();
    RpcServer(const RpcServer&) = delete;
    RpcServer& operator=(const RpcServer&) = delete;

    // Binds now, so the caller knows the port before start(); port 0 picks a free one.
    bool listenTcp(
        const std::string& address, uint16_t port, uint16_t& boundPort, std::string& error);
    bool listenUdp(
        const std::string& address, uint16_t port, uint16_t& boundPort, std::string& error);
    void start();
    // Closes every socket and joins every thread.
    void stop();

    // Calls that had arrived before the reply to the call ahead of them went out on the same
    // connection: a client that doesn't wait for each reply (or one that gave up waiting).
    uint64_t overlappingCalls() const { return m_overlappingCalls; }

    static constexpr size_t kMaxRecordSize = size_t(2) * 1024 * 1024;

private:
    struct Connection
    {
        int fd = -1;
        std::thread thread;
        std::atomic<bool> done { false };
    };

    void acceptLoop(int listener);
    void udpLoop(int socket);
    void serve(Connection* connection, uint64_t id);
    // Waits until fd is readable; false when the server stops.
    bool waitReadable(int fd);
    bool sendRecord(int fd, const std::vector<uint8_t>& record);
    void reapFinished();

    RpcHandler& m_handler;
    const bool m_tcpNoDelay;
    std::vector<int> m_tcpListeners;
    std::vector<int> m_udpSockets;
    std::vector<std::thread> m_threads;
    std::mutex m_connectionsMutex;
    std::list<Connection> m_connections;
    std::atomic<bool> m_stopping { false };
    std::atomic<uint64_t> m_nextConnectionId { 1 };
    std::atomic<uint64_t> m_overlappingCalls { 0 };
    int m_wake[2] = { -1, -1 };
};
