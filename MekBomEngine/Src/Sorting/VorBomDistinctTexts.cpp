// Two tables answer, one after the other. Told on the column S235, S355, S235, whose first and third cell share a text:
//   S235    its address is not among the recent ones: hashed, found nowhere, gets number 0 and a recent place
//   S355    likewise, number 1
//   S235    its address is a recent one: 0, without a look at its characters
// An equal text at another address is hashed and found in the table of numbers.
#include "VorBomDistinctTexts.h"

namespace
{
// FNV-1a over pairs of characters, its upper half mixed into the lower.
std::uint32_t hashOf(const VorString& text)
{
    std::uint64_t hash = 14695981039346656037U;
    const wchar_t* pCharacter = text.getStringW();
    const wchar_t* const pEnd = pCharacter + text.length();
    for (; pEnd - pCharacter >= 2; pCharacter += 2)
        hash = (hash ^ static_cast<std::uint32_t>(pCharacter[0]) ^
                static_cast<std::uint64_t>(static_cast<std::uint32_t>(pCharacter[1])) << 32) *
               1099511628211U;
    if (pCharacter != pEnd)
        hash = (hash ^ static_cast<std::uint32_t>(*pCharacter)) * 1099511628211U;
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}
}

std::uint32_t VorBomDistinctTexts::indexOf(const VorString& text)
{
    const wchar_t* pCharacters = text.getStringW();
    constexpr std::uintptr_t kBlockWidth = 16; // bytes that neighbouring texts lie apart, or about so many
    Recent& recent = m_recent[reinterpret_cast<std::uintptr_t>(pCharacters) / kBlockWidth % kNumRecent];
    if (recent.pCharacters != pCharacters)
        recent = { pCharacters, findOrAdd(text) };
    return recent.number;
}

std::uint32_t VorBomDistinctTexts::findOrAdd(const VorString& text)
{
    // Slots keep the hash: texts are compared only where hashes agree, and grow() hashes nothing again.
    const std::uint32_t hash = hashOf(text);
    std::size_t i = hash % m_slots.size();
    for (; m_slots[i].number != kNone; i = (i + 1) % m_slots.size())
        if (m_slots[i].hash == hash && *m_texts[m_slots[i].number] == text)
            return m_slots[i].number;

    const auto number = static_cast<std::uint32_t>(m_texts.size());
    m_slots[i] = { hash, number };
    m_texts.push_back(&text);
    if (m_texts.size() * 2 > m_slots.size())
        grow();
    return number;
}

void VorBomDistinctTexts::grow()
{
    std::vector<Slot> slots(m_slots.size() * 2);
    for (const Slot& slot : m_slots)
    {
        if (slot.number == kNone)
            continue;
        std::size_t i = slot.hash % slots.size();
        while (slots[i].number != kNone)
            i = (i + 1) % slots.size();
        slots[i] = slot;
    }
    m_slots.swap(slots);
}
