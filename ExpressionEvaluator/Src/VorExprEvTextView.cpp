#include "VorExprEvTextView.h"

#include <algorithm>
#include <utility>

std::wstring_view VorExprEvTextView::existingPart() const
{
    const int nEnd = std::min(m_nEnd, m_nTextLength);
    if (m_pText == nullptr || nEnd <= m_nStart)
        return {};
    return { m_pText + m_nStart, static_cast<std::size_t>(nEnd - m_nStart) };
}

// For views of the same length.
bool VorExprEvTextView::hasSameCharacters(const VorExprEvTextView& other) const
{
    std::wstring_view shorter = existingPart();
    std::wstring_view longer = other.existingPart();
    if (shorter.size() > longer.size())
        std::swap(shorter, longer);
    return longer.compare(0, shorter.size(), shorter) == 0 &&
           longer.find_first_not_of(L'\0', shorter.size()) == std::wstring_view::npos;
}
