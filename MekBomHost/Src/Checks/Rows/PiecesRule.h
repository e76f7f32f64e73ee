// MB308: a total adds values of one piece while rows stand for several.
//
//   "%SumBy:%Weight" over a row of 4 pieces of 134.4 kg   ->   134.4 kg in place of 537.6
//   "%SumBy:%Formula:%Weight*1.05" over the same row      ->   141.12 kg in place of 564.48
//
// A list that counts equal lines prints such a total on each line, too: there a line of 4 and one of 2 pieces of 100 kg
// become one of 6 pieces and 200 kg, which is the weight neither of one piece nor of all. That is an error.
#pragma once

#include "DatumFinder.h"
#include "KnownTokens.h"
#include "RowRule.h"
#include "TokenNames.h"

#include "MekRoots/Exp/VorString.h"

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

    // The total that the rule is about, which outlives it. `severity` is how bad it is in this list.
    PiecesRule(const CheckedTuple& total, Finding::eSeverity severity);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    bool standsForSeveral(const VorBomDataRow& row);
    bool hasWhatIsSummed(const VorBomDataRow& row);

    const CheckedTuple& m_total;
    Finding::eSeverity m_severity;
    DatumFinder m_pieces = DatumFinder(TokenNames::kWidePieces);
    std::vector<DatumFinder> m_summed; // that the total is made of
    long long m_numRows = 0;           // that stand for several pieces
};
}
