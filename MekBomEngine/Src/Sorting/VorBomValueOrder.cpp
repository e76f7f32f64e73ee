#include "VorBomValueOrder.h"

VorBomValueOrder::VorBomValueOrder(const VorStringArray& texts) : m_nBehindAll(texts.length())
{
    if (texts.isEmpty())
        return;
    auto pPlaces = std::make_shared<VorStringHashMap<int>>();
    bool inserted = false; // a text that is listed twice is not, the second time
    for (int place = 0; place < texts.length(); ++place)
        pPlaces->findOrInsert(texts[place], place, inserted);
    m_pPlaces = std::move(pPlaces);
}

int VorBomValueOrder::placeOf(const VorString& text) const
{
    const auto* pNode = m_pPlaces != nullptr ? m_pPlaces->find(text) : nullptr;
    return pNode != nullptr ? pNode->value : m_nBehindAll;
}

int VorBomValueOrder::compare(const VorBomDataValue& first, const VorBomDataValue& second) const
{
    const int firstPlace = placeOf(first);
    const int secondPlace = placeOf(second);
    return firstPlace == secondPlace ? 0 : (firstPlace < secondPlace ? -1 : 1);
}

int VorBomValueOrder::placeOf(const VorBomDataValue& value) const
{
    return value.type() == VorBomDataValue::kStringData ? placeOf(*static_cast<const VorString*>(value.data()))
                                                        : m_nBehindAll;
}
