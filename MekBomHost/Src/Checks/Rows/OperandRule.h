// MB413: rows lack a token that a formula computes with. Their lines keep the starting value, and totals lack them.
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
    // The formula that the rule is about, in a header or in the details; it outlives the rule. Numbers of the formula's
    // own section count as there: formulas see them.
    explicit OperandRule(const CheckedTuple& formula);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    struct Operand
    {
        DatumFinder datum;
        long long numLacking;
    };

    const CheckedTuple& m_formula;
    std::vector<Operand> m_operands;
    long long m_numRows = 0;
};
}
