// MB413: rows lack a token that a formula computes with. Their lines keep the starting value, and totals lack them.
//
//   "%Formula:%Weight*%Price" over rows with prices 2, none and 3   ->   "1 of 3 rows have no number %Price"
//   the same in details with { "token": "%Price", "value": 2 }      ->   nothing: the second row is computed with 2
#pragma once

#include "DatumFinder.h"
#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <vector>

namespace mekbom
{
class OperandRule : public RowRule
{
public:
    // The formula that the rule is about, in a header or in the details; it outlives the rule.
    explicit OperandRule(const CheckedTuple& formula);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    struct Operand
    {
        DatumFinder datum;
        long long numLacking; // rows without a number for it
    };

    const CheckedTuple& m_formula;
    std::vector<Operand> m_operands; // each token of the formula once, without those that its section has numbers for
    long long m_numRows = 0;
};
}
