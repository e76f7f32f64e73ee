// The tokens that the evaluated sections of a template ask rows for, each with its place.
//
//   details  "%Weight", "%Formula:%Length*2", footer "%SumBy:%Weight"
//     details, tuple 0   %Weight
//     details, tuple 1   %Length    at 0 of the formula
//     footer, tuple 0    %Weight    added up
//
// What is no token, a caption, is left out, and so is a footer's formula: lines are asked for that, not rows.
#pragma once

#include "VorBomTemplate.h"

#include "MekRoots/Exp/VorString.h"

#include <vector>

class VorBomAskedTokens
{
public:
    struct Asked
    {
        const VorBomTemplateItem* pSection; // not owned
        int tuple;
        VorString token;
        int position; // in the formula; VorBomFinding::kNone for no name in one
        bool isSummed;
    };

    explicit VorBomAskedTokens(const VorBomTemplate& reportTemplate);

    const std::vector<Asked>& all() const { return m_all; }

private:
    void addSection(const VorBomTemplateItem& section, bool isFooter);
    void addTuple(const VorBomTemplateItem& section, int tuple, bool isFooter);
    void addFormula(const VorBomTemplateItem& section, int tuple, const VorString& formula);
    void add(const Asked& asked);

    std::vector<Asked> m_all;
};
