// What a footer shows in a column whose total is calculated from sums of the same footer.
//
//   formula "%Cost/%Weight", of %SumBy:%Cost and %SumBy:%Weight
//   footer   %SumBy:%Cost 300   %SumBy:%Weight 120   shows 2.5
//
// Costs of ten rows by weights of eight are the price of nothing. Such sums are told, and so is a formula that cannot be
// computed; the footer shows nothing in its place.
#pragma once

#include "ColumnTotal.h"

#include "VorBomReportSection.h"

#include "ExpressionEvaluator/Src/VorCompiledFormula.h"

#include <string>
#include <vector>

namespace mekbom
{
class CalculatedTotal
{
public:
    // The formula must be one that VorCompiledFormula takes, each name in it that of an operand. `footer` is the
    // template's, with a tuple for the sum of each operand.
    CalculatedTotal(const ColumnTotal& total, const VorBomItemBase& footer);

    // The result, in kDoubleData of a unit type that is left open. Of type kUnknownData, with `reason` set, for sums that
    // are over different numbers of rows, for one that is over none, and for a division by zero.
    //   "%Cost is the sum of 10 rows, %Weight of 8"
    VorBomTypedValue valueIn(const VorBomReportSection& footer, std::string& reason) const;

private:
    std::string reasonAgainst(const VorBomReportSection& footer) const;

    VorCompiledFormula m_formula;
    std::vector<int> m_tuples; // of the footer, for each name of the formula
};
}
