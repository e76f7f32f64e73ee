// Bits of a word, numbered from 0 for the lowest.
//
//   VorBits::lowestBit(0x50)    ->  4
//   VorBits::highestBit(0x50)   ->  6
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

// The number of the highest bit set in `word`, which is not 0.
constexpr int highestBit(std::uint64_t word)
{
#if defined(__GNUC__)
    return 63 - __builtin_clzll(word);
#else
    int bit = 0;
    while ((word >>= 1) != 0)
        ++bit;
    return bit;
#endif
}
}
