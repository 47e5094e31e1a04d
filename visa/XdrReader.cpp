#include "XdrReader.h"

uint32_t XdrReader::getUint()
{
    if (m_failed || m_size - m_pos < 4) {
        m_failed = true;
        return 0;
    }
    const uint8_t* p = m_data + m_pos;
    m_pos += 4;
    return (uint32_t(p[0]) << 24) | (uint32_t(p[1]) << 16) | (uint32_t(p[2]) << 8) | uint32_t(p[3]);
}

bool XdrReader::getOpaqueView(const uint8_t*& data, size_t& size, size_t maxSize)
{
    const uint32_t length = getUint();
    if (m_failed)
        return false;
    const size_t padded = size_t(length) + ((4 - length % 4) % 4);
    if (length > maxSize || padded > m_size - m_pos) {
        m_failed = true;
        return false;
    }
    data = m_data + m_pos;
    size = length;
    m_pos += padded;
    return true;
}

bool XdrReader::getOpaque(std::vector<uint8_t>& out, size_t maxSize)
{
    const uint8_t* data = nullptr;
    size_t size = 0;
    if (!getOpaqueView(data, size, maxSize))
        return false;
    out.assign(data, data + size);
    return true;
}

bool XdrReader::getString(std::string& out, size_t maxSize)
{
    const uint8_t* data = nullptr;
    size_t size = 0;
    if (!getOpaqueView(data, size, maxSize))
        return false;
    out.assign(reinterpret_cast<const char*>(data), size);
    return true;
}

bool XdrReader::skip(size_t bytes)
{
    if (m_failed || bytes > m_size - m_pos) {
        m_failed = true;
        return false;
    }
    m_pos += bytes;
    return true;
}
