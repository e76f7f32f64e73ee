// Numbers to text with a fixed number of decimals, trailing zeros dropped, by integer arithmetic.
//
//   writeHundredths(out, partsOf<1, 100>(12.5))      ->  "12.5"
//   writeTenths(out, partsOf<1, 10>(0.25))           ->  "0.3"     halves round away from zero, as they are read
//
// Exact: where a product is too close to the middle between two texts, the value is compared with that middle, which is
// a quotient of two whole numbers and so the double nearest to the decimal number a reader sees. Never negative here.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

namespace LimitNumber
{
// Far above the rounding of one product, relative to its size.
constexpr double kTolerance = 1e-14;

// How many parts of Numerator / Denominator are nearest to `value`.
template <int Numerator, int Denominator>
inline std::uint64_t partsOf(double value)
{
    constexpr double kPartsPerUnit = static_cast<double>(Denominator) / Numerator;
    const double product = value * kPartsPerUnit;
    const std::int64_t below = static_cast<std::int64_t>(product);
    const double rest = product - static_cast<double>(below);
    bool roundsUp = rest > 0.5;
    if (std::fabs(rest - 0.5) <= product * kTolerance)
        roundsUp = value >= static_cast<double>((2 * below + 1) * Numerator) / (2 * Denominator);
    return static_cast<std::uint64_t>(below) + (roundsUp ? 1 : 0);
}

// Two digits each for 0 to 99; and each as decimals behind a point with trailing zeros dropped.
struct Digits
{
    char pairs[100][2];
    char decimals[100][4]; // ".25" and one character of no meaning
    unsigned char decimalsLength[100];
};

constexpr Digits makeDigits()
{
    Digits digits{};
    for (int i = 0; i < 100; ++i)
    {
        digits.pairs[i][0] = digits.decimals[i][1] = static_cast<char>('0' + i / 10);
        digits.pairs[i][1] = digits.decimals[i][2] = static_cast<char>('0' + i % 10);
        digits.decimals[i][0] = '.';
        digits.decimalsLength[i] = static_cast<unsigned char>(i == 0 ? 0 : (i % 10 == 0 ? 2 : 3));
    }
    return digits;
}

inline constexpr Digits kDigits = makeDigits();

inline char* writePair(char* out, std::uint64_t number)
{
    std::memcpy(out, kDigits.pairs[number], 2);
    return out + 2;
}

inline char* writeWhole(char* out, std::uint64_t number)
{
    if (number < 10)
    {
        *out = static_cast<char>('0' + number);
        return out + 1;
    }
    if (number < 100)
        return writePair(out, number);
    return writePair(writeWhole(out, number / 100), number % 100);
}

inline char* writeHundredths(char* out, std::uint64_t hundredths)
{
    out = writeWhole(out, hundredths / 100);
    std::memcpy(out, kDigits.decimals[hundredths % 100], 4);
    return out + kDigits.decimalsLength[hundredths % 100];
}

inline char* writeTenths(char* out, std::uint64_t tenths)
{
    return writeHundredths(out, tenths * 10);
}
}
