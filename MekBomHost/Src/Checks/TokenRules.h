// The rules about tokens and columns, MB501 to MB505.
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

    // `hasData` leaves it to the rules on data to say what varies within a group.
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

// The tuples that show, in a header or footer, what need not be the same in all rows of its groups: neither what they
// are grouped by, nor a number in a footer, of which SumRules tells, nor the pieces of a row, which no group shares.
std::vector<const CheckedTuple*> tuplesThatMayVary(const CheckedTemplate& list, const KnownTokens& tokens);
}
