// The texts that the numbers of one column were lately shown as. Equal parts are many in a model, so most columns hold
// few different numbers, and a text that is known needs neither rounding nor memory of its own: texts are shared.
//
//   const VorString* pText = memo.find(key);      null: not known, so
//   memo.remember(key, text);
//
// Keys are any 64 bits that tell the numbers apart. A column whose numbers hardly ever repeat is found out after
// kNumTrials of them: from then on nothing is remembered.
#pragma once

#include "MekRoots/Exp/VorFibonacciHash.h"
#include "MekRoots/Exp/VorHitTrial.h"
#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class VorBomTextMemo
{
public:
    const VorString* find(std::uint64_t key)
    {
        if (m_entries.empty())
            return nullptr;
        const Entry* pEntry = &m_entries[firstEntryFor(key)];
        for (std::size_t way = 0; way < kNumWays; ++way, ++pEntry)
        {
            if (pEntry->key != key || pEntry->text.isEmpty())
                continue;
            m_trial.countFind();
            return &pEntry->text;
        }
        return nullptr;
    }

    // To be called when find() gave null for the key. An empty text is not remembered.
    void remember(std::uint64_t key, const VorString& text);

    // Forgets the texts, not what was found out about the column.
    void clear();

    // How many bytes the places for texts take: none before the first text, 128 for a few, never more than 16 KB.
    std::size_t bytes() const { return m_entries.size() * sizeof(Entry); }

private:
    struct Entry
    {
        std::uint64_t key = 0;
        VorString text;
    };

    static constexpr int kNumTrials = 256;     // arbitrary: enough to tell
    static constexpr int kFewestSetBits = 1;   // 128 bytes: a report may have thousands of levels with a number each
    static constexpr int kMostSetBits = 8;     // 16 KB, so that those of all columns fit the inner caches
    static constexpr int kSetBitsToGrowBy = 2; // fourfold: fewer entries are moved than by doubling
    static constexpr std::size_t kNumWays = 4; // entries that a key may stand in, a line of the cache
    static constexpr int kFewestFoundIn = 4;   // one of so many, or remembering costs more than it saves

    std::size_t firstEntryFor(std::uint64_t key) const { return VorFibonacciHash::placeOf(key, m_nSetBits) * kNumWays; }
    Entry* freeEntryFor(std::uint64_t key);
    Entry& entryToReplace(std::uint64_t key);
    void resize(int setBits);

    std::vector<Entry> m_entries; // none before the first text, and once remembering has proved useless
    int m_nSetBits = kFewestSetBits;
    VorHitTrial m_trial{ kNumTrials, kFewestFoundIn };
    bool m_isUseless = false;
};
