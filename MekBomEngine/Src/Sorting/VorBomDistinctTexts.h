// The different texts of a column, numbered from 0 in the order in which they are met.
//
//   VorBomDistinctTexts steels;
//   steels.indexOf(s235)       ->  0
//   steels.indexOf(s355)       ->  1
//   steels.indexOf(s235Again)  ->  0, be it the same text or an equal one
//   steels.texts().size()      ->  2
//
// The texts are not owned and must outlive this object.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

class VorBomDistinctTexts
{
public:
    VorBomDistinctTexts() : m_slots(kFirstNumSlots) {}

    // The number of the text equal to `text`, a new one if there is none yet.
    std::uint32_t indexOf(const VorString& text);

    // The texts in the order of their numbers; each is the first of its equals that was met.
    const std::vector<const VorString*>& texts() const { return m_texts; }

private:
    // A place of the open-addressed table, with the hash and the number of a text. It is free while `number` is kNone.
    struct Slot
    {
        std::uint32_t hash = 0;
        std::uint32_t number = kNone;
    };

    // A text met lately, known by its characters' address: most columns share few texts among their rows.
    struct Recent
    {
        const wchar_t* pCharacters = nullptr;
        std::uint32_t number = 0;
    };

    static constexpr std::uint32_t kNone = ~std::uint32_t{ 0 };
    static constexpr std::size_t kFirstNumSlots = 64; // a power of two, as all sizes of the table
    static constexpr std::size_t kNumRecent = 256;

    std::uint32_t findOrAdd(const VorString& text);
    void grow();

    std::vector<const VorString*> m_texts;
    std::vector<Slot> m_slots; // at least twice as many as texts
    std::array<Recent, kNumRecent> m_recent;
};
