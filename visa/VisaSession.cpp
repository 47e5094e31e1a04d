#include "VisaSession.h"

#include "ResourceName.h"
#include "VisaStatus.h"

#include <algorithm>
#include <cstdlib>

namespace {
constexpr uint32_t kMaxWriteChunk = 1024 * 1024;
constexpr int64_t kCleanupMs = 300;

uint32_t envNumber(const char* name, uint32_t fallback, uint32_t min, uint32_t max)
{
    const char* text = std::getenv(name);
    if (!text || !*text)
        return fallback;
    char* end = nullptr;
    const unsigned long value = std::strtoul(text, &end, 10);
    if (*end != '\0' || value < min || value > max)
        return fallback;
    return static_cast<uint32_t>(value);
}
} // namespace

SessionOptions SessionOptions::fromEnvironment()
{
    SessionOptions options;
    options.timeoutMs = envNumber("SYNC_VISA_TIMEOUT_MS", options.timeoutMs, 1, 3600 * 1000);
    options.portmapperPort = static_cast<uint16_t>(
        envNumber("SYNC_VXI11_PORTMAPPER_PORT", options.portmapperPort, 1, 65535));
    return options;
}

VisaSession::VisaSession(const SessionOptions& options)
    : m_options(options)
{
}

VisaSession::~VisaSession()
{
    close();
}

Deadline VisaSession::socketDeadline(const Deadline& ioDeadline) const
{
    return Deadline::inMs(ioDeadline.remainingMs() + m_options.socketMarginMs);
}

ViStatus VisaSession::open(const ResourceName& resource, bool lockDevice, uint32_t lockTimeoutMs)
{
    close();
    const Deadline deadline = Deadline::inMs(m_options.timeoutMs);
    uint16_t corePort = 0;
    Vxi11Client::Status status
        = Vxi11Client::queryCorePort(resource.host(), m_options.portmapperPort, deadline, corePort);
    if (status == Vxi11Client::Status::Ok)
        status = m_client.connect(resource.host(), corePort, deadline);
    if (status != Vxi11Client::Status::Ok) {
        m_client.disconnect();
        return VisaStatus::fromOpenTransport(status);
    }

    vxi11::CreateLinkParms parms;
    parms.clientId = static_cast<int32_t>(reinterpret_cast<uintptr_t>(this) & 0x7FFFFFFF);
    parms.lockDevice = lockDevice;
    parms.lockTimeout = lockTimeoutMs;
    parms.device = resource.device();
    vxi11::CreateLinkResp resp;
    status = m_client.createLink(parms, resp, deadline);
    if (status != Vxi11Client::Status::Ok) {
        m_client.disconnect();
        return VisaStatus::fromOpenTransport(status);
    }
    if (resp.error != vxi11::NoError) {
        m_client.disconnect();
        return VisaStatus::fromDeviceError(resp.error);
    }
    m_linkId = resp.linkId;
    m_maxRecvSize = resp.maxRecvSize;
    m_linkOpen = true;
    return VI_SUCCESS;
}

void VisaSession::destroyLink(const Deadline& deadline)
{
    m_pending.active = false;
    if (m_linkOpen && m_client.isConnected()) {
        int32_t error = 0;
        m_client.destroyLink(m_linkId, error, deadline);
    }
    m_linkOpen = false;
    m_client.disconnect();
}

void VisaSession::close()
{
    // A query written and never read still reaches the instrument, as it would have unheld;
    // its reply is not awaited (destroy_link's reply is told apart by xid).
    const Deadline deadline = Deadline::inMs(std::min<int64_t>(m_options.timeoutMs, 1000));
    if (m_linkOpen && m_pending.active && !m_pending.sent)
        m_client.sendPrepared(m_pending.record, deadline);
    destroyLink(deadline);
}

ViStatus VisaSession::transportFailure(Vxi11Client::Status status)
{
    switch (status) {
    case Vxi11Client::Status::Timeout:
        // The link stays: the late reply will be recognised by its xid and dropped.
    case Vxi11Client::Status::Rejected:
        // A well-formed refusal of one call: the connection itself is fine.
        break;
    case Vxi11Client::Status::ProtocolError:
        // The stream can't be trusted any more; free the instrument's link if it still listens.
        destroyLink(Deadline::inMs(kCleanupMs));
        break;
    default:
        m_linkOpen = false;
        m_client.disconnect();
        break;
    }
    return VisaStatus::fromTransport(status);
}

bool VisaSession::expectsReply(const std::string& message)
{
    const size_t last = message.find_last_not_of(" \t\r\n");
    if (last == std::string::npos)
        return false;
    size_t unitStart = 0;
    char quote = 0;
    for (size_t i = 0; i < last; ++i) {
        const char c = message[i];
        if (quote)
            quote = c == quote ? '\0' : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == ';' || c == '\n')
            unitStart = i + 1;
    }
    const size_t begin = message.find_first_not_of(" \t\r\n", unitStart);
    const size_t end = message.find_first_of(" \t\r\n", begin);
    const size_t headerEnd = end == std::string::npos || end > last ? last + 1 : end;
    return message[headerEnd - 1] == '?';
}

