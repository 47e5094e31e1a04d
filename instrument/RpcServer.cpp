#include "RpcServer.h"

#include "RpcStream.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
bool makeAddress(const std::string& address, uint16_t port, sockaddr_in& out, std::string& error)
{
    std::memset(&out, 0, sizeof out);
    out.sin_family = AF_INET;
    out.sin_port = htons(port);
    if (::inet_pton(AF_INET, address.c_str(), &out.sin_addr) != 1) {
        error = "not an IPv4 address: " + address;
        return false;
    }
    return true;
}

int bindSocket(
    int type, const std::string& address, uint16_t port, uint16_t& boundPort, std::string& error)
{
    sockaddr_in addr;
    if (!makeAddress(address, port, addr, error))
        return -1;
    const int fd = ::socket(AF_INET, type | SOCK_CLOEXEC, 0);
    if (fd < 0) {
        error = std::strerror(errno);
        return -1;
    }
    const int one = 1;
    ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
    if (::bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0
        || (type == SOCK_STREAM && ::listen(fd, 64) != 0)) {
        error = "cannot bind " + address + ":" + std::to_string(port) + ": " + std::strerror(errno);
        ::close(fd);
        return -1;
    }
    socklen_t len = sizeof addr;
    ::getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &len);
    boundPort = ntohs(addr.sin_port);
    return fd;
}

} // namespace

RpcServer::RpcServer(RpcHandler& handler, bool tcpNoDelay)
    : m_handler(handler)
    , m_tcpNoDelay(tcpNoDelay)
{
    if (::pipe2(m_wake, O_CLOEXEC | O_NONBLOCK) != 0)
        m_wake[0] = m_wake[1] = -1;
}

RpcServer::~RpcServer()
{
    stop();
    for (const int fd : m_wake) {
        if (fd >= 0)
            ::close(fd);
    }
}

bool RpcServer::listenTcp(
    const std::string& address, uint16_t port, uint16_t& boundPort, std::string& error)
{
    const int fd = bindSocket(SOCK_STREAM, address, port, boundPort, error);
    if (fd < 0)
        return false;
    m_tcpListeners.push_back(fd);
    return true;
}

bool RpcServer::listenUdp(
    const std::string& address, uint16_t port, uint16_t& boundPort, std::string& error)
{
    const int fd = bindSocket(SOCK_DGRAM, address, port, boundPort, error);
    if (fd < 0)
        return false;
    m_udpSockets.push_back(fd);
    return true;
}

void RpcServer::start()
{
    for (const int fd : m_tcpListeners)
        m_threads.emplace_back(&RpcServer::acceptLoop, this, fd);
    for (const int fd : m_udpSockets)
        m_threads.emplace_back(&RpcServer::udpLoop, this, fd);
}

void RpcServer::stop()
{
    if (m_stopping.exchange(true))
        return;
    if (m_wake[1] >= 0) {
        const char byte = 1;
        (void)!::write(m_wake[1], &byte, 1);
    }
    for (auto& thread : m_threads)
        thread.join();
    m_threads.clear();
    std::list<Connection> connections;
    {
        std::lock_guard<std::mutex> lock(m_connectionsMutex);
        connections.swap(m_connections);
    }
    for (auto& connection : connections) {
        ::shutdown(connection.fd, SHUT_RDWR);
        connection.thread.join();
        ::close(connection.fd);
    }
    for (const int fd : m_tcpListeners)
        ::close(fd);
    for (const int fd : m_udpSockets)
        ::close(fd);
    m_tcpListeners.clear();
    m_udpSockets.clear();
}

bool RpcServer::waitReadable(int fd)
{
    while (!m_stopping) {
        pollfd fds[2] = { { fd, POLLIN, 0 }, { m_wake[0], POLLIN, 0 } };
        const int n = ::poll(fds, 2, 1000);
        if (n < 0 && errno != EINTR)
            return false;
        if (fds[1].revents)
            return false;
        if (n > 0 && fds[0].revents)
            return true;
    }
    return false;
}

bool RpcServer::sendRecord(int fd, const std::vector<uint8_t>& record)
{
    size_t sent = 0;
    while (sent < record.size()) {
        const ssize_t n = ::send(fd, record.data() + sent, record.size() - sent, MSG_NOSIGNAL);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return false;
        sent += static_cast<size_t>(n);
    }
    return true;
}

void RpcServer::reapFinished()
{
    std::lock_guard<std::mutex> lock(m_connectionsMutex);
    for (auto it = m_connections.begin(); it != m_connections.end();) {
        if (it->done) {
            it->thread.join();
            ::close(it->fd);
            it = m_connections.erase(it);
        } else {
            ++it;
        }
    }
}

void RpcServer::acceptLoop(int listener)
{
    while (waitReadable(listener)) {
        const int fd = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (fd < 0)
            continue;
        if (m_tcpNoDelay) {
            const int one = 1;
            ::setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
        }
        reapFinished();
        std::lock_guard<std::mutex> lock(m_connectionsMutex);
        m_connections.emplace_back();
        Connection* connection = &m_connections.back();
        connection->fd = fd;
        connection->thread = std::thread(&RpcServer::serve, this, connection, m_nextConnectionId++);
    }
}

void RpcServer::serve(Connection* connection, uint64_t id)
{
    const int fd = connection->fd;
    RpcStream stream(m_handler, id, kMaxRecordSize);
    const RpcStream::Send send = [&](const std::vector<uint8_t>& record) {
        // Anything here before this reply goes out was sent without waiting for it.
        int waiting = 0;
        if (stream.hasUnhandledInput() || (::ioctl(fd, FIONREAD, &waiting) == 0 && waiting > 0))
            ++m_overlappingCalls;
        return sendRecord(fd, record);
    };
    bool open = true;
    // A blocking receive, woken directly by the data: stop() shuts the socket down to end it.
    while (open && !m_stopping) {
        uint8_t buffer[16384];
        const ssize_t n = ::recv(fd, buffer, sizeof buffer, 0);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        open = stream.receive(buffer, static_cast<size_t>(n), send);
    }
    ::shutdown(fd, SHUT_RDWR);
    m_handler.connectionClosed(id);
    connection->done = true;
}

void RpcServer::udpLoop(int socket)
{
    while (waitReadable(socket)) {
        uint8_t buffer[65536];
        sockaddr_storage from;
        socklen_t fromLength = sizeof from;
        const ssize_t n = ::recvfrom(
            socket, buffer, sizeof buffer, 0, reinterpret_cast<sockaddr*>(&from), &fromLength);
        if (n <= 0)
            continue;
        RpcCodec::Call call;
        if (!RpcCodec::parseCall(buffer, static_cast<size_t>(n), call))
            continue;
        const RpcHandler::Action action = m_handler.handle(
            0, call, buffer + call.argsOffset, static_cast<size_t>(n) - call.argsOffset);
        if (action.kind != RpcHandler::Action::Reply)
            continue;
        const std::vector<uint8_t> record
            = RpcCodec::encodeReply(call.xid, action.acceptStat, action.results);
        // A datagram carries the message without the record mark.
        ::sendto(socket, record.data() + 4, record.size() - 4, 0,
            reinterpret_cast<sockaddr*>(&from), fromLength);
    }
}
