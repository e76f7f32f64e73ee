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

int VorExprEvTextView::isEqual(const VorExprEvTextView& other) const
{
    if (length() != other.length())
        return 0;
    std::wstring_view shorter = existingPart();
    std::wstring_view longer = other.existingPart();
    if (shorter.size() > longer.size())
        std::swap(shorter, longer);
    if (longer.compare(0, shorter.size(), shorter) != 0)
        return 0;
    return longer.find_first_not_of(L'\0', shorter.size()) == std::wstring_view::npos ? 1 : 0;
}
