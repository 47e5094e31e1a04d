#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Reads XDR items from a byte buffer it does not own. Every read checks the remaining length;
// after the first failure the reader stays failed and returns zeros, so a parse function can
// read a whole structure and check ok() once at the end.
class XdrReader
{
public:
    XdrReader(const uint8_t* data, size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    uint32_t getUint();
    int32_t getInt() { return static_cast<int32_t>(getUint()); }
    bool getBool() { return getUint() != 0; }
    // Variable-length opaque data; refused when the declared length exceeds maxSize or the
    // bytes left in the buffer.
    bool getOpaque(std::vector<uint8_t>& out, size_t maxSize);
    bool getString(std::string& out, size_t maxSize);
    // Points at opaque data inside the buffer without copying it.
    bool getOpaqueView(const uint8_t*& data, size_t& size, size_t maxSize);
    bool skip(size_t bytes);

    bool ok() const { return !m_failed; }
    size_t remaining() const { return m_size - m_pos; }
    size_t position() const { return m_pos; }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_pos = 0;
    bool m_failed = false;
};
