#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Joins the fragments of ONC RPC record marking (RFC 5531, section 11) into whole records.
// Bytes arrive in any split; a record larger than the limit puts the assembler in a failed state
// instead of allocating what the peer claims.
class RecordAssembler
{
public:
    explicit RecordAssembler(size_t maxRecordSize)
        : m_maxRecordSize(maxRecordSize)
    {
    }

    // Consumes bytes up to the end of the next complete record and returns how many it took.
    size_t feed(const uint8_t* data, size_t size);
    bool hasRecord() const { return m_complete; }
    bool failed() const { return m_failed; }
    std::vector<uint8_t> takeRecord();
    void reset();

    static constexpr uint32_t kLastFragment = 0x80000000u;
    // Puts the header of a single-fragment record of the given length at the front of out.
    static void prependRecordMark(std::vector<uint8_t>& record);

private:
    size_t m_maxRecordSize;
    uint8_t m_header[4] = {};
    size_t m_headerFill = 0;
    size_t m_fragmentLeft = 0;
    bool m_inFragment = false;
    bool m_lastFragment = false;
    bool m_complete = false;
    bool m_failed = false;
    std::vector<uint8_t> m_record;
};
