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

    virtual void see(const VorBomDataRow& row) = 0;
    virtual void tell(MistakeList& mistakes) const = 0;
};
}
