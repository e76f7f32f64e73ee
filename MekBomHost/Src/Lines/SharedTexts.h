// The texts that many lines show under one column, numbered: a material, a coating, the few lengths of standard parts.
// Copies of a text share its characters, so that a text is known by their address, without a look at them.
//
//   numberOf(text)     ->  0       the first text met
//   numberOf(copy)     ->  0       a copy of it
//   numberOf(other)    ->  1
//   numberOf(later)    ->  kNone   once kMostTexts are numbered
//
// A column whose texts are hardly ever found again is given up: then none has a number any more.
// An equal text with characters of its own has another number: that costs memory, no more.
#pragma once

#include "SectionText.h"

#include "MekRoots/Exp/VorString.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class SharedTexts
{
public:
    static constexpr std::size_t kMostTexts = 126; // so that a number fits into a byte with other uses
    static constexpr std::size_t kNone = kMostTexts;

    // `text` is not empty.
    std::size_t numberOf(const VorString& text)
    {
        if (m_isGivenUp)
            return kNone;
        const wchar_t* const pCharacters = text.getStringW();
        std::size_t slot = firstSlotOf(pCharacters);
        for (; m_characters[slot] != nullptr; slot = (slot + 1) % kNumSlots)
        {
            if (m_characters[slot] != pCharacters)
                continue;
            ++m_numFound;
            return m_numbers[slot];
        }
        return m_texts.size() < kMostTexts ? add(text, slot) : miss();
    }

    // Valid as long as this object.
    const SectionText& text(std::size_t number) const { return m_texts[number]; }
    const std::vector<SectionText>& texts() const { return m_texts; }

private:
    static constexpr int kNumTrials = 1000; // arbitrary: enough to tell
    static constexpr int kSlotBits = 8;
    static constexpr std::size_t kNumSlots = std::size_t{ 1 } << kSlotBits; // twice as many as texts

    static std::size_t firstSlotOf(const wchar_t* pCharacters)
    {
        const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(pCharacters));
        return static_cast<std::size_t>(address * 0x9E3779B97F4A7C15U >> (64 - kSlotBits)); // Fibonacci hashing
    }
    std::size_t add(const VorString& text, std::size_t slot);
    std::size_t miss();

    std::array<const wchar_t*, kNumSlots> m_characters{}; // an open-addressed table; null for a free slot
    std::array<unsigned char, kNumSlots> m_numbers{};
    int m_numFound = 0;
    int m_numMissed = 0; // since all numbers are taken
    bool m_isGivenUp = false;
    std::vector<SectionText> m_texts;
    std::vector<std::unique_ptr<std::string>> m_bytes; // that m_texts refer to
    std::vector<VorString> m_originals;                // which keep their characters where they are
};
}
