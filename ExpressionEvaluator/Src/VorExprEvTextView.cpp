#include "VorExprEvTextView.h"

#include <utility>

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
