// The sections of a template level by level, as the evaluation takes them: where a section stands says what it does.
//
//   const TemplateLevels levels(*reportTemplate.pTemplate);
//   levels.count()                ->  3 for report header, group header, details
//   levels.section({ 1, true })   ->  the footer of the groups, or null
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

    // Null for a footer that the level has not.
    const VorBomTemplateItem* section(SectionPlace place) const;

    // What the header groups and sorts by, the latter with directions as written: "%SortAscBy:%Name", "%Material".
    std::vector<VorString> groupTokens(int level) const;
    std::vector<VorString> sortRequests(int level) const;

private:
    std::vector<const VorBomTemplateItem*> m_headers;
};
}
