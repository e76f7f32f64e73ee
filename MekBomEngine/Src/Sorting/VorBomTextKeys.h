// Numbers that stand for the beginnings of texts: where two differ, the texts stand in the same order. Sorting many texts
// looks at most of them once.
//
//   const VorBomTextKeys keys(texts, true);              // of "B2" and "B10", in natural order
//   keys.of(*texts[0]) < keys.of(*texts[1])   ->  true
//
// Texts with equal keys are to be compared themselves. What all texts begin with is left out of the keys.
#pragma once

#include "MekRoots/Exp/VorString.h"

#include <cstdint>
#include <vector>

class VorBomTextKeys
{
public:
    // In the order of VorString::compareWithNumbers or of VorString::compare. No text may be null.
    VorBomTextKeys(const std::vector<const VorString*>& texts, bool naturally);

    // `text` is one of those that the keys were made for.
    std::uint64_t of(const VorString& text) const;

private:
    bool m_isNatural;
    int m_nNumShared = 0; // characters that all texts begin with
};
