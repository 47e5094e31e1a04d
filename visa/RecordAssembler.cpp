#include "RecordAssembler.h"

size_t RecordAssembler::feed(const uint8_t* data, size_t size)
{
    size_t used = 0;
    while (used < size && !m_complete && !m_failed) {
        if (!m_inFragment) {
            m_header[m_headerFill++] = data[used++];
            if (m_headerFill < 4)
                continue;
            m_headerFill = 0;
            const uint32_t mark = (uint32_t(m_header[0]) << 24) | (uint32_t(m_header[1]) << 16)
                | (uint32_t(m_header[2]) << 8) | uint32_t(m_header[3]);
            m_lastFragment = (mark & kLastFragment) != 0;
            m_fragmentLeft = mark & ~kLastFragment;
            if (m_fragmentLeft > m_maxRecordSize - m_record.size()) {
                m_failed = true;
                break;
            }
            m_inFragment = true;
        }
        const size_t take = m_fragmentLeft < size - used ? m_fragmentLeft : size - used;
        m_record.insert(m_record.end(), data + used, data + used + take);
        used += take;
        m_fragmentLeft -= take;
        if (m_fragmentLeft == 0) {
            m_inFragment = false;
            if (m_lastFragment)
                m_complete = true;
        }
    }
    return used;
}

std::vector<uint8_t> RecordAssembler::takeRecord()
{
    std::vector<uint8_t> record;
    if (m_complete) {
        record.swap(m_record);
        m_complete = false;
    }
    return record;
}

void RecordAssembler::reset()
{
    m_headerFill = 0;
    m_fragmentLeft = 0;
    m_inFragment = false;
    m_lastFragment = false;
    m_complete = false;
    m_failed = false;
    m_record.clear();
}

void RecordAssembler::prependRecordMark(std::vector<uint8_t>& record)
{
    const uint32_t mark = kLastFragment | static_cast<uint32_t>(record.size());
    const uint8_t header[4]
        = { uint8_t(mark >> 24), uint8_t(mark >> 16), uint8_t(mark >> 8), uint8_t(mark) };
    record.insert(record.begin(), header, header + 4);
}
