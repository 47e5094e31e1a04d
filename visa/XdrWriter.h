#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Appends XDR items (big-endian 4-byte units, opaque data padded to 4) to a byte buffer.
class XdrWriter
{
public:
    void putUint(uint32_t value);
    void putInt(int32_t value) { putUint(static_cast<uint32_t>(value)); }
    void putBool(bool value) { putUint(value ? 1u : 0u); }
    void putOpaque(const void* data, size_t size);
    void putString(const std::string& text) { putOpaque(text.data(), text.size()); }

    const std::vector<uint8_t>& bytes() const { return m_bytes; }
    std::vector<uint8_t>& bytes() { return m_bytes; }
    size_t size() const { return m_bytes.size(); }
    // Overwrites a 4-byte unit written earlier, for lengths known only at the end.
    void patchUint(size_t offset, uint32_t value);

private:
    std::vector<uint8_t> m_bytes;
};
