// A number of no sign, rounded to parts of one: 3 with part 41 of 100 is 3.41, with part 5 of 16 it is 3 5/16.
#pragma once

#include <cstdint>

struct VorRoundedNumber
{
    std::uint64_t whole = 0;
    std::uint64_t part = 0; // below the number of parts

    // Digits of `whole` beyond which numbers are written with an exponent.
    static constexpr int kMostDigits = 15;
    static constexpr std::uint64_t kWholeLimit = 1000000000000000;

    int isZero() const { return whole == 0 && part == 0 ? 1 : 0; }
};
