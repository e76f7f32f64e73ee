// What one level of a report asks of every row: its header, its footer, and when a row opens a new group. All plans of
// an evaluation share one set of positions, so that a row is looked at once for all levels.
//
//   VorBomLevelPlan plan(positions, header, nullptr);   // header "%GroupBy:%Material", rows S235, S235, S355
//   plan.isSameGroup(second, first)   ->  1
//   plan.isSameGroup(third, second)   ->  0
#pragma once

#include "VorBomColumns.h"
#include "VorBomFooterPlan.h"
#include "VorBomHeaderPlan.h"
#include "VorBomTemplateItem.h"

#include <memory>
#include <optional>

class VorBomLevelPlan
{
public:
    // Neither section is owned; the footer may be null.
    VorBomLevelPlan(const std::shared_ptr<VorBomTuplePositions>& pPositions, const VorBomTemplateItem& headerSection,
                    const VorBomTemplateItem* pFooterSection);

    // 1 when the rows agree in what the header groups by; answers as VorBomDataRow::compare being 0.
    int isSameGroup(VorBomDataRow& row, VorBomDataRow& lastRow);

    // Lets both sections keep their values when they are shown, from now on.
    void keepValues();

    // Where rows have what all plans of the evaluation ask for.
    const VorBomTuplePositions& positions() const { return *m_pPositions; }

    VorBomHeaderPlan header;
    std::optional<VorBomFooterPlan> footer;

private:
    std::shared_ptr<VorBomTuplePositions> m_pPositions;
    VorBomColumns m_grouping;
};
