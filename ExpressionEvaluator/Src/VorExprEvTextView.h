// A stretch of formula text: [start, end) counted from a pointer. Views never copy and own nothing: the characters
// must outlive the view, and with it every variable named by it.
//
//   const wchar_t text[] = L"a*12+b";
//   const VorExprEvTextView view(text, 2, 3);
//   view.existingPart();                          // "1"
//   view.at(3);                                   // '2': the text goes on behind the view
//   VorExprEvTextView(text, 2, 8, 6).at(7);       // zero: the text has 6 characters, the view reaches beyond them
//
// A view and its text end in different places. A number that begins in a view is read as far as the text goes, and the
// view of a formula's last statement reaches beyond its text: everything there is a zero character, and the memory is
// never touched.
#pragma once

#include "MekRoots/Exp/MekExport.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

class MEK_EXPRESSION_API VorExprEvTextView
{
public:
    // No text at all: a null pointer, start and end -1. The left side of a negation has it.
    constexpr VorExprEvTextView() = default;

    // Part of a text that has all characters of the view and goes on behind them up to a terminating zero, which is not
    // looked for before somebody reads beyond the view. A view that only serves as a name needs no such zero.
    constexpr VorExprEvTextView(const wchar_t* text, int start, int end)
        : VorExprEvTextView(text, start, end, kNotMeasured)
    {
    }

    // Part of a text that has `textLength` characters from the pointer on, however many of them the view shows.
    constexpr VorExprEvTextView(const wchar_t* text, int start, int end, int textLength)
        : m_pText(text), m_nStart(start), m_nEnd(end), m_nTextLength(textLength)
    {
    }

    const wchar_t* text() const { return m_pText; }
    int start() const { return m_nStart; }
    int end() const { return m_nEnd; }
    int length() const { return m_nEnd - m_nStart; }
    int hasText() const { return m_pText != nullptr ? 1 : 0; }

    // The same view, with the length of its text looked for once, however often it is asked for.
    VorExprEvTextView measured() const { return VorExprEvTextView(m_pText, m_nStart, m_nEnd, textLength()); }
    int textLength() const { return m_nTextLength == kNotMeasured ? measureText() : m_nTextLength; }

    // The character `index` places behind the pointer, not behind the start; zero where there is none.
    wchar_t at(int index) const
    {
        return m_pText != nullptr && index >= 0 && (index < existingEnd() || index < textLength()) ? m_pText[index]
                                                                                                   : L'\0';
    }

    // The part [start, end) of the same text.
    VorExprEvTextView part(int start, int end) const { return VorExprEvTextView(m_pText, start, end, textLength()); }

    // The characters of the view that exist; the length() - size() zero characters beyond them are left out.
    std::wstring_view existingPart() const { return textUpTo(existingEnd()); }

    // The characters from the view's start to the end of its text, or at least to a zero character.
    std::wstring_view restOfText() const;

    // 1 when both have the same length and the same characters over all of it, zero characters included.
    int isEqual(const VorExprEvTextView& other) const
    {
        return length() == other.length() && hasSameCharacters(other) ? 1 : 0;
    }

private:
    static constexpr int kNotMeasured = -1;

    int existingEnd() const { return m_nTextLength == kNotMeasured ? m_nEnd : std::min(m_nEnd, m_nTextLength); }
    std::wstring_view textUpTo(int end) const
    {
        if (m_pText == nullptr || end <= m_nStart)
            return {};
        return { m_pText + m_nStart, static_cast<std::size_t>(end - m_nStart) };
    }
    int measureText() const;
    bool hasSameCharacters(const VorExprEvTextView& other) const;

    const wchar_t* m_pText = nullptr;
    int m_nStart = -1;
    int m_nEnd = -1;
    int m_nTextLength = 0;
};
