#include "TcpSocket.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
int toPollTimeout(const Deadline& deadline)
{
    const int64_t ms = deadline.remainingMs();
    return ms > 1000000 ? 1000000 : static_cast<int>(ms);
}
} // namespace

TcpSocket::~TcpSocket()
{
    close();
}

void TcpSocket::close()
{
    if (m_fd >= 0) {
        ::close(m_fd);
        m_fd = -1;
    }
}

TcpSocket::Result TcpSocket::waitFor(short events, const Deadline& deadline)
{
    for (;;) {
        pollfd pfd = { m_fd, events, 0 };
        const int n = ::poll(&pfd, 1, toPollTimeout(deadline));
        if (n > 0)
            return Result::Ok;
        if (n == 0)
            return Result::Timeout;
        if (errno != EINTR)
            return Result::Error;
    }
}

TcpSocket::Result TcpSocket::connect(
    const std::string& host, uint16_t port, const Deadline& deadline)
{
    close();
    addrinfo hints;
    std::memset(&hints, 0, sizeof hints);
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICSERV;
    addrinfo* list = nullptr;
    const std::string service = std::to_string(port);
    if (::getaddrinfo(host.c_str(), service.c_str(), &hints, &list) != 0 || !list)
        return Result::Unreachable;

    Result result = Result::Unreachable;
    for (addrinfo* ai = list; ai && result != Result::Ok; ai = ai->ai_next) {
        m_fd = ::socket(
            ai->ai_family, ai->ai_socktype | SOCK_CLOEXEC | SOCK_NONBLOCK, ai->ai_protocol);
        if (m_fd < 0)
            continue;
        const int one = 1;
        // A call longer than a segment would otherwise keep its tail until the instrument
        // acknowledges the rest, which it may delay.
        ::setsockopt(m_fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
        if (::connect(m_fd, ai->ai_addr, ai->ai_addrlen) == 0) {
            result = Result::Ok;
            break;
        }
        if (errno == EINPROGRESS) {
            result = waitFor(POLLOUT, deadline);
            if (result == Result::Ok) {
                int error = 0;
                socklen_t len = sizeof error;
                ::getsockopt(m_fd, SOL_SOCKET, SO_ERROR, &error, &len);
                if (error != 0)
                    result = Result::Unreachable;
            }
        } else {
            result = Result::Unreachable;
        }
        if (result != Result::Ok)
            close();
        if (result == Result::Timeout)
            break;
    }
    ::freeaddrinfo(list);
    return result;
}

TcpSocket::Result TcpSocket::sendAll(const uint8_t* data, size_t size, const Deadline& deadline)
{
    if (m_fd < 0)
        return Result::Closed;
    size_t sent = 0;
    while (sent < size) {
        const ssize_t n = ::send(m_fd, data + sent, size - sent, MSG_NOSIGNAL);
        if (n > 0) {
            sent += static_cast<size_t>(n);
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            const Result r = waitFor(POLLOUT, deadline);
            if (r != Result::Ok)
                return r;
            continue;
        }
        return (errno == EPIPE || errno == ECONNRESET) ? Result::Closed : Result::Error;
    }
    return Result::Ok;
}

TcpSocket::Result TcpSocket::receiveSome(
    uint8_t* data, size_t capacity, size_t& received, const Deadline& deadline)
{
    received = 0;
    if (m_fd < 0)
        return Result::Closed;
    // Wait first: a reply is never there yet right after the call went out.
    for (;;) {
        const Result r = waitFor(POLLIN, deadline);
        if (r != Result::Ok)
            return r;
        const ssize_t n = ::recv(m_fd, data, capacity, 0);
        if (n > 0) {
            received = static_cast<size_t>(n);
            return Result::Ok;
        }
        if (n == 0)
            return Result::Closed;
        if (errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK)
            continue;
        return errno == ECONNRESET ? Result::Closed : Result::Error;
    }
}
