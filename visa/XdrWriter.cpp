#include "XdrWriter.h"

void XdrWriter::putUint(uint32_t value)
{
    m_bytes.push_back(static_cast<uint8_t>(value >> 24));
    m_bytes.push_back(static_cast<uint8_t>(value >> 16));
    m_bytes.push_back(static_cast<uint8_t>(value >> 8));
    m_bytes.push_back(static_cast<uint8_t>(value));
}

void XdrWriter::putOpaque(const void* data, size_t size)
{
    putUint(static_cast<uint32_t>(size));
    const auto* p = static_cast<const uint8_t*>(data);
    if (size > 0)
        m_bytes.insert(m_bytes.end(), p, p + size);
    m_bytes.resize(m_bytes.size() + ((4 - size % 4) % 4), 0);
}

void XdrWriter::patchUint(size_t offset, uint32_t value)
{
    if (offset + 4 > m_bytes.size())
        return;
    m_bytes[offset] = static_cast<uint8_t>(value >> 24);
    m_bytes[offset + 1] = static_cast<uint8_t>(value >> 16);
    m_bytes[offset + 2] = static_cast<uint8_t>(value >> 8);
    m_bytes[offset + 3] = static_cast<uint8_t>(value);
}
