// A view may end before its text does, or behind it. Told on two views of the text "a*23":
//   [2,3), the text's length not given    shows "2"; restOfText() looks for the terminating zero now, and is "23"
//   [0,6), the text's length given as 4   shows "a*23" and two zero characters; at(5) is zero, the memory not looked at
// Equal views have the same length, the zero characters beyond the text included.
#include "VorExprEvTextView.h"

#include <cwchar>
#include <limits>
#include <utility>

namespace
{
// Views count in int, so that of a longer text no more than 2^31 - 1 characters are seen.
int clampedLength(std::size_t length)
{
    constexpr std::size_t kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(length, kMost));
}
}

// Of a text that nobody has measured, what is asked for is measured here and not kept: views do not change.
std::wstring_view VorExprEvTextView::restOfText() const
{
    // A view without text, or of a measured one, has an end to stop at; the other stops at the terminating zero.
    if (m_pText == nullptr || m_nTextLength != kNotMeasured)
        return textUpTo(m_nTextLength);
    const wchar_t* pStart = m_pText + m_nStart;
    return { pStart, std::wcslen(pStart) };
}

// A zero character within the view does not end the text: of "a\0b+c" the view [0,3) has a text of 5 characters.
int VorExprEvTextView::measureText() const
{
    if (m_pText == nullptr)
        return 0;
    const auto nEnd = static_cast<std::size_t>(m_nEnd);
    return clampedLength(nEnd + std::wcslen(m_pText + nEnd));
}

// Both views have the same length. One that reaches beyond its text has zero characters there, and the other one must
// have them, too.
bool VorExprEvTextView::hasSameCharacters(const VorExprEvTextView& other) const
{
    std::wstring_view shorter = existingPart();
    std::wstring_view longer = other.existingPart();
    if (shorter.size() > longer.size())
        std::swap(shorter, longer);
    return longer.compare(0, shorter.size(), shorter) == 0 &&
           longer.find_first_not_of(L'\0', shorter.size()) == std::wstring_view::npos;
}
