#include "Report.h"

#include "TableLayout.h"
#include "TableWriter.h"

#include "VorBomEvaluator2.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
Report::Report(ReportTemplate reportTemplate, const VorUnitsManager& units)
    : m_units(units), m_template(std::move(reportTemplate)), m_texts(m_template)
{
    engineTemplate().setUnitsForTokens(&m_units);
    engineTemplate().findUsedTokens();
}

void Report::evaluate()
{
    m_template.queryFilter.apply(*engineTemplate().getBomData());
    for (const VorBomItemBase* pRow = engineTemplate().getBomData()->child(); pRow != nullptr; pRow = pRow->next())
        m_rows.push_back(static_cast<const VorBomDataRow*>(pRow));
    VorBomEvaluator2::evaluate(&engineTemplate(), m_texts);
}

int Report::numMergedRows() const
{
    const auto isMerged = [](const VorBomDataRow* pRow) { return pRow->getUseThisDataForSums() == 0; };
    return static_cast<int>(std::count_if(m_rows.begin(), m_rows.end(), isMerged));
}

void Report::writeTable(TextSink& sink)
{
    const TableLayout layout(m_template, m_units);
    TableWriter(m_template.title, layout, m_texts).write(sink);
}
}
