// What makes a text a formula, for all who meet one: the operators, and how short it may not be.
//
//   VorFormulaText::isFormula(L"a*3.5");      // true
//   VorFormulaText::isFormula(L"1+2");        // false: three characters
//   VorFormulaText::isFormula(L"%Weight");    // false: no operator, so a name or a number and nothing to compute
#pragma once

#include <cstddef>
#include <string_view>

namespace VorFormulaText
{
// How tightly each of them binds is told by VorFormulaCharacters.h.
inline constexpr std::wstring_view kOperators = L"*/+-=()";

// The characters that may surround an operand.
inline constexpr std::wstring_view kBlanks = L" \t\n\r";

// Formulas with fewer characters are not computed, however valid. On purpose: arbitrary, but visible to callers.
// Pinned by evaluateFormulaTest.FormulasShorterThanFourCharactersAreRefused.
inline constexpr std::size_t kShortest = 4;

inline bool isFormula(std::wstring_view text)
{
    return text.size() >= kShortest && text.find_first_of(kOperators) != std::wstring_view::npos;
}
}
