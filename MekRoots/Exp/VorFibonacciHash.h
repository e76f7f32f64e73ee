// Spreads 64-bit keys over a table whose size is a power of two.
//
//   VorFibonacciHash::placeOf(0x7F3A5C10, 8)     ->  one of 0 to 255
//
// Multiplies by two to the 64 divided by the golden ratio and takes the highest bits, on which every bit of the key has
// bearing: addresses and numbers that differ in a few bits alone, all of them low, or all of them high, spread evenly.
#pragma once

#include <cstddef>
#include <cstdint>

namespace VorFibonacciHash
{
constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15U; // odd

// `numBits`, 1 to 63, says how large the table is: 2 to that power.
constexpr std::size_t placeOf(std::uint64_t key, int numBits)
{
    return static_cast<std::size_t>(key * kFactor >> (64 - numBits));
}
}
