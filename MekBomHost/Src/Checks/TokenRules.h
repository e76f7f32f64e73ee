// The rules about tokens and columns, MB501 to MB505. MB506 takes data: WholeNumberRule.
#pragma once

#include "TemplateRules.h"

#include <string>
#include <vector>

namespace mekbom
{
class TokenRules : private TemplateRules
{
public:
    using TemplateRules::TemplateRules;

    // `hasData` leaves MB503 to VaryingRule, which sees whether a token does vary within its groups; but for the pieces
    // of a group, which are told in either case.
    void run(bool hasData);

private:
    void findUnknownTokens(const CheckedTuple& tuple, bool hasData);
    void findUnknownColumn(const CheckedTuple& tuple);
    void findUnknownUnits();
    void findOtherKinds();
    void findMalformedColumn(const CheckedTuple& tuple);
    void findVaryingTokens();
    void findNumbersWithoutUnit();
    void findNumberAsData(const CheckedTuple& tuple);
    void findPiecesOfFirstRow(const CheckedTuple& tuple);

    void addUnknown(const CheckedTuple& tuple, const std::string& token, const std::string& effect);
    bool isUsed(const std::string& token) const;

    int m_numUnknown = 0; // tokens, or their uses
};

// The tuples that show, in a printed header or footer, what need not be the same in all rows of its groups. Left out
// are what the groups are made by, a number in a footer, of which SumRules tells (MB305), pieces, of which TokenRules
// always tells, and what nobody knows (MB501). The details' own line shows one row and is left out, too.
std::vector<const CheckedTuple*> tuplesThatMayVary(const CheckedTemplate& list, const KnownTokens& tokens);
}
