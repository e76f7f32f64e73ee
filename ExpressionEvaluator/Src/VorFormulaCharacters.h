// What the characters of a formula are to those who read it: operators, blanks, the rest.
//
//   VorFormulaCharacters::kOperators.holds(L'+')    ->  true
//   VorFormulaCharacters::kKindsInStatement[L'*']   ->  kProduct
#pragma once

#include <cstdint>
#include <string_view>

// A set of characters whose codes are below 64, a bit each: asking costs a comparison and a shift, and letters leave at
// the comparison.
class VorCharacterSet
{
public:
    constexpr explicit VorCharacterSet(std::wstring_view characters)
    {
        for (const wchar_t character : characters)
            m_nBits |= std::uint64_t(1) << character;
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
inline constexpr VorCharacterSet kOperators(L"*/+-=()");
inline constexpr VorCharacterSet kBlanks(L" \t\n\r");

inline constexpr wchar_t kSeparator = L';'; // between statements

// What stands behind an operand in a zero-terminated formula.
inline constexpr VorCharacterSet kOperandEnds(std::wstring_view(L"*/+-=();\0", 9));

// What a character is, between operands.
enum eKind : int
{
    kAssignment = 0,  // operators, by how tightly they bind
    kParenthesis = 1, // '(' and ')'
    kSum = 2,         // '+' and '-'
    kProduct = 3,     // '*' and '/'
    kNothing = 4,     // blanks and zero characters
    kOperand = 5,     // all that is nothing else
    kEnd = 6          // of the statement
};

// The kinds of the characters below 64; all others are part of an operand.
class KindTable
{
public:
    // In the text of one statement alone, ';' is part of an operand, and zero characters are nothing; in a
    // zero-terminated formula both end a statement.
    explicit constexpr KindTable(bool isFormula)
    {
        for (wchar_t character = 0; character < 64; ++character)
            m_kinds[character] = kOperand;
        for (const wchar_t blank : { L' ', L'\t', L'\n', L'\r' })
            m_kinds[blank] = kNothing;
        m_kinds[L'\0'] = isFormula ? kEnd : kNothing;
        m_kinds[kSeparator] = isFormula ? kEnd : kOperand;
        m_kinds[L'='] = kAssignment;
        m_kinds[L'('] = m_kinds[L')'] = kParenthesis;
        m_kinds[L'+'] = m_kinds[L'-'] = kSum;
        m_kinds[L'*'] = m_kinds[L'/'] = kProduct;
    }

    constexpr eKind operator[](wchar_t character) const
    {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): a wchar_t is no char
        const auto nCode = static_cast<std::uint32_t>(character);
        return nCode < 64 ? static_cast<eKind>(m_kinds[nCode]) : kOperand;
    }

private:
    signed char m_kinds[64] = {};
};
inline constexpr KindTable kKindsInStatement(false);
inline constexpr KindTable kKindsInFormula(true);
}
