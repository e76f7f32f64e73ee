// What one level of a report asks of every row: its header, its footer, and when a row opens a new group.
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
    VorBomLevelPlan(const std::shared_ptr<VorBomRowLayouts>& pLayouts, const VorBomTemplateItem& headerSection,
                    const VorBomTemplateItem* pFooterSection);

    // 1 when the rows agree in what the header groups by; answers as VorBomDataRow::compare being 0.
    int isSameGroup(VorBomDataRow& row, VorBomDataRow& lastRow);

    VorBomHeaderPlan header;
    std::optional<VorBomFooterPlan> footer;

private:
    VorBomColumns m_grouping;
    VorBomColumns m_groupingOfLast;
};
