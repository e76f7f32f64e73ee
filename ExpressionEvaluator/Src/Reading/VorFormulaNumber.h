// The numbers that formulas are full of, read without a call: "2", "1.19", "0.00000785". All others, and what surrounds
// a number, are read by VorNumberText::scanFloat.
#pragma once

#include "VorFormulaCharacters.h"

#include "MekRoots/Exp/VorPowersOfTen.h"

#include <cstddef>
#include <cstdint>

namespace VorFormulaNumber
{
// Reads digits, or digits with a point among or behind them, from the zero-terminated text and answers where the operand
// ends. Null if it does not end there, and for a number that a single division cannot give: if the digits without the
// point make a whole number that a float holds exactly, and it holds the power of ten to divide it by, then their
// quotient is the float nearest to the text.
inline const wchar_t* scanShort(const wchar_t* pText, double& number)
{
    constexpr std::uint64_t kMostExact = 1U << 24;
    constexpr std::ptrdiff_t kMostCharacters = 19; // of which the digits fit 64 bits

    const wchar_t* pStart = pText;
    std::uint64_t nDigits = 0; // too many are no matter before they are used
    for (; VorCharacters::isDigit(*pText); ++pText)
        nDigits = nDigits * 10 + static_cast<std::uint64_t>(*pText - L'0');
    std::ptrdiff_t nDecimals = 0;
    if (*pText == L'.')
    {
        const wchar_t* pPoint = pText++;
        for (; VorCharacters::isDigit(*pText); ++pText)
            nDigits = nDigits * 10 + static_cast<std::uint64_t>(*pText - L'0');
        nDecimals = pText - pPoint - 1;
    }
    const bool isExact =
        pText - pStart <= kMostCharacters && nDigits <= kMostExact && nDecimals <= VorPowersOfTen::kLargest<float>;
    pText = VorFormulaCharacters::endOperand(pText);
    if (!isExact || pText == nullptr)
        return nullptr;
    const auto whole = static_cast<float>(static_cast<std::int32_t>(nDigits));
    number = nDecimals == 0 ? whole : whole / VorPowersOfTen::kAll<float>[static_cast<std::size_t>(nDecimals)];
    return pText;
}
}
