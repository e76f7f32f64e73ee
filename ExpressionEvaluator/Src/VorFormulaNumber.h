// The numbers that formulas are full of, read without a call: "2", "1.19", "0.00000785". All others, and what surrounds
// a number, are read by VorNumberText::scanFloat.
#pragma once

#include "VorFormulaCharacters.h"

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace VorFormulaNumber
{
// Reads digits, or digits with a point among or behind them, from the zero-terminated text and answers where the operand
// ends. Null if it does not end there, and for a number that a single division cannot give: if the digits without the
// point make a whole number that a float holds exactly, and it holds the power of ten to divide it by, then their
// quotient is the float nearest to the text.
inline const wchar_t* scanShort(const wchar_t* pText, double& number)
{
    static constexpr float kPowersOfTen[] = { 1e0F, 1e1F, 1e2F, 1e3F, 1e4F, 1e5F, 1e6F, 1e7F, 1e8F, 1e9F, 1e10F };
    constexpr std::uint64_t kMostExact = 1U << 24;
    constexpr std::ptrdiff_t kMostCharacters = 19; // of which the digits fit 64 bits

    const wchar_t* pStart = pText;
    std::uint64_t nDigits = 0; // too many are no matter before they are used
    for (; VorFormulaCharacters::isDigit(*pText); ++pText)
        nDigits = nDigits * 10 + static_cast<std::uint64_t>(*pText - L'0');
    std::ptrdiff_t nDecimals = 0;
    if (*pText == L'.')
    {
        const wchar_t* pPoint = pText++;
        for (; VorFormulaCharacters::isDigit(*pText); ++pText)
            nDigits = nDigits * 10 + static_cast<std::uint64_t>(*pText - L'0');
        nDecimals = pText - pPoint - 1;
    }
    const bool isExact = pText - pStart <= kMostCharacters && nDigits <= kMostExact &&
                         nDecimals < std::ptrdiff_t(std::size(kPowersOfTen));
    pText = VorFormulaCharacters::endOperand(pText);
    if (!isExact || pText == nullptr)
        return nullptr;
    const auto whole = static_cast<float>(static_cast<std::int32_t>(nDigits));
    number = nDecimals == 0 ? whole : whole / kPowersOfTen[nDecimals];
    return pText;
}
}
