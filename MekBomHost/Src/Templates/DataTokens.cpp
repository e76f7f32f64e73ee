#include "DataTokens.h"

#include "TokenNames.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomTokenCatalogue.h"

#include <set>

namespace mekbom::DataTokens
{
// %Handle is not among them: rows of a parts list without such a column are numbered, so nobody misses it.
std::vector<std::string> of(VorBomTemplate& reportTemplate)
{
    std::vector<std::string> tokens;
    std::set<std::string> known;
    for (const VorString& token : reportTemplate.getTokenTrace())
    {
        const std::string name = Utf8::toBytes(token);
        if (isDatum(token) && name != TokenNames::kHandle && known.insert(name).second)
            tokens.push_back(name);
    }
    return tokens;
}

// "%GroupBy:%Name" steers, "%Formula:%Length/2" is computed and "%SumBy:%Weight" is added up; the data that these are
// about have entries of their own in the trace.
bool isDatum(const VorString& token)
{
    return VorBomDataToken::isToken(token) == 1 && VorBomDataToken::isInvisibleToken(token) == 0 &&
           VorBomDataToken::isFormula(token) == 0 && token.find(VorBomDataToken::kSumPrefix, 0) != 0;
}

bool canBeColumn(const VorString& token)
{
    return isDatum(token) || VorBomTokenCatalogue::find(token) != nullptr;
}

// sum := "%SumBy:" ( token | formula )
std::set<std::string> computedWith(VorBomTemplate& reportTemplate)
{
    std::set<std::string> tokens;
    for (const VorString& token : reportTemplate.getTokenTrace())
    {
        VorString operand = token;
        const bool isSummed = VorBomDataToken(token).getSummingRequest(operand) == 1;
        if (VorBomDataToken::removeFormulaPrefix(operand) == 1)
            for (const VorString& inFormula : VorBomDataToken::getTokensFromFormula(operand))
                tokens.insert(Utf8::toBytes(inFormula));
        else if (isSummed)
            tokens.insert(Utf8::toBytes(operand));
    }
    return tokens;
}
}
