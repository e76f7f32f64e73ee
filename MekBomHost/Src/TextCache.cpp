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

// Four looks at each place show whether texts come back. Measured: looking on in two columns of unique texts makes
// reading a million rows a tenth slower.
const int kLooksInRound = 4 * static_cast<int>(kNumEntries);
const int kLeastFound = kLooksInRound / 16; // arbitrary
const int kTextsWithoutLook = 16 * kLooksInRound;
}

const VorString& TextCache::textOf(std::string_view bytes)
{
    if (!isWorthALook())
    {
        m_unshared = Utf8::toWide(bytes);
        return m_unshared;
    }
    if (m_entries.empty())
        m_entries.resize(kNumEntries);
    Entry& entry = m_entries[std::hash<std::string_view>()(bytes) & (kNumEntries - 1)];
    if (entry.bytes == bytes)
    {
        ++m_numFound;
        return entry.text;
    }
    entry.bytes = bytes;
    entry.text = Utf8::toWide(bytes);
    return entry.text;
}

bool TextCache::isWorthALook()
{
    if (++m_numLooks == kLooksInRound)
    {
        m_numLooks = m_numFound < kLeastFound ? -kTextsWithoutLook : 0;
        m_numFound = 0;
    }
    return m_numLooks >= 0;
}
}
