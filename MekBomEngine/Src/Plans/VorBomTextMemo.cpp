#include "VorBomTextMemo.h"

void VorBomTextMemo::remember(std::uint64_t key, const VorString& text)
{
    if (m_isUseless)
        return;
    if (m_entries.empty())
        m_entries.resize((std::size_t{ 1 } << kSetBits) * kNumWays);
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

// The key's own, a free one, or else each way in turn: texts come and go as rarely as can be, since what stays a while cuts up the memory
// of what does not.
VorBomTextMemo::Entry& VorBomTextMemo::entryToReplace(std::uint64_t key)
{
    const std::size_t first = firstEntryFor(key);
    for (std::size_t way = 0; way < kNumWays; ++way)
        if (m_entries[first + way].text.isEmpty() || m_entries[first + way].key == key)
            return m_entries[first + way];
    return m_entries[first + static_cast<std::size_t>(m_nNumRemembered) % kNumWays];
}

void VorBomTextMemo::clear()
{
    m_entries.clear();
    m_entries.shrink_to_fit();
}
