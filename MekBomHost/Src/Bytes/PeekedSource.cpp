#include "PeekedSource.h"

namespace mekbom
{
// A source may give fewer bytes than it is asked for before it is at its end.
PeekedSource::PeekedSource(ByteSource& source, std::size_t headSize) : m_source(source), m_head(headSize, '\0')
{
    std::size_t length = 0;
    while (length < headSize)
    {
        const std::size_t numRead = m_source.read(&m_head[length], headSize - length);
        if (numRead == 0)
            break;
        length += numRead;
    }
    m_head.resize(length);
}

std::size_t PeekedSource::read(char* pBytes, std::size_t size)
{
    if (m_numRead == m_head.size())
        return m_source.read(pBytes, size);
    const std::size_t numCopied = m_head.copy(pBytes, size, m_numRead);
    m_numRead += numCopied;
    return numCopied;
}
}
