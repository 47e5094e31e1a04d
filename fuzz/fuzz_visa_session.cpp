// A whole VISA session (open, a query, a long write split at maxRecvSize, a read, a clear, a
// close) against an instrument on loopback that answers each call with the next reply the
// fuzzer wrote: what the parse functions return, the session layer must survive too (late xids,
// partial writes, endless chunks, garbage mid-session, a connection dropped anywhere).
//
// Input: [flags] then replies, each [length high] [length low] [bytes]. An xid of 0 in a reply is
// replaced by the call's own.
//   flags & 1: the first reply answers the portmapper (otherwise a correct one does)
//   flags & 2: reads ask for 16 bytes a chunk;  & 4: open with the lock;  & 8: keep 3 bytes

#include "FuzzCheck.h"
#include "RecordAssembler.h"
#include "ResourceName.h"
#include "RpcCodec.h"
#include "VisaSession.h"
#include "Vxi11Messages.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <functional>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace {

// One listening socket for the whole run: the portmapper and the core channel both answer on
// it, one connection after the other.
struct Listener
{
    Listener()
    {
        fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in addr {};
        addr.sin_family = AF_INET;
        addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        check(fd >= 0 && ::bind(fd, reinterpret_cast<sockaddr *>(&addr), sizeof addr) == 0);
        check(::listen(fd, 8) == 0);
        socklen_t length = sizeof addr;
        ::getsockname(fd, reinterpret_cast<sockaddr *>(&addr), &length);
        port = ntohs(addr.sin_port);
    }
    int fd = -1;
    uint16_t port = 0;
};

Listener &listener()
{
    static Listener instance;
    return instance;
}

enum class Wait { Readable, Idle, Stop };

// Waits for fd, the wake pipe, or idleMs of silence.
Wait waitFor(int fd, int wake, int idleMs)
{
    pollfd fds[2] = {{fd, POLLIN, 0}, {wake, POLLIN, 0}};
    for (;;) {
        const int n = ::poll(fds, 2, idleMs);
        if (n < 0 && errno == EINTR)
            continue;
        if (n == 0)
            return Wait::Idle;
        if (n < 0 || (fds[1].revents & POLLIN))
            return Wait::Stop;
        return Wait::Readable;
    }
}

bool sendReply(int fd, std::vector<uint8_t> reply, uint32_t xid)
{
    if (reply.size() >= 8 && reply[4] == 0 && reply[5] == 0 && reply[6] == 0 && reply[7] == 0) {
        const uint8_t bytes[4] = {uint8_t(xid >> 24), uint8_t(xid >> 16), uint8_t(xid >> 8), uint8_t(xid)};
        std::copy(bytes, bytes + 4, reply.begin() + 4);
    }
    return reply.empty() || ::send(fd, reply.data(), reply.size(), MSG_NOSIGNAL) >= 0;
}

// Answers each call with the next scripted reply, its xid put in where the script left 0, and
// hangs up when the script runs out or the client does. When the client waits in silence (a
// reply cut short, say), the next reply goes out unasked, so no input waits out a time-out for
// nothing.
void serveConnection(int fd, int wake, const std::vector<std::vector<uint8_t>> &replies, size_t &next,
                     size_t end)
{
    RecordAssembler assembler(size_t(64) * 1024);
    std::vector<uint8_t> pending;
    uint32_t xid = 0;
    while (next < end) {
        const Wait wait = waitFor(fd, wake, 2);
        if (wait == Wait::Stop)
            return;
        if (wait == Wait::Idle) {
            if (!sendReply(fd, replies[next++], xid))
                return;
            continue;
        }
        uint8_t buffer[8192];
        const ssize_t n = ::recv(fd, buffer, sizeof buffer, 0);
        if (n <= 0)
            return;
        pending.insert(pending.end(), buffer, buffer + n);
        for (;;) {
            const size_t used = assembler.feed(pending.data(), pending.size());
            pending.erase(pending.begin(), pending.begin() + static_cast<std::ptrdiff_t>(used));
            if (assembler.failed() || !assembler.hasRecord())
                break;
            const std::vector<uint8_t> call = assembler.takeRecord();
            RpcCodec::peekXid(call.data(), call.size(), xid);
            if (next == end)
                return;
            if (!sendReply(fd, replies[next++], xid))
                return;
        }
    }
}

