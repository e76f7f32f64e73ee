// MB506: a whole number under a token with a unit, which the engine prints as it is, in the model's unit.
//
//   %Length 6000, a whole number, in a list in feet    ->   6000, and the rule tells
//   %Length 6000.0                                     ->   19' 8 1/4", and nothing to tell
//
// Rows of a parts list have none, as all cells of such a column are read as quantities; rows from elsewhere may.
#pragma once

#include "DatumFinder.h"
#include "RowRule.h"

namespace mekbom
{
class WholeNumberRule : public RowRule
{
public:
    // The tuple that shows a token with a unit; it outlives the rule.
    explicit WholeNumberRule(const CheckedTuple& tuple);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    const CheckedTuple& m_tuple;
    DatumFinder m_datum;
    long long m_numRows = 0; // how many rows have a whole number there
};
}
