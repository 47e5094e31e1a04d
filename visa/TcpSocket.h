#pragma once

#include "Deadline.h"

#include <cstddef>
#include <cstdint>
#include <string>

// The one place that calls the operating system's socket interface for the client side. Every
// operation is bounded by a deadline; nothing here blocks past it.
class TcpSocket
{
public:
    enum class Result {
        Ok,
        Timeout,
        Closed, // the peer closed the connection or reset it
        Unreachable, // name unknown, connection refused, no route
        Error,
    };

    TcpSocket() = default;
    ~TcpSocket();
    TcpSocket(const TcpSocket&) = delete;
    TcpSocket& operator=(const TcpSocket&) = delete;

    Result connect(const std::string& host, uint16_t port, const Deadline& deadline);
    Result sendAll(const uint8_t* data, size_t size, const Deadline& deadline);
    // Waits for at least one byte and returns what is there, up to capacity.
    Result receiveSome(uint8_t* data, size_t capacity, size_t& received, const Deadline& deadline);
    void close();
    bool isOpen() const { return m_fd >= 0; }

private:
    Result waitFor(short events, const Deadline& deadline);
    int m_fd = -1;
};
