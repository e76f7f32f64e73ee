// One number of a quantity's text, kept as digits so that nothing is lost before its unit is known.
//
//   "6 1/2"  ->  whole "6", numerator 1, denominator 2
//   "7.5e3"  ->  whole "7", rest ".5e3"
//   "1/2"    ->  whole "0", numerator 1, denominator 2
#pragma once

#include <cstdint>
#include <string>

class VorQuantityNumber
{
public:
    // Reads a number without sign at `pText` and moves `pText` behind it; false with `pText` untouched when there is
    // none.
    //   number := digits [ gap fraction ] | fraction | ( digits [ '.' digits ] | '.' digits ) [ exponent ]
    //   fraction := digits '/' digits     smaller than one where it stands behind a whole number
    //   gap := blanks | '-'
    bool scan(const wchar_t*& pText);

    // True for digits alone, few enough for wholeNumber().
    bool isWhole() const { return m_rest.empty() && m_denominator == 0 && m_whole.size() <= kMostDigits; }
    std::uint64_t wholeNumber() const;

    // The number and `carried` as the double next to their sum; infinite when it is too large. What is carried counts
    // only in front of a number of at most kMostDigits digits before the point.
    double toDouble(std::uint64_t carried) const;

private:
    static constexpr std::size_t kMostDigits = 15;

    bool scanFraction(const wchar_t*& pText);
    bool scanFractionBehindWhole(const wchar_t*& pText);
    void scanRest(const wchar_t*& pText);

    std::wstring m_whole;
    std::wstring m_rest;             // point, decimals and exponent
    std::uint64_t m_numerator = 0;   // of at most kMostDigits digits, as is the denominator
    std::uint64_t m_denominator = 0; // 0 without a fraction
};
