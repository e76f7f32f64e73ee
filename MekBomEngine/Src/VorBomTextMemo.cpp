#include "VorBomTextMemo.h"

void VorBomTextMemo::remember(std::uint64_t key, const VorString& text)
{
    if (m_isUseless)
        return;
    if (m_entries.empty())
        m_entries.resize(std::size_t{ 1 } << kSlotBits);
    Entry& entry = m_entries[slotOf(key)];
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

void VorBomTextMemo::clear()
{
    m_entries.clear();
    m_entries.shrink_to_fit();
}
