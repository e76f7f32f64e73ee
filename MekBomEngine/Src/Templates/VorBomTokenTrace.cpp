// Told on a trace that holds %A already:
//   addTuple "%SumBy:%A"            "%SumBy:%A" is added; %A is known
//   addTuple "%Formula:%A*%B"       itself is added, then %A once more and %B: those of a formula always are
//   addTuple "%Formula:%A*%B"       known, so nothing is added, and what it computes is not looked at
#include "VorBomTokenTrace.h"

#include "VorBomDataToken.h"

#include <algorithm>

VorBomTokenTrace::VorBomTokenTrace(VorStringArray& tokens) : m_tokens(tokens), m_known(tokens.begin(), tokens.end()) {}

void VorBomTokenTrace::addTuple(const VorString& token)
{
    if (!addIfNew(token))
        return;
    VorString summed;
    if (VorBomDataToken(token).getSummingRequest(summed))
    {
        addIfNew(summed);
        addTokensOfFormula(summed);
    }
    else
        addTokensOfFormula(token);
}

void VorBomTokenTrace::addGroupingTokens(const VorStringArray& tokens)
{
    for (const VorString& token : tokens)
        addIfNew(token);
}

void VorBomTokenTrace::addSortingTokens(const VorStringArray& tokens)
{
    int ascending = 0;
    for (VorString token : tokens)
    {
        VorBomDataToken::removeSortingPrefix(token, ascending);
        addIfNew(token);
    }
}

void VorBomTokenTrace::sort()
{
    std::stable_sort(m_tokens.begin(), m_tokens.end(), VorStringLessNoCase());
}

// The list keeps the order in which tokens were found, the set tells whether they were.
bool VorBomTokenTrace::addIfNew(const VorString& token)
{
    if (!m_known.insert(token).second)
        return false;
    m_tokens.append(token);
    return true;
}

// Adds nothing for a token that is no formula.
void VorBomTokenTrace::addTokensOfFormula(VorString token)
{
    if (!VorBomDataToken::removeFormulaPrefix(token))
        return;
    const VorStringArray tokens = VorBomDataToken::getTokensFromFormula(token);
    m_known.insert(tokens.begin(), tokens.end());
    m_tokens.append(tokens);
}
