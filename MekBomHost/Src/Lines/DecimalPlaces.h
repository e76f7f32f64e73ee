// The decimals of numbers as lists show them, which stand below each other in a table.
//
//   DecimalPlaces::lengthIn("1234.25")   ->  3: the point and two digits
//   DecimalPlaces::lengthIn("1234")      ->  0
//   DecimalPlaces::lengthIn("7' 6.5\"")   ->  0: it does not end in them
#pragma once

#include "MekRoots/Exp/VorCharacters.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace mekbom::DecimalPlaces
{
// How many bytes at the end of the text are a point and digits. Looks at no more than the digits at its end.
inline std::uint32_t lengthIn(std::string_view text)
{
    std::size_t begin = text.size();
    while (begin > 0 && VorCharacters::isDigit(text[begin - 1]))
        --begin;
    const bool hasPoint = begin > 0 && begin < text.size() && text[begin - 1] == '.';
    return hasPoint ? static_cast<std::uint32_t>(text.size() - begin + 1) : 0;
}
}