void serve(int wake, const std::vector<std::vector<uint8_t>> &replies, size_t portmapperReplies)
{
    size_t next = 0;
    for (size_t connection = 0; connection < 2; ++connection) {
        if (waitFor(listener().fd, wake, 5000) != Wait::Readable)
            return;
        const int fd = ::accept4(listener().fd, nullptr, nullptr, SOCK_CLOEXEC);
        if (fd < 0)
            return;
        // Replies go out one send each; without this the second waits for a delayed ACK.
        const int one = 1;
        ::setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
        serveConnection(fd, wake, replies, next, connection == 0 ? portmapperReplies : replies.size());
        ::close(fd);
        next = portmapperReplies > next ? portmapperReplies : next;
    }
}

std::vector<uint8_t> portmapperReply(uint16_t port)
{
    return RpcCodec::encodeReply(0, RpcCodec::Success, vxi11::encodeUint(port));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const uint8_t flags = data[0];
    std::vector<std::vector<uint8_t>> replies;
    const size_t portmapperReplies = 1;
    if (!(flags & 1))
        replies.push_back(portmapperReply(listener().port));
    for (size_t pos = 1; pos + 2 <= size && replies.size() < 32;) {
        const size_t length = (size_t(data[pos]) << 8) | data[pos + 1];
        pos += 2;
        const size_t take = length < size - pos ? length : size - pos;
        replies.emplace_back(data + pos, data + pos + take);
        pos += take;
    }
    if (replies.empty())
        return 0;

    int wake[2];
    check(::pipe2(wake, O_CLOEXEC) == 0);
    std::thread server(serve, wake[0], std::cref(replies), portmapperReplies);

    SessionOptions options;
    options.timeoutMs = 20;
    options.socketMarginMs = 5;
    options.portmapperPort = listener().port;
    options.readChunk = (flags & 2) ? 16 : 64 * 1024;
    ResourceName resource;
    check(ResourceName::parse("TCPIP::127.0.0.1::inst0::INSTR", resource) == ResourceName::Result::Ok);
    {
        VisaSession session(options);
        if (session.open(resource, (flags & 4) != 0, 20) == VI_SUCCESS) {
            // Whatever the instrument does, the caller gets one of the documented statuses.
            auto step = [](ViStatus status) {
                static const ViStatus documented[] = {VI_SUCCESS, VI_ERROR_TMO, VI_ERROR_IO,
                    VI_ERROR_CONN_LOST, VI_ERROR_RSRC_NFOUND, VI_ERROR_NSUP_OPER, VI_ERROR_ALLOC,
                    VI_ERROR_RSRC_LOCKED, VI_ERROR_SESN_NLOCKED, VI_ERROR_INV_RSRC_NAME,
                    VI_ERROR_ABORT, VI_ERROR_INV_SETUP};
                check(std::find(std::begin(documented), std::end(documented), status)
                      != std::end(documented));
            };
            const std::string query = "*IDN?\n";
            step(session.write(reinterpret_cast<const uint8_t *>(query.data()), query.size()));
            std::string message;
            const size_t keep = (flags & 8) ? 3 : 1024;
            step(session.read(message, keep));
            check(message.size() <= keep);
            const std::string text = "DISP:TEXT \"" + std::string(300, 'x') + "\"\n";
            step(session.write(reinterpret_cast<const uint8_t *>(text.data()), text.size()));
            step(session.read(message, keep));
            check(message.size() <= keep);
            step(session.clear());
        }
        session.close();
    }
    const char byte = 1;
    check(::write(wake[1], &byte, 1) == 1);
    server.join();
    ::close(wake[0]);
    ::close(wake[1]);
    return 0;
}
