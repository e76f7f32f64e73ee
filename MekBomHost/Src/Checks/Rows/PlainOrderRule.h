// MB211 with data: rows are sorted by a column of the data whose cells are texts, "10" before "2". A column of numbers
// comes in the order of their values, and is no mistake.
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
    // A key of sortKeysOfOpenOrder.
    explicit PlainOrderRule(const SortKey& key);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    SortKey m_key;
    VorString m_token;
    std::string m_text; // the first that a row has; empty as long as none has
};
}
