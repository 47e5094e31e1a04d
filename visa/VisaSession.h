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
    // Sends one message, split at the instrument's maxRecvSize, END on the last piece, each
    // piece's reply taken before anything else goes out; a query is written like any other
    // message (README.md, "One call at a time").
    ViStatus write(const uint8_t* data, size_t size);
    // Reads one whole message (to END or the instrument's term char), keeping at most keep
    // bytes of it; the rest is read and dropped so it can't pass for the next reply.
    ViStatus read(std::string& message, size_t keep);
    ViStatus clear();
    void close();

    std::mutex& mutex() { return m_mutex; }
    uint32_t maxRecvSize() const { return m_maxRecvSize; }

private:
    ViStatus transportFailure(Vxi11Client::Status status);
    void destroyLink(const Deadline& deadline);
    Deadline socketDeadline(const Deadline& ioDeadline) const;

    SessionOptions m_options;
    std::mutex m_mutex;
    Vxi11Client m_client;
    uint32_t m_linkId = 0;
    uint32_t m_maxRecvSize = 0;
    bool m_linkOpen = false;
};
