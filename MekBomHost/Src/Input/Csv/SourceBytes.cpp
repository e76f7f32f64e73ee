// Before more bytes are read, those that are used up make room: what is left of a record moves to the front.
//
//   | Name,Length HEA200,6000 | HEB3 |   | spare |      "HEB3" begins a record that goes on behind the buffer
//   | HEB3 |                             | spare |      makeRoom()
//   | HEB300,5500 IPE360,7000 ...        | spare |      readMore(), with a line end behind the last byte
//
// A record that fills the buffer all alone gets one of twice the size. The spare bytes are what a StopScan may look at
// behind the end.
#include "SourceBytes.h"

#include "StopScan.h"

#include <cstring>

namespace mekbom
{
SourceBytes::SourceBytes(ByteSource& source) : m_source(source), m_buffer(kFirstSize)
{
    m_buffer[m_end] = '\n';
}

void SourceBytes::readMore()
{
    makeRoom();
    const std::size_t limit = m_buffer.size() - StopScan::kBlockSize;
    while (m_end < limit && !m_sourceIsAtEnd)
    {
        const std::size_t numRead = m_source.read(m_buffer.data() + m_end, limit - m_end);
        m_end += numRead;
        m_sourceIsAtEnd = numRead == 0;
    }
    m_buffer[m_end] = '\n';
}

void SourceBytes::makeRoom()
{
    if (m_begin == 0 && m_end > 0)
        m_buffer.resize(2 * m_buffer.size());
    std::memmove(m_buffer.data(), begin(), m_end - m_begin);
    m_end -= m_begin;
    m_begin = 0;
}
}
