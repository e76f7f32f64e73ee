// A rule on data: sees every row once, in their order, and tells then what is wrong.
//
//   for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
//       rule.see(static_cast<const VorBomDataRow&>(*pRow));
//   rule.tell(mistakes);
//
// Rows live until the rule has told; it may keep pointers to them.
#pragma once

#include "MistakeList.h"

#include "VorBomDataRow.h"

namespace mekbom
{
class RowRule
{
public:
    RowRule() = default;
    RowRule(const RowRule&) = delete;
    RowRule& operator=(const RowRule&) = delete;
    virtual ~RowRule() = default;

    // Looks at the next row and notes what of it matters. It is called for every row of the list, so a rule that has
    // seen enough returns at once, and none is to take longer the more rows there were.
    virtual void see(const VorBomDataRow& row) = 0;

    // Adds what the rows have shown, nothing where they are right. Called once, behind the last row.
    virtual void tell(MistakeList& mistakes) const = 0;
};
}
