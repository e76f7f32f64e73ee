// Gives equal cells of a column one and the same text, so that a million rows of "S355J2" hold its characters once.
//
//   const VorString first = texts.textOf("S355J2");
//   const VorString second = texts.textOf("S355J2");     // shares its characters with `first`
//
// Remembers all texts up to some ten thousand, then begins anew. In a column where hardly any comes back, such as one
// of numbers of parts, it stops looking for some ten thousand texts: they would only fill the processor's caches. Each
// column has a pool of its own, so that a column of marks does not drive out one of materials.
#pragma once

#include "MekRoots/Exp/VorFibonacciHash.h"
#include "MekRoots/Exp/VorMemoryHint.h"
#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace mekbom
{
class TextPool
{
public:
    // The wide text of `bytes`, valid UTF-8 without zero bytes and not empty; good until the next call.
    const VorString& textOf(std::string_view bytes);

    // The same in steps, for whoever has many texts to look for at once. What find() gave is good until prepare() is
    // called again, which must come before every `numTexts` texts.
    void prepare(std::size_t numTexts);
    bool isLooking() const { return m_numUnshared == 0; } // only then the next ones may be called
    const VorString& find(std::string_view bytes);
    const VorString& find(std::uint64_t key); // the text of up to eight bytes, as ByteWord::of gives them
    void willFind(std::uint64_t key) const
    {
        VorMemoryHint::willRead(&m_entries[placeOf(key)]); // so that find() need not wait
    }

private:
    // The table is open-addressed: an entry stands at its place or, where that was taken, at the next free one.
    struct Entry
    {
        std::uint64_t key = 0; // 0 where there is no text
        VorString text;
    };

    const VorString& insert(Entry& entry, std::uint64_t key, std::string_view bytes);
    Entry& freeEntry(std::uint64_t key);
    std::size_t placeOf(std::uint64_t key) const { return VorFibonacciHash::placeOf(key, m_numBits); }
    std::size_t next(std::size_t place) const { return (place + 1) & (m_entries.size() - 1); }
    bool isWorthALook() const;
    void forgetAll();
    void resize(std::size_t numEntries);

    std::vector<Entry> m_entries; // none before the first use; a power of two, at least half of them free
    int m_numBits = 0;            // of a place: two to their power is the number of entries
    std::size_t m_numTexts = 0;
    std::size_t m_numLooks = 0;
    std::size_t m_numUnshared = 0; // texts to be made without a look
    VorString m_unshared;          // the last of them that textOf() gave
};
}
