// A stretch of formula text: [start, end) counted from a pointer. Views never copy and own nothing: the characters
// must outlive the view, and with it every variable named by it.
//
//   formula "a*12+b"      VorExprEvTextView(formula, 2, 4, 6)  ->  the "12"
//   formula "a=4;2*a"     VorExprEvTextView(formula + 6, 0, 2, 1)  ->  the "a" and one zero character
//
// A view knows how many characters there are behind its pointer. It may reach beyond them, as the view of a formula's
// last statement does: everything there is a zero character, and the memory is never touched.
#pragma once

#include "MekRoots/Exp/MekExport.h"

#include <cstddef>
#include <string_view>

class MEK_EXPRESSION_API VorExprEvTextView
{
public:
    // No text at all: a null pointer, start and end -1. The left side of a negation has it.
    constexpr VorExprEvTextView() = default;

    // A text of its own that ends where the view does, as a variable's name.
    constexpr VorExprEvTextView(const wchar_t* text, int start, int end) : VorExprEvTextView(text, start, end, end) {}

    // Part of a text that has `textLength` characters from the pointer on, however many of them the view shows.
    constexpr VorExprEvTextView(const wchar_t* text, int start, int end, int textLength)
        : m_pText(text), m_nStart(start), m_nEnd(end), m_nTextLength(textLength)
    {
    }

    const wchar_t* text() const { return m_pText; }
    int start() const { return m_nStart; }
    int end() const { return m_nEnd; }
    int length() const { return m_nEnd - m_nStart; }
    int textLength() const { return m_nTextLength; }
    int hasText() const { return m_pText != nullptr ? 1 : 0; }

    // The character `index` places behind the pointer, not behind the start; zero where there is none.
    wchar_t at(int index) const
    {
        return m_pText != nullptr && index >= 0 && index < m_nTextLength ? m_pText[index] : L'\0';
    }

    // The part [start, end) of the same text.
    VorExprEvTextView part(int start, int end) const { return VorExprEvTextView(m_pText, start, end, m_nTextLength); }

    // The characters of the view that exist; the length() - size() zero characters beyond them are left out.
    std::wstring_view existingPart() const
    {
        const int nEnd = m_nEnd < m_nTextLength ? m_nEnd : m_nTextLength;
        if (m_pText == nullptr || nEnd <= m_nStart)
            return {};
        return { m_pText + m_nStart, static_cast<std::size_t>(nEnd - m_nStart) };
    }

    // 1 when both have the same length and the same characters over all of it, zero characters included.
    int isEqual(const VorExprEvTextView& other) const
    {
        return length() == other.length() && hasSameCharacters(other) ? 1 : 0;
    }

private:
    bool hasSameCharacters(const VorExprEvTextView& other) const;

    const wchar_t* m_pText = nullptr;
    int m_nStart = -1;
    int m_nEnd = -1;
    int m_nTextLength = 0;
};
