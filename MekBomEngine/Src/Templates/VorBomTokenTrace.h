// Collects the tokens that a template names, each once as far as required, for VorBomTemplate::findUsedTokens.
//
//   VorBomTokenTrace trace(tokens);                      // goes on with what `tokens` holds
//   trace.addTuple(L"%SumBy:%Formula:%A*%B");            // itself, "%Formula:%A*%B", "%A", "%B"
//   trace.addSortingTokens(section.sortingTokens());     // of "%SortAscBy:%Name" the token "%Name"
//   trace.sort();
//
// Tokens are told apart exactly. `tokens` is not owned and not touched by others while the trace lives.
#pragma once

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorStringOrder.h"

#include <set>

class VorBomTokenTrace
{
public:
    explicit VorBomTokenTrace(VorStringArray& tokens);

    // A tuple's token with what it sums or computes; nothing at all when the token is known already.
    // On purpose: the tokens of a formula are added even when they are known.
    // Pinned by VorBomTemplateTest.FormulaTokensMayRepeatInTheTrace.
    void addTuple(const VorString& token);

    // The tokens themselves, those to sort by without their direction prefixes, as far as they are new.
    void addGroupingTokens(const VorStringArray& tokens);
    void addSortingTokens(const VorStringArray& tokens);

    // Puts all tokens in ascending order without regard to case. Tokens that differ in case alone stay in the order in
    // which they were found.
    void sort();

private:
    bool addIfNew(const VorString& token);
    void addTokensOfFormula(VorString token);

    VorStringArray& m_tokens;
    std::set<VorString, VorStringLess> m_known; // ordered: no choice of tokens makes the look-up slow
};
