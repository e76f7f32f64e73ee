// Bits of a word, numbered from 0 for the lowest.
//
//   VorBits::lowestBit(0x50)   ->  4
#pragma once

#include <cstdint>

namespace VorBits
{
// The number of the lowest bit set in `word`, which is not 0.
constexpr int lowestBit(std::uint64_t word)
{
#if defined(__GNUC__)
    return __builtin_ctzll(word);
#else
    int bit = 0;
    for (; (word & 1) == 0; word >>= 1)
        ++bit;
    return bit;
#endif
}
}
