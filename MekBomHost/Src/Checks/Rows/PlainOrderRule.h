// MB211 with data: rows are sorted by a column that the catalogue does not know, and whose cells are texts.
//
//   "%SortAscBy:%PosNum" over the cells A2, A10     ->   told with "A2", as A10 comes first
//   the same over the cells 2, 10                   ->   nothing: numbers come in the order of their values
//
// Without data GroupingRules tells it of every such column.
#pragma once

#include "GroupingRules.h"
#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <string>

namespace mekbom
{
class PlainOrderRule : public RowRule
{
public:
    // A key of sortKeysOfOpenOrder, whose tuple outlives the rule.
    explicit PlainOrderRule(const SortKey& key);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    SortKey m_key;
    VorString m_token;
    std::string m_text; // the first text that a row has under the token; empty as long as none has
};
}
