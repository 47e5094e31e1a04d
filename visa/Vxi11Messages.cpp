#include "Vxi11Messages.h"

#include "XdrReader.h"
#include "XdrWriter.h"

namespace vxi11 {

std::vector<uint8_t> encode(const CreateLinkParms& m)
{
    XdrWriter w;
    w.putInt(m.clientId);
    w.putBool(m.lockDevice);
    w.putUint(m.lockTimeout);
    w.putString(m.device);
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const CreateLinkResp& m)
{
    XdrWriter w;
    w.putInt(m.error);
    w.putUint(m.linkId);
    w.putUint(m.abortPort);
    w.putUint(m.maxRecvSize);
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const WriteParms& m)
{
    XdrWriter w;
    w.putUint(m.linkId);
    w.putUint(m.ioTimeout);
    w.putUint(m.lockTimeout);
    w.putUint(m.flags);
    w.putOpaque(m.data.data(), m.data.size());
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const WriteResp& m)
{
    XdrWriter w;
    w.putInt(m.error);
    w.putUint(m.size);
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const ReadParms& m)
{
    XdrWriter w;
    w.putUint(m.linkId);
    w.putUint(m.requestSize);
    w.putUint(m.ioTimeout);
    w.putUint(m.lockTimeout);
    w.putUint(m.flags);
    w.putUint(m.termChar);
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const ReadResp& m)
{
    XdrWriter w;
    w.putInt(m.error);
    w.putUint(m.reason);
    w.putOpaque(m.data.data(), m.data.size());
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const GenericParms& m)
{
    XdrWriter w;
    w.putUint(m.linkId);
    w.putUint(m.flags);
    w.putUint(m.lockTimeout);
    w.putUint(m.ioTimeout);
    return std::move(w.bytes());
}

std::vector<uint8_t> encode(const GetPortParms& m)
{
    XdrWriter w;
    w.putUint(m.program);
    w.putUint(m.version);
    w.putUint(m.protocol);
    w.putUint(m.port);
    return std::move(w.bytes());
}

std::vector<uint8_t> encodeError(int32_t error)
{
    XdrWriter w;
    w.putInt(error);
    return std::move(w.bytes());
}

std::vector<uint8_t> encodeUint(uint32_t value)
{
    XdrWriter w;
    w.putUint(value);
    return std::move(w.bytes());
}

bool decode(const uint8_t* data, size_t size, CreateLinkParms& m)
{
    XdrReader r(data, size);
    m.clientId = r.getInt();
    m.lockDevice = r.getBool();
    m.lockTimeout = r.getUint();
    r.getString(m.device, kMaxDeviceName);
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, CreateLinkResp& m)
{
    XdrReader r(data, size);
    m.error = r.getInt();
    m.linkId = r.getUint();
    m.abortPort = r.getUint();
    m.maxRecvSize = r.getUint();
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, WriteParms& m)
{
    XdrReader r(data, size);
    m.linkId = r.getUint();
    m.ioTimeout = r.getUint();
    m.lockTimeout = r.getUint();
    m.flags = r.getUint();
    r.getOpaque(m.data, kMaxData);
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, WriteResp& m)
{
    XdrReader r(data, size);
    m.error = r.getInt();
    m.size = r.getUint();
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, ReadParms& m)
{
    XdrReader r(data, size);
    m.linkId = r.getUint();
    m.requestSize = r.getUint();
    m.ioTimeout = r.getUint();
    m.lockTimeout = r.getUint();
    m.flags = r.getUint();
    m.termChar = static_cast<uint8_t>(r.getUint());
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, ReadResp& m)
{
    XdrReader r(data, size);
    m.error = r.getInt();
    m.reason = r.getUint();
    r.getOpaque(m.data, kMaxData);
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, GenericParms& m)
{
    XdrReader r(data, size);
    m.linkId = r.getUint();
    m.flags = r.getUint();
    m.lockTimeout = r.getUint();
    m.ioTimeout = r.getUint();
    return r.ok();
}

bool decode(const uint8_t* data, size_t size, GetPortParms& m)
{
    XdrReader r(data, size);
    m.program = r.getUint();
    m.version = r.getUint();
    m.protocol = r.getUint();
    m.port = r.getUint();
    return r.ok();
}

bool decodeError(const uint8_t* data, size_t size, int32_t& error)
{
    XdrReader r(data, size);
    error = r.getInt();
    return r.ok();
}

bool decodeUint(const uint8_t* data, size_t size, uint32_t& value)
{
    XdrReader r(data, size);
    value = r.getUint();
    return r.ok();
}

} // namespace vxi11
