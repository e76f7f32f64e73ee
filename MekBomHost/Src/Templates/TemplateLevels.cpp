// Only headers are kept. The footer of a level is whatever stands right behind its header, and what stands behind the
// footer is never asked for:
//
//   { kReportHeader { kGroupHeader { kDetails }, kGroupFooter }, kReportFooter, kPageFooter }
//
// has three headers, of which the first two have a footer, and a page footer that no level knows.
#include "TemplateLevels.h"

#include "VorBomDataToken.h"

namespace mekbom
{
namespace
{
using Request = int (VorBomDataToken::*)(VorStringArray&) const;

// Asks the tuples and not the section's caches, which are empty in a template that was only read.
std::vector<VorString> requestsOf(const VorBomTemplateItem& section, Request request)
{
    VorStringArray tokens;
    for (const VorBomDataTuple& tuple : section.getData())
        (tuple.token().*request)(tokens);
    return std::vector<VorString>(tokens.begin(), tokens.end());
}

// Children and siblings of sections are sections.
const VorBomTemplateItem* asSection(const VorBomItemBase* pItem)
{
    return static_cast<const VorBomTemplateItem*>(pItem);
}
}

TemplateLevels::TemplateLevels(const VorBomTemplate& reportTemplate)
{
    for (const VorBomItemBase* pItem = reportTemplate.child(); pItem != nullptr; pItem = pItem->child())
        m_headers.push_back(asSection(pItem));
}

const VorBomTemplateItem* TemplateLevels::section(SectionPlace place) const
{
    const VorBomTemplateItem* const pHeader = m_headers[static_cast<std::size_t>(place.level)];
    return place.isFooter ? asSection(pHeader->next()) : pHeader;
}

std::vector<VorString> TemplateLevels::groupTokens(int level) const
{
    return requestsOf(*section({ level, false }), &VorBomDataToken::getGroupingRequest);
}

std::vector<VorString> TemplateLevels::sortRequests(int level) const
{
    return requestsOf(*section({ level, false }), &VorBomDataToken::getSortingRequest);
}
}
