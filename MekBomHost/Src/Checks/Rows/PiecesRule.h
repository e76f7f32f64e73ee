// MB308: a total adds values of one piece while rows stand for several.
//
//   "%SumBy:%Weight" over a row of 4 pieces of 134.4 kg   ->   134.4 kg in place of 537.6
//   "%SumBy:%Formula:%Weight*1.05" over the same row      ->   141.12 kg in place of 564.48
//
// It does not trip on "%SumBy:%Formula:%Weight*%Quantity", which counts the pieces, on "%SumBy:%Quantity", which has no
// unit, nor on "%SumBy:%AssemblyWeight", which is not of one piece (SumRules tells of that). Nor does it trip where
// every row stands for one piece.
//
// A list that counts equal lines prints such a total on each line, too: there a line of 4 and one of 2 pieces of 100 kg
// become one of 6 pieces and 200 kg, which is the weight neither of one piece nor of all. That is an error.
#pragma once

#include "DatumFinder.h"
#include "KnownTokens.h"
#include "RowRule.h"

#include <string>
#include <vector>

namespace mekbom
{
class PiecesRule : public RowRule
{
public:
    // Whether a total adds up the weight, length ... of one piece: not that of an assembly, a phase or the whole model,
    // and no formula that counts something, such as "%Weight*%Quantity".
    static bool isOfOnePiece(const CheckedTuple& total, const KnownTokens& tokens);

    // `total` is what the rule is about, and outlives it. `severity` is how bad it is in this list.
    PiecesRule(const CheckedTuple& total, Finding::eSeverity severity);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    bool standsForSeveral(const VorBomDataRow& row);
    bool hasWhatIsSummed(const VorBomDataRow& row);

    const CheckedTuple& m_total;
    Finding::eSeverity m_severity;
    DatumFinder m_pieces;
    std::vector<DatumFinder> m_summed; // what the total is made of
    long long m_numRows = 0;           // how many rows count wrongly
};
}
