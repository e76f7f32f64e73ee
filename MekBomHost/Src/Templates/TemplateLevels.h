// The sections of a template level by level, as the evaluation takes them: where a section stands says what it does.
//
//   const TemplateLevels levels(*reportTemplate.pTemplate);
//   levels.count()                ->  3 for report header, group header, details
//   levels.section({ 1, true })   ->  the footer of the groups, or null
//   levels.details()              ->  the section that makes a line of each row
//
// The first of siblings opens a level and the second closes it, whatever their types; what stands behind these two, and
// what stands below a footer, is in no level.
#pragma once

#include "SectionPlace.h"

#include "VorBomTemplate.h"
#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/VorString.h"

#include <vector>

namespace mekbom
{
class TemplateLevels
{
public:
    // The template is not owned, outlives this object and keeps its sections meanwhile.
    explicit TemplateLevels(const VorBomTemplate& reportTemplate);

    int count() const { return static_cast<int>(m_headers.size()); }
    bool isDeepest(int level) const { return level + 1 == count(); }

    // Owned by the template; null for a footer that the level has not. The level is one of those there are.
    const VorBomTemplateItem* section(SectionPlace place) const;

    // The header of the deepest level, which is evaluated for every row. There must be a level.
    const VorBomTemplateItem& details() const { return *m_headers.back(); }

    // What the header of that level groups by: "%Material", "%Name". None for a level without such a request.
    std::vector<VorString> groupTokens(int level) const;

    // What it sorts by, with directions as written: "%SortAscBy:%Name", "%Material".
    std::vector<VorString> sortRequests(int level) const;

private:
    std::vector<const VorBomTemplateItem*> m_headers;
};
}
