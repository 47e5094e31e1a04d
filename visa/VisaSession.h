#pragma once

#include "Vxi11Client.h"
#include "visa.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>

class ResourceName;

struct SessionOptions
{
    uint32_t timeoutMs = 2000;
    uint16_t portmapperPort = 111;
    uint32_t readChunk = 64 * 1024;
    // Above the I/O time-out, so that an instrument that honours io_timeout answers first.
    uint32_t socketMarginMs = 250;

    // The defaults, overridden by SYNC_VISA_TIMEOUT_MS and SYNC_VXI11_PORTMAPPER_PORT.
    static SessionOptions fromEnvironment();
};

// One instrument link: the core-channel connection, its link id, and the message-level
// operations. Callers hold mutex() across each VISA call, so a write and the read of its reply
// from two threads never interleave on the wire.
class VisaSession
{
public:
    explicit VisaSession(const SessionOptions& options);
    ~VisaSession();
    VisaSession(const VisaSession&) = delete;
    VisaSession& operator=(const VisaSession&) = delete;

    ViStatus open(const ResourceName& resource, bool lockDevice, uint32_t lockTimeoutMs);
    // Sends one message, split at the instrument's maxRecvSize, END on the last piece. The last
    // piece of a query waits for the read that follows and goes out with it in one send, so a
    // query costs one exchange instead of two; any other call sends it first. Its failure is
    // then reported by that next call.
    ViStatus write(const uint8_t* data, size_t size, bool replyExpected = false);
    // Reads one whole message (to END or the instrument's term char), keeping at most keep
    // bytes of it; the rest is read and dropped so it can't pass for the next reply.
    ViStatus read(std::string& message, size_t keep);
    ViStatus clear();
    void close();

    std::mutex& mutex() { return m_mutex; }
    // Whether a message is a query: its last unit's header ends in '?'.
    static bool expectsReply(const std::string& message);
    uint32_t maxRecvSize() const { return m_maxRecvSize; }

private:
    struct PendingWrite
    {
        bool active = false;
        bool sent = false;
        uint32_t xid = 0;
        size_t length = 0;
        std::vector<uint8_t> record;
        Deadline deadline; // for its reply, from when it was sent
    };

    // Sends the held write if it isn't out yet, and takes its reply.
    ViStatus finishPendingWrite();
    ViStatus transportFailure(Vxi11Client::Status status);
    void destroyLink(const Deadline& deadline);
    Deadline socketDeadline(const Deadline& ioDeadline) const;

    SessionOptions m_options;
    std::mutex m_mutex;
    Vxi11Client m_client;
    uint32_t m_linkId = 0;
    uint32_t m_maxRecvSize = 0;
    bool m_linkOpen = false;
    PendingWrite m_pending;
};
