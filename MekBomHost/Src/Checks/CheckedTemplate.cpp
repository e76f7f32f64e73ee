#include "CheckedTemplate.h"

#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const VorBomTemplateItem* sectionOf(const VorBomItemBase* pItem)
{
    return static_cast<const VorBomTemplateItem*>(pItem); // all below the root are sections
}
}

CheckedTemplate::CheckedTemplate(const ReportTemplate& reportTemplate) : m_template(reportTemplate)
{
    for (const VorBomItemBase* pItem = m_template.pTemplate->child(); pItem != nullptr; pItem = pItem->child())
    {
        m_levels.push_back({ sectionOf(pItem), sectionOf(pItem->next()) });
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

// Those of the level above, and its own.
void CheckedTemplate::addGroupTokens(std::size_t level)
{
    std::vector<std::string> tokens = level == 0 ? std::vector<std::string>() : m_groupTokens.back();
    for (const CheckedTuple* const pTuple : tuplesOf(TokenRequest::kGroup))
        if (pTuple->level == level && !pTuple->isFooter && !isDeepest(level))
            for (const TokenRequest::Element& element : pTuple->request.elements)
                tokens.push_back(element.token);
    m_groupTokens.push_back(tokens);
}

bool CheckedTemplate::isSummary() const
{
    return m_template.styleOf(deepest().pHeader).isSummary;
}

// Details of the outermost level never merge.
bool CheckedTemplate::mergesEqualLines() const
{
    return (m_template.equalLines == kEqualLinesOpen || m_template.equalLines == kMergeEqualLines) &&
           m_levels.size() > 1 && !isSummary();
}

std::string typeName(const VorBomTemplateItem& section)
{
    static const char* const names[] = { "section",  "template",     "kReportHeader", "kPageHeader",  "kGroupHeader",
                                         "kDetails", "kGroupFooter", "kPageFooter",   "kReportFooter" };
    return names[section.type()];
}

bool contains(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}
}
