// Told on a template of the levels H0 F0 and H1 F1, with a third section X beside F0:
//   sections    X stands behind the footer of its level, where nobody looks; what is under F0 or F1 would, too
//   headers     H0 and H1, the deepest: what they group by, and their formulas
//   footers     F0 and F1: each formula that they show must be one of H0 or H1
#include "VorBomTemplateCheck.h"

#include "VorBomAskedTokens.h"
#include "VorBomTokenCatalogue.h"

#include "ExpressionEvaluator/Src/VorExprEvalError.h"
#include "ExpressionEvaluator/Src/VorExpressionEvaluator.h"
#include "ExpressionEvaluator/Src/VorFormulaStatements.h"
#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include "MekRoots/Exp/VorStringHashMap.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace
{
using Item = VorBomTemplateItem;

const Item* asSection(const VorBomItemBase* pItem)
{
    return static_cast<const Item*>(pItem); // children of sections are sections
}

bool areEqual(const VorStringArray& first, const VorStringArray& second)
{
    return std::equal(first.begin(), first.end(), second.begin(), second.end());
}

// Checks one template; the levels are those that an evaluation would see.
class Check
{
public:
    Check(const VorBomTemplate& reportTemplate, VorBomDiagnostics& diagnostics)
        : m_template(reportTemplate), m_diagnostics(diagnostics)
    {
        for (const Item* pHeader = asSection(m_template.child()); pHeader != nullptr;
             pHeader = asSection(pHeader->child()))
            noteFormulas(*pHeader);
    }

    void run()
    {
        for (const Item* pHeader = asSection(m_template.child()); pHeader != nullptr;
             pHeader = asSection(pHeader->child()))
        {
            checkHeader(*pHeader);
            if (const Item* pFooter = asSection(pHeader->next()))
            {
                checkFooter(*pFooter);
                tellNotEvaluated(asSection(pFooter->child()));
                tellNotEvaluated(asSection(pFooter->next()));
            }
        }
    }

private:
    void noteFormulas(const Item& header);
    void checkHeader(const Item& header);
    void checkRequests(const Item& header);
    void checkFormula(const Item& header, int tuple, const VorString& formula);
    void checkFooter(const Item& footer);
    void tellNotEvaluated(const Item* pFirst);
    void tell(VorBomFinding::eKind kind, const Item& section, int tuple = VorBomFinding::kNone,
              const VorString& message = VorString(), int position = VorBomFinding::kNone);

    const VorBomTemplate& m_template;
    VorBomDiagnostics& m_diagnostics;
    VorStringHashMap<int> m_formulas; // that headers and lines compute
};

void Check::noteFormulas(const Item& header)
{
    bool isNew = false;
    for (const VorBomDataTuple& tuple : header.getData())
        if (VorBomDataToken::isFormula(tuple.token().token()) != 0)
            m_formulas.findOrInsert(tuple.token().token(), 1, isNew);
}

void Check::checkHeader(const Item& header)
{
    checkRequests(header);
    VorStringArray grouping;
    for (int tuple = 0; tuple < header.getData().length(); ++tuple)
    {
        const VorBomDataToken& token = header.getData()[tuple].token();
        VorString formula;
        if (token.getFormulaRequest(formula) != 0)
            checkFormula(header, tuple, formula);
        if (header.child() == nullptr && token.getGroupingRequest(grouping) != 0)
            tell(VorBomFinding::kGroupingWithoutEffect, header, tuple);
    }
}

// What the tuples ask for now, beside what was found in them when somebody looked.
void Check::checkRequests(const Item& header)
{
    VorStringArray grouping;
    VorStringArray sorting;
    for (const VorBomDataTuple& tuple : header.getData())
    {
        tuple.token().getGroupingRequest(grouping);
        tuple.token().getSortingRequest(sorting);
    }
    if (!areEqual(grouping, header.groupingTokens()) || !areEqual(sorting, header.sortingTokens()))
        tell(VorBomFinding::kRequestsNotFound, header);
}

// The first statement that does not balance ends the reading, as it ends an evaluation.
void Check::checkFormula(const Item& header, int tuple, const VorString& formula)
{
    if (!VorFormulaText::isFormula({ formula.getStringW(), static_cast<std::size_t>(formula.length()) }))
        return tell(VorBomFinding::kFormulaNotComputed, header, tuple);
    VorFormulaStatements statements(formula.getStringW(), formula.length());
    while (statements.next())
    {
        const int alone = VorExpressionEvaluator::findImpairedParenthesis(statements.current());
        if (alone == VorExprEvalError::kNoPosition)
            continue;
        const auto start = static_cast<int>(statements.current().text() - formula.getStringW());
        return tell(VorBomFinding::kFormulaUnreadable, header, tuple,
                    VorExprEvalError::message(VorExprEvalError::kImpairedParenthesis), start + alone);
    }
}

void Check::checkFooter(const Item& footer)
{
    for (int tuple = 0; tuple < footer.getData().length(); ++tuple)
    {
        VorString shown = footer.getData()[tuple].token().token();
        footer.getData()[tuple].token().getSummingRequest(shown);
        if (VorBomDataToken::isFormula(shown) != 0 && m_formulas.find(shown) == nullptr)
            tell(VorBomFinding::kFormulaOfNoLine, footer, tuple);
    }
}

void Check::tellNotEvaluated(const Item* pFirst)
{
    for (const Item* pItem = pFirst; pItem != nullptr; pItem = asSection(pItem->next()))
        tell(VorBomFinding::kSectionNotEvaluated, *pItem);
}

void Check::tell(VorBomFinding::eKind kind, const Item& section, int tuple, const VorString& message, int position)
{
    VorBomFinding finding;
    finding.kind = kind;
    finding.pSection = &section;
    finding.tuple = tuple;
    if (tuple != VorBomFinding::kNone)
        finding.token = section.getData()[tuple].token().token();
    finding.message = message;
    finding.position = position;
    m_diagnostics.takeFinding(finding);
}
}

void VorBomTemplateCheck::check(const VorBomTemplate& reportTemplate, VorBomDiagnostics& diagnostics)
{
    Check(reportTemplate, diagnostics).run();
}

void VorBomTemplateCheck::checkTokens(const VorBomTemplate& reportTemplate, const VorStringArray& ownTokens,
                                      VorBomDiagnostics& diagnostics)
{
    VorStringHashMap<int> own;
    bool isNew = false;
    for (const VorString& token : ownTokens)
        own.findOrInsert(token, 1, isNew);
    const VorBomAskedTokens askedTokens(reportTemplate);
    for (const VorBomAskedTokens::Asked& asked : askedTokens.all())
    {
        if (VorBomTokenCatalogue::find(asked.token) != nullptr || own.find(asked.token) != nullptr)
            continue;
        VorBomFinding finding;
        finding.kind = VorBomFinding::kTokenNotInCatalogue;
        finding.pSection = asked.pSection;
        finding.tuple = asked.tuple;
        finding.token = asked.token;
        finding.position = asked.position;
        diagnostics.takeFinding(finding);
    }
}
