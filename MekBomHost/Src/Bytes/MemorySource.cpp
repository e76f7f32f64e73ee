#include "MemorySource.h"

namespace mekbom
{
// std::string_view::copy() gives what there is where less is left than asked for, and 0 at the end.
std::size_t MemorySource::read(char* pBytes, std::size_t size)
{
    const std::size_t numRead = m_rest.copy(pBytes, size);
    m_rest.remove_prefix(numRead);
    return numRead;
}
}
