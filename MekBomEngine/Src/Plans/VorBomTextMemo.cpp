#include "VorBomTextMemo.h"

#include <utility>

void VorBomTextMemo::remember(std::uint64_t key, const VorString& text)
{
    if (m_isUseless)
        return;
    if (m_entries.empty())
        resize(kFewestSetBits);
    Entry& entry = entryToReplace(key);
    entry.key = key;
    entry.text = text;
    ++m_nNumRemembered;
    if (m_nNumRemembered + m_nNumFound < kNumTrials)
        return;
    m_isUseless = m_nNumFound * (kFewestFoundIn - 1) < m_nNumRemembered;
    m_nNumFound = 0;
    m_nNumRemembered = 0;
    if (m_isUseless)
        clear();
}

// The key's own, or a free one; null when there is neither.
VorBomTextMemo::Entry* VorBomTextMemo::freeEntryFor(std::uint64_t key)
{
    Entry* pEntry = &m_entries[firstEntryFor(key)];
    for (std::size_t way = 0; way < kNumWays; ++way, ++pEntry)
        if (pEntry->text.isEmpty() || pEntry->key == key)
            return pEntry;
    return nullptr;
}

// In a full memo each way in turn: texts come and go as rarely as can be, since what stays a while cuts up the memory of
// what does not.
VorBomTextMemo::Entry& VorBomTextMemo::entryToReplace(std::uint64_t key)
{
    for (;;)
    {
        if (Entry* pFree = freeEntryFor(key))
            return *pFree;
        if (m_nSetBits == kMostSetBits)
            return m_entries[firstEntryFor(key) + static_cast<std::size_t>(m_nNumRemembered) % kNumWays];
        resize(m_nSetBits + 1);
    }
}

// A set's entries are spread over two, so that each finds its place.
void VorBomTextMemo::resize(int setBits)
{
    std::vector<Entry> entries((std::size_t{ 1 } << setBits) * kNumWays);
    entries.swap(m_entries);
    m_nSetBits = setBits;
    for (Entry& entry : entries)
        if (!entry.text.isEmpty())
            *freeEntryFor(entry.key) = std::move(entry);
}

void VorBomTextMemo::clear()
{
    m_entries.clear();
    m_entries.shrink_to_fit();
}
