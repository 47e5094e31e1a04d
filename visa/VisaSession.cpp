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
    if (m_linkOpen && m_client.isConnected()) {
        int32_t error = 0;
        m_client.destroyLink(m_linkId, error, deadline);
    }
    m_linkOpen = false;
    m_client.disconnect();
}

void VisaSession::close()
{
    destroyLink(Deadline::inMs(std::min<int64_t>(m_options.timeoutMs, 1000)));
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

ViStatus VisaSession::write(const uint8_t* data, size_t size)
{
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
        vxi11::ReadResp resp;
        const Vxi11Client::Status status
            = m_client.deviceRead(parms, resp, socketDeadline(deadline));
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
    vxi11::GenericParms parms;
    parms.linkId = m_linkId;
    parms.ioTimeout = m_options.timeoutMs;
    int32_t error = 0;
    const Vxi11Client::Status status = m_client.deviceClear(parms, error, socketDeadline(deadline));
    if (status != Vxi11Client::Status::Ok)
        return transportFailure(status);
    return VisaStatus::fromDeviceError(error);
}
