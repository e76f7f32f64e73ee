#include "RowNumbers.h"

namespace mekbom
{
// The number is noted for each row rather than found by going through the list again: sorting moves rows, and they keep
// neither neighbours nor places.
RowNumbers::RowNumbers(const VorBomData& data)
{
    int number = 0;
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        m_numbers.emplace(pRow, ++number);
}

int RowNumbers::numberOf(const VorBomDataRow& row) const
{
    const auto found = m_numbers.find(&row);
    return found == m_numbers.end() ? 0 : found->second;
}
}
