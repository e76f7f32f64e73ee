// Told on a group header with "%GroupBy:%Material,%Name" and "%Formula:%Weight*2+%Weight":
//   requests    %Material and %Name, as the token splits them
//   formula     %Weight at 0 and at 10: each name is looked for behind the one before
#include "VorBomAskedTokens.h"

#include "VorBomFinding.h"

VorBomAskedTokens::VorBomAskedTokens(const VorBomTemplate& reportTemplate)
{
    for (const VorBomItemBase* pHeader = reportTemplate.child(); pHeader != nullptr; pHeader = pHeader->child())
    {
        addSection(static_cast<const VorBomTemplateItem&>(*pHeader), false);
        if (pHeader->next() != nullptr)
            addSection(static_cast<const VorBomTemplateItem&>(*pHeader->next()), true);
    }
}

void VorBomAskedTokens::addSection(const VorBomTemplateItem& section, bool isFooter)
{
    for (int tuple = 0; tuple < section.getData().length(); ++tuple)
        addTuple(section, tuple, isFooter);
}

// A footer neither groups nor sorts: its requests to do so ask for nothing.
void VorBomAskedTokens::addTuple(const VorBomTemplateItem& section, int tuple, bool isFooter)
{
    const VorBomDataToken& token = section.getData()[tuple].token();
    VorStringArray requested;
    token.getGroupingRequest(requested);
    token.getSortingRequest(requested);
    for (VorString& element : requested)
    {
        int ascending = 0;
        VorBomDataToken::removeSortingPrefix(element, ascending);
        if (!isFooter)
            add({ &section, tuple, element, VorBomFinding::kNone, false });
    }
    if (VorBomDataToken::isInvisibleToken(token.token()) != 0)
        return;
    VorString shown = token.token();
    const bool isSummed = token.getSummingRequest(shown) != 0 && isFooter;
    VorString formula;
    if (VorBomDataToken(shown).getFormulaRequest(formula) == 0)
        add({ &section, tuple, shown, VorBomFinding::kNone, isSummed });
    else if (!isFooter)
        addFormula(section, tuple, formula);
}

void VorBomAskedTokens::addFormula(const VorBomTemplateItem& section, int tuple, const VorString& formula)
{
    int position = 0;
    for (const VorString& name : VorBomDataToken::getTokensFromFormula(formula))
    {
        position = formula.find(name, position);
        add({ &section, tuple, name, position, false });
        position += name.length();
    }
}

void VorBomAskedTokens::add(const Asked& asked)
{
    if (VorBomDataToken::isToken(asked.token) != 0)
        m_all.push_back(asked);
}
