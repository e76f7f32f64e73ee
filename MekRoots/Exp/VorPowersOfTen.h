// The powers of ten that a type of number holds exactly.
//
//   VorPowersOfTen::kAll<double>[2]              ->  100.0
//   VorPowersOfTen::kLargest<double>             ->  22, and 10 for float, 19 for std::uint64_t
//
// Two exact floating-point numbers have the quotient that is next to their true one, so digits without their point,
// divided by a power from here, are the number nearest to the decimal text: 1.19 is 119 / 100.
#pragma once

#include <array>
#include <cstddef>
#include <limits>

namespace VorPowersOfTen
{
// Ten to the n is 5 to the n and n zero bits, which the exponent holds: a floating-point number is exact while 5 to the
// n fits its digits.
template <class Number>
constexpr int largestExponent()
{
    int exponent = std::numeric_limits<Number>::digits10;
    if constexpr (!std::numeric_limits<Number>::is_integer)
    {
        exponent = 0;
        for (double rest = static_cast<double>(1ULL << std::numeric_limits<Number>::digits); rest > 5; rest /= 5)
            ++exponent;
    }
    return exponent;
}

template <class Number>
inline constexpr int kLargest = largestExponent<Number>();

template <class Number>
constexpr std::array<Number, static_cast<std::size_t>(kLargest<Number> + 1)> allPowers()
{
    std::array<Number, static_cast<std::size_t>(kLargest<Number> + 1)> powers{};
    Number power = 1;
    for (std::size_t i = 0; i + 1 < powers.size(); ++i, power *= 10)
        powers[i] = power;
    powers.back() = power;
    return powers;
}

// The power is the index, from 0 to kLargest.
template <class Number>
inline constexpr auto kAll = allPowers<Number>();
}
