// The lists of a template with groups by %Material and, in these, by %Name:
//
//   tuples()                                     "%GroupBy:%Material", "%SumBy:%Weight", "%GroupBy:%Name" ...
//   tuplesOf(kGroup)                             the first and the third of them
//   groupTokensDownTo(1), groupTokensDownTo(2)   { "%Material" }, { "%Material", "%Name" }
//
// All tuples are listed first, and pointers to them are taken only once the list grows no more.
#include "CheckedTemplate.h"

#include "TemplateLevels.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
CheckedTemplate::CheckedTemplate(const ReportTemplate& reportTemplate) : m_template(reportTemplate)
{
    const TemplateLevels levels(*m_template.pTemplate);
    for (int i = 0; i < levels.count(); ++i)
    {
        m_levels.push_back({ levels.section({ i, false }), levels.section({ i, true }) });
        addTuples(m_levels.back().pHeader, false);
        addTuples(m_levels.back().pFooter, true);
    }
    for (const CheckedTuple& tuple : m_tuples)
        m_tuplesOf[tuple.request.kind].push_back(&tuple);
    for (std::size_t level = 0; level < m_levels.size(); ++level)
        addGroupTokens(level);
}

void CheckedTemplate::addTuples(const VorBomTemplateItem* pSection, bool isFooter)
{
    for (int i = 0; pSection != nullptr && i < pSection->getData().length(); ++i)
    {
        const std::string token = Utf8::toBytes(pSection->getData()[i].token().token());
        m_tuples.push_back({ m_levels.size() - 1, isFooter, pSection, i, token, TokenRequest::of(token) });
    }
}

// A list begins with that of the level around it: parts of one %Name are in one group only as long as the group by
// %Material around them is the same.
void CheckedTemplate::addGroupTokens(std::size_t level)
{
    std::vector<std::string> tokens = level == 0 ? std::vector<std::string>() : m_groupTokens.back();
    for (const CheckedTuple* const pTuple : tuplesOf(TokenRequest::kGroup))
        if (pTuple->level == level && !pTuple->isFooter && !isDeepest(level))
            for (const TokenRequest::Element& element : pTuple->request.elements)
                tokens.push_back(element.token);
    m_groupTokens.push_back(tokens);
}

bool CheckedTemplate::isCount(const CheckedTuple& tuple) const
{
    return TotalTokens::kindOf(m_template.shownTokenOf(*tuple.pSection, tuple.index)) == ColumnTotal::kCount;
}

bool CheckedTemplate::usesSum(const CheckedTuple& tuple) const
{
    const VorString sum = Utf8::toWide(tuple.token);
    const auto isOperand = [&sum](const ColumnTotal::Operand& operand) { return operand.sum == sum; };
    return TotalTokens::isSum(m_template.shownTokenOf(*tuple.pSection, tuple.index)) ||
           std::any_of(m_template.columns.begin(), m_template.columns.end(),
                       [&isOperand](const ColumnStyle& style)
                       {
                           const auto& operands = style.total.operands;
                           return std::any_of(operands.begin(), operands.end(), isOperand);
                       });
}

bool CheckedTemplate::isSummary() const
{
    return m_template.styleOf(deepest().pHeader).isSummary;
}

// Details of the outermost level never merge: the engine compares a line with the one before it in the same group, and
// there is no group around these.
bool CheckedTemplate::mergesEqualLines() const
{
    return (m_template.equalLines == kEqualLinesOpen || m_template.equalLines == kMergeEqualLines) &&
           m_levels.size() > 1 && !isSummary();
}

std::string typeName(const VorBomTemplateItem& section)
{
    // In the order of VorBomTemplateItem::eTemplateItemType.
    static const char* const names[] = { "section",  "template",     "kReportHeader", "kPageHeader",  "kGroupHeader",
                                         "kDetails", "kGroupFooter", "kPageFooter",   "kReportFooter" };
    return names[section.type()];
}

bool contains(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}
}
