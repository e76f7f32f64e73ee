// The texts that many lines show under one token, numbered, so that a line needs to keep no more than a number of them:
// a material, a coating, the few lengths of standard parts.
//
//   VorString steel(L"S235"), copy = steel;
//   texts.numberOf(steel);        // 0: the first text met
//   texts.numberOf(copy);         // 0
//   texts.numberOf(L"S355");      // 1
//   texts.text(0).view();         // "S235"
//
// Copies of a text share its characters, so a text is known by their address, without a look at them. An equal text
// with characters of its own has another number: that costs memory, no more. No text gets a number once kMostTexts have
// one; and when most texts are then found to have none, the token is given up, and no text is looked up any more.
#pragma once

#include "ShownText.h"

#include "MekRoots/Exp/VorFibonacciHash.h"
#include "MekRoots/Exp/VorHitTrial.h"
#include "MekRoots/Exp/VorString.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mekbom
{
class RepeatedTexts
{
public:
    static constexpr std::size_t kMostTexts = 126; // so that a number fits into a byte with other uses
    static constexpr std::size_t kNone = kMostTexts;

    // The number of `text`, which is not empty; it gets the next one when it is new. kNone for a text without.
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
            m_trial.countFind();
            return m_numbers[slot];
        }
        return m_texts.size() < kMostTexts ? add(text, slot) : miss();
    }

    // The text of that number, in UTF-8. Its characters live as long as this object.
    const ShownText& text(std::size_t number) const { return m_texts[number]; }
    const std::vector<ShownText>& texts() const { return m_texts; }

private:
    static constexpr int kNumLooks = 1000; // arbitrary: enough to tell
    static constexpr int kLooksPerFind = 2;
    static constexpr int kSlotBits = 8;
    static constexpr std::size_t kNumSlots = std::size_t{ 1 } << kSlotBits; // twice as many as texts

    static std::size_t firstSlotOf(const wchar_t* pCharacters)
    {
        return VorFibonacciHash::placeOf(reinterpret_cast<std::uintptr_t>(pCharacters), kSlotBits);
    }
    std::size_t add(const VorString& text, std::size_t slot);
    std::size_t miss();

    std::array<const wchar_t*, kNumSlots> m_characters{}; // an open-addressed table; null for a free slot
    std::array<unsigned char, kNumSlots> m_numbers{};
    VorHitTrial m_trial{ kNumLooks, kLooksPerFind }; // misses count from when all numbers are taken
    bool m_isGivenUp = false;
    std::vector<ShownText> m_texts;
    std::vector<std::unique_ptr<std::string>> m_bytes; // what m_texts refer to
    std::vector<VorString> m_originals;                // kept, so that no other text comes to lie at their addresses
};
}
