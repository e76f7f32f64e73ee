// Told on a level that groups by %Material and %Length: rows S235 100.0 and S235 100.0000001 are of one group, since
// equality is that of VorBomDataTuple::compareValues. Two rows that both lack %Length agree in that; one that lacks it
// differs from one that has it.
#include "VorBomLevelPlan.h"

namespace
{
std::vector<VorString> toVector(const VorStringArray& texts)
{
    return std::vector<VorString>(texts.begin(), texts.end());
}
}

VorBomLevelPlan::VorBomLevelPlan(const std::shared_ptr<VorBomTuplePositions>& pPositions,
                                 const VorBomTemplateItem& headerSection, const VorBomTemplateItem* pFooterSection)
    : header(pPositions, headerSection),
      m_pPositions(pPositions),
      m_grouping(pPositions, toVector(headerSection.groupingTokens()))
{
    if (pFooterSection != nullptr)
        footer.emplace(pPositions, *pFooterSection);
}

// The row before is looked up again, not remembered: it may have got results of formulas since, and its tuples moved.
int VorBomLevelPlan::isSameGroup(VorBomDataRow& row, VorBomDataRow& lastRow)
{
    const VorBomColumns::Found here = m_grouping.find(row);
    const VorBomColumns::Found before = m_grouping.find(lastRow);
    for (int i = 0; i < m_grouping.count(); ++i)
        if (VorBomDataTuple::compareValues(here[i], before[i]) != 0)
            return 0;
    return 1;
}

void VorBomLevelPlan::keepValues()
{
    header.display().keepValues();
    if (footer.has_value())
        footer->keepValues();
}