ViStatus VisaSession::finishPendingWrite()
{
    if (!m_pending.active)
        return VI_SUCCESS;
    m_pending.active = false;
    if (!m_pending.sent) {
        m_pending.deadline = socketDeadline(Deadline::inMs(m_options.timeoutMs));
        const Vxi11Client::Status status
            = m_client.sendPrepared(m_pending.record, m_pending.deadline);
        if (status != Vxi11Client::Status::Ok)
            return transportFailure(status);
    }
    vxi11::WriteResp resp;
    const Vxi11Client::Status status = m_client.endWrite(m_pending.xid, resp, m_pending.deadline);
    if (status != Vxi11Client::Status::Ok)
        return transportFailure(status);
    if (resp.error != vxi11::NoError)
        return VisaStatus::fromDeviceError(resp.error);
    // The rest of a piece can't be sent again once a read has gone out behind it.
    return resp.size == m_pending.length ? VI_SUCCESS : VI_ERROR_IO;
}

ViStatus VisaSession::write(const uint8_t* data, size_t size, bool replyExpected)
{
    const ViStatus pending = finishPendingWrite();
    if (pending != VI_SUCCESS)
        return pending;
    if (!m_linkOpen)
        return VI_ERROR_CONN_LOST;
    const Deadline deadline = Deadline::inMs(m_options.timeoutMs);
    const size_t chunk = m_maxRecvSize == 0 ? 1024 : std::min(m_maxRecvSize, kMaxWriteChunk);
    size_t offset = 0;
    do {
        const size_t length = std::min(chunk, size - offset);
        const bool last = offset + length == size;
        vxi11::WriteParms parms;
        parms.linkId = m_linkId;
        parms.ioTimeout = static_cast<uint32_t>(deadline.remainingMs());
        parms.flags = last ? uint32_t(vxi11::FlagEnd) : 0u;
        parms.data.assign(data + offset, data + offset + length);
        if (last && replyExpected) {
            m_pending.record = m_client.prepareWrite(parms, m_pending.xid);
            m_pending.length = length;
            m_pending.sent = false;
            m_pending.active = true;
            return VI_SUCCESS;
        }
        vxi11::WriteResp resp;
        const Vxi11Client::Status status
            = m_client.deviceWrite(parms, resp, socketDeadline(deadline));
        if (status != Vxi11Client::Status::Ok)
            return transportFailure(status);
        if (resp.error != vxi11::NoError)
            return VisaStatus::fromDeviceError(resp.error);
        if (resp.size > length || (resp.size == 0 && length > 0))
            return VI_ERROR_IO;
        offset += resp.size;
        if (offset < size && deadline.expired())
            return VI_ERROR_TMO;
    } while (offset < size);
    return VI_SUCCESS;
}

ViStatus VisaSession::read(std::string& message, size_t keep)
{
    message.clear();
    if (!m_linkOpen)
        return VI_ERROR_CONN_LOST;
    const Deadline deadline = Deadline::inMs(m_options.timeoutMs);
    for (;;) {
        vxi11::ReadParms parms;
        parms.linkId = m_linkId;
        parms.requestSize = m_options.readChunk;
        parms.ioTimeout = static_cast<uint32_t>(deadline.remainingMs());
        const bool withWrite = m_pending.active && !m_pending.sent;
        uint32_t xid = 0;
        Vxi11Client::Status status = m_client.beginRead(parms,
            withWrite ? m_pending.record : std::vector<uint8_t>(), socketDeadline(deadline), xid);
        if (status != Vxi11Client::Status::Ok) {
            m_pending.active = false;
            return transportFailure(status);
        }
        if (withWrite) {
            m_pending.sent = true;
            m_pending.deadline = socketDeadline(deadline);
        }
        // The query's write reply comes first; if it failed, this read's reply is dropped
        // later by its xid.
        const ViStatus written = finishPendingWrite();
        if (written != VI_SUCCESS)
            return written;
        vxi11::ReadResp resp;
        status = m_client.endRead(xid, resp, socketDeadline(deadline));
        if (status != Vxi11Client::Status::Ok)
            return transportFailure(status);
        if (resp.error != vxi11::NoError)
            return VisaStatus::fromDeviceError(resp.error);
        if (message.size() < keep) {
            const size_t take = std::min(keep - message.size(), resp.data.size());
            message.append(reinterpret_cast<const char*>(resp.data.data()), take);
        }
        if (resp.reason & (vxi11::ReasonEnd | vxi11::ReasonTermChar))
            return VI_SUCCESS;
        // More to come: a full chunk, or an empty one. Both are fine until the deadline.
        if (deadline.expired())
            return VI_ERROR_TMO;
    }
}

ViStatus VisaSession::clear()
{
    if (!m_linkOpen)
        return VI_ERROR_CONN_LOST;
    const Deadline deadline = Deadline::inMs(m_options.timeoutMs);
    // A clear is the way out of trouble: a held query still goes out first, but its reply is
    // not awaited and its failure is not what the clear reports.
    if (m_pending.active && !m_pending.sent)
        m_client.sendPrepared(m_pending.record, socketDeadline(deadline));
    m_pending.active = false;
    vxi11::GenericParms parms;
    parms.linkId = m_linkId;
    parms.ioTimeout = m_options.timeoutMs;
    int32_t error = 0;
    const Vxi11Client::Status status = m_client.deviceClear(parms, error, socketDeadline(deadline));
    if (status != Vxi11Client::Status::Ok)
        return transportFailure(status);
    return VisaStatus::fromDeviceError(error);
}
