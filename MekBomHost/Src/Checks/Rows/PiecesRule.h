// MB308: a total adds values of one piece while rows stand for several.
//
//   "%SumBy:%Weight" over a row of 4 pieces of 134.4 kg   ->   134.4 kg in place of 537.6
#pragma once

#include "KnownTokens.h"
#include "RowRule.h"

#include "MekRoots/Exp/VorString.h"

#include <string>

namespace mekbom
{
class PiecesRule : public RowRule
{
public:
    static const VorString kPieces; // "%Quantity": how many pieces a row stands for

    // Whether a token is the weight, length ... of one piece, and not that of an assembly, a phase or the whole model.
    static bool isOfOnePiece(const std::string& token, const KnownTokens& tokens);

    // The total that the rule is about, which outlives it.
    explicit PiecesRule(const CheckedTuple& total);

    void see(const VorBomDataRow& row) override;
    void tell(MistakeList& mistakes) const override;

private:
    const CheckedTuple& m_total;
    VorString m_token;
    long long m_numRows = 0; // that stand for several pieces
};
}
