#include "TextCache.h"

#include "Utf8.h"

#include <cstddef>
#include <functional>

namespace mekbom
{
namespace
{
// A power of two. A frame has some hundred different marks and profiles. Measured: places for all of 50,000 different
// marks make a report of a million rows a sixth slower, since each look then misses the processor's caches.
const std::size_t kNumEntries = 1024;
}

const VorString& TextCache::textOf(std::string_view bytes)
{
    if (m_entries.empty())
        m_entries.resize(kNumEntries);
    Entry& entry = m_entries[std::hash<std::string_view>()(bytes) & (kNumEntries - 1)];
    if (entry.bytes != bytes)
    {
        entry.bytes = bytes;
        entry.text = Utf8::toWide(bytes);
    }
    return entry.text;
}
}
