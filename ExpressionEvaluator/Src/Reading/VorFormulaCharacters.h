// What the characters of a formula are to those who read it: operators, blanks, the rest.
//
//   VorFormulaCharacters::kOperators.holds(L'+')    ->  true
//   VorFormulaCharacters::kKindsInStatement[L'*']   ->  kProduct
#pragma once

#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

// A set of characters whose codes are below 64, a bit each. To ask costs a comparison and a shift; for a letter, whose
// code is above, the comparison is enough.
class VorCharacterSet
{
public:
    constexpr explicit VorCharacterSet(std::wstring_view characters)
    {
        for (const wchar_t character : characters)
            m_nBits |= std::uint64_t(1) << character;
    }

    // This set and one more character.
    constexpr VorCharacterSet with(wchar_t character) const
    {
        VorCharacterSet set(*this);
        set.m_nBits |= std::uint64_t(1) << character;
        return set;
    }

    constexpr bool holds(wchar_t character) const
    {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wchar_t is no char
        const auto nCode = static_cast<std::uint32_t>(character);
        return nCode < 64 && (m_nBits >> nCode & 1) != 0;
    }

private:
    std::uint64_t m_nBits = 0;
};

namespace VorFormulaCharacters
{
inline constexpr VorCharacterSet kOperators(VorFormulaText::kOperators);
inline constexpr VorCharacterSet kBlanks(VorFormulaText::kBlanks);

inline constexpr wchar_t kSeparator = L';'; // between statements

// What stands behind an operand in a zero-terminated formula.
inline constexpr VorCharacterSet kOperandEnds = kOperators.with(kSeparator).with(L'\0');

// Passes over the blanks behind an operand of a zero-terminated formula; null if it does not end here.
inline const wchar_t* endOperand(const wchar_t* pText)
{
    for (; !kOperandEnds.holds(*pText); ++pText)
        if (!kBlanks.holds(*pText))
            return nullptr;
    return pText;
}

// Whether an operand can read like this: it has no operator in it and no blank at its end. Blanks at the start are let
// pass, as nobody reads an operand from a blank on.
inline bool canBeOperand(std::wstring_view text)
{
    const auto endsHere = [](wchar_t character) { return kOperandEnds.holds(character); };
    return !text.empty() && !kBlanks.holds(text.back()) && std::none_of(text.begin(), text.end(), endsHere);
}

// Digits, point, sign, white space as the C library knows it, and the zero that ends a text.
inline constexpr VorCharacterSet kNumberStarts(std::wstring_view(L"0123456789.+- \t\n\v\f\r\0", 20));

// Whether an operand that begins like this can be a number; "inf" and "nan" begin with a letter.
constexpr bool canStartNumber(wchar_t character)
{
    return kNumberStarts.holds(character) || character == L'i' || character == L'I' || character == L'n' ||
           character == L'N';
}

// What a character is, between operands.
enum eKind : signed char
{
    kAssignment = 0,  // operators, by how tightly they bind
    kParenthesis = 1, // '(' and ')'
    kSum = 2,         // '+' and '-'
    kProduct = 3,     // '*' and '/'
    kNothing = 4,     // blanks and zero characters
    kEnd = 5,         // of the statement
    kOperand = 6,     // everything else
    kDigit = 7,       // an operand, most likely a number
    kName = 8         // an operand that is no number
};

constexpr bool startsOperand(eKind kind)
{
    return kind >= kOperand;
}

// The kinds of all characters.
class KindTable
{
public:
    // The kinds in the text of one statement: a ';' is part of an operand there, and zero characters are nothing.
    static constexpr KindTable ofStatement()
    {
        KindTable table(kOperand);
        for (const wchar_t blank : VorFormulaText::kBlanks)
            table.m_kinds[blank] = kNothing;
        table.m_kinds[L'\0'] = kNothing;
        table.m_kinds[L'='] = kAssignment;
        table.m_kinds[L'('] = table.m_kinds[L')'] = kParenthesis;
        table.m_kinds[L'+'] = table.m_kinds[L'-'] = kSum;
        table.m_kinds[L'*'] = table.m_kinds[L'/'] = kProduct;
        return table;
    }

    // The kinds in a zero-terminated formula, where a ';' and the zero end a statement. Operands are told apart by how
    // they begin.
    static constexpr KindTable ofFormula()
    {
        KindTable table = ofStatement();
        table.m_others = kName;
        for (wchar_t character = 0; character < kSize; ++character)
            if (table.m_kinds[character] == kOperand && !canStartNumber(character))
                table.m_kinds[character] = kName;
            else if (VorCharacters::isDigit(character))
                table.m_kinds[character] = kDigit;
        table.m_kinds[L'\0'] = table.m_kinds[kSeparator] = kEnd;
        return table;
    }

    constexpr eKind operator[](wchar_t character) const
    {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wchar_t is no char
        const auto nCode = static_cast<std::uint32_t>(character);
        return nCode < kSize ? m_kinds[nCode] : m_others;
    }

private:
    static constexpr int kSize = 128;

    explicit constexpr KindTable(eKind kind) : m_others(kind)
    {
        for (eKind& here : m_kinds)
            here = kind;
    }

    eKind m_kinds[kSize] = {};
    eKind m_others; // the kind of all characters beyond
};
inline constexpr KindTable kKindsInStatement = KindTable::ofStatement();
inline constexpr KindTable kKindsInFormula = KindTable::ofFormula();
}
