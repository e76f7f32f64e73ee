// Reads the numbers that formulas are full of, such as "2", "1.19" and "0.00000785", without calling the general scan:
//
//   VorFormulaNumber::scanShort(L"1.19 *a", number)   ->  "*a", number the float nearest to 1.19, which is 119 / 100
//   VorFormulaNumber::scanShort(L"1e5*a", number)     ->  null: the operand does not end behind its digits
//
// All other numbers are left to VorNumberText::scanFloat, which gives the same float for these.
#pragma once

#include "VorFormulaCharacters.h"

#include "MekRoots/Exp/VorPowersOfTen.h"

#include <cstddef>
#include <cstdint>

namespace VorFormulaNumber
{
// Reads digits, or digits with a point among or behind them, from the zero-terminated text, which begins with a digit,
// and answers where the operand ends. Null, with `number` untouched, if the operand goes on, and where one division
// does not give the number. It does if a float holds both the digits without their point and the power of ten to divide
// them by: the quotient of two exact floats is rounded to the float nearest to the text.
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
