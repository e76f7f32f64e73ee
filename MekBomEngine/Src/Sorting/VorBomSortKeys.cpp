// Told on %Name, descending, and rows with B2, with B10 and without a name. The catalogue sorts %Name naturally:
//   B2 and B10     B2 is less, and descending makes that 1: B10 stands first
//   B2 and none    a datum is more than none, and descending makes that -1: the row without a name stands last
#include "VorBomSortKeys.h"

#include "VorBomTokenCatalogue.h"

namespace
{
int sortTypeOf(const VorString& token, int setType)
{
    if (setType != VorBomSortKeys::kByCatalogue)
        return setType;
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(token);
    return pEntry != nullptr ? static_cast<int>(pEntry->sort) : VorBomSortKeys::kByCatalogue;
}
}

VorBomSortKeys::VorBomSortKeys(const VorStringArray& tokens, const VorArray<int>& orders,
                               const VorArray<int>& sortTypes)
{
    for (int i = 0; i < tokens.length(); ++i)
        m_keys.push_back({ tokens[i], orders[i] == 1, sortTypeOf(tokens[i], sortTypes[i]) });
}

void VorBomSortKeys::setValueOrder(std::size_t key, const VorBomValueOrder& order)
{
    m_keys[key].valueOrder = order;
    if (!order.isEmpty() && isUnknown(key))
        m_keys[key].sortType = VorBomDataToken::kSortString;
}

int VorBomSortKeys::Key::compare(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
{
    // Descending turns the place of a missing datum round as well.
    const int order = compareValues(pFirst, pSecond);
    return isAscending ? order : -order;
}

// A token without entry in the catalogue, such as a formula, is asked about at the first comparison of two values: those
// that nobody knows are reported then, and only then.
int VorBomSortKeys::Key::compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond)
{
    const bool bothHaveIt = pFirst != nullptr && pSecond != nullptr;
    if (bothHaveIt)
    {
        if (const int order = valueOrder.compare(pFirst->value(), pSecond->value()))
            return order;
        findSortType();
    }
    if (bothHaveIt && sortType == VorBomDataToken::kSortAlphanumeric)
        return pFirst->value().compareAlphanumeric(pSecond->value());
    return VorBomDataTuple::compareValues(pFirst, pSecond);
}

void VorBomSortKeys::Key::findSortType()
{
    if (sortType == kByCatalogue)
        sortType = VorBomDataToken::getSortType(token);
}
