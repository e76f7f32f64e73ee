// A key has a set of four places. Told on a column whose numbers are all different:
//   first text                there are no places yet: 2 sets are made, 128 bytes
//   fifth text of one set     no place is free: 8 sets, and every entry moves to its new one
//   more                      32, 128 and 256 sets, the most; from then on a text in a full set replaces another
//   256 looks                 hardly one has found its text: the places are given up, and later texts not remembered
// A column that passes its trial is tried again with the next 256 looks.
#include "VorBomTextMemo.h"

#include <algorithm>
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
    m_trial.countMiss();
    if (!m_trial.isOver())
        return;
    m_isUseless = m_trial.hasFailed();
    m_trial.begin();
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

// In a full memo each way in turn: texts come and go as rarely as can be, since what stays a while cuts up the memory
// of what does not.
VorBomTextMemo::Entry& VorBomTextMemo::entryToReplace(std::uint64_t key)
{
    for (;;)
    {
        if (Entry* pFree = freeEntryFor(key))
            return *pFree;
        if (m_nSetBits == kMostSetBits)
            return m_entries[firstEntryFor(key) + static_cast<std::size_t>(m_trial.numMissed()) % kNumWays];
        resize(std::min(m_nSetBits + kSetBitsToGrowBy, kMostSetBits));
    }
}

// Entries of one set stand in several then, so that each finds its place.
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
