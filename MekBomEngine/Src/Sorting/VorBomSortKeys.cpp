#include "VorBomSortKeys.h"

VorBomSortKeys::VorBomSortKeys(const VorStringArray& tokens, const VorArray<int>& orders)
{
    for (int i = 0; i < tokens.length(); ++i)
        m_keys.push_back({ tokens[i], orders[i] == 1 });
}

int VorBomSortKeys::Key::compare(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
{
    // Descending turns the place of a missing datum round as well.
    const int order = compareValues(pFirst, pSecond);
    return isAscending ? order : -order;
}

// The sort type is asked for at the first comparison of two values: tokens that nobody knows are reported then, and only
// then.
int VorBomSortKeys::Key::compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
{
    const bool bothHaveIt = pFirst != nullptr && pSecond != nullptr;
    if (bothHaveIt && !knowsSortType)
    {
        isNatural = VorBomDataToken::getSortType(token) == VorBomDataToken::kSortAlphanumeric;
        knowsSortType = true;
    }
    if (bothHaveIt && isNatural)
        return pFirst->value().compareAlphanumeric(pSecond->value());
    return VorBomDataTuple::compareValues(pFirst, pSecond);
}
