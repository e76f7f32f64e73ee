// Takes rows out of a model's data, and destroys them.
//
//   RowRemoval::keepOnly(data, [](const VorBomDataRow& row) { return row.getTupleAt(L"%Weight") != nullptr; });
#pragma once

#include "VorBomData.h"
#include "VorBomDataRow.h"

namespace mekbom::RowRemoval
{
// Keeps the rows that `isWanted` says true of, in their order; it is asked of each row once, from the first to the
// last. Returns how many are gone.
template <class Predicate>
int keepOnly(VorBomData& data, const Predicate& isWanted)
{
    int numRemoved = 0;
    VorBomItemBase* pRow = data.child();
    data.setChild(nullptr);
    while (pRow != nullptr)
    {
        VorBomItemBase* const pNext = pRow->next();
        pRow->setNext(nullptr);
        if (isWanted(*static_cast<VorBomDataRow*>(pRow)))
            data.addChild(pRow);
        else
        {
            pRow->empty();
            delete pRow;
            ++numRemoved;
        }
        pRow = pNext;
    }
    return numRemoved;
}
}
