#include "Report.h"

#include "TableLayout.h"
#include "TableWriter.h"

#include "VorBomEvaluator2.h"

#include <utility>

namespace mekbom
{
Report::Report(ReportTemplate reportTemplate, const VorUnitsManager& units, const DisplaySettings& settings)
    : m_units(units), m_template(std::move(reportTemplate)), m_texts(m_template)
{
    engineTemplate().setUnitsForTokens(&m_units);
    settings.applyTo(*engineTemplate().getBomTemplateUnits());
    engineTemplate().findUsedTokens();
}

void Report::evaluate()
{
    VorBomData& data = *engineTemplate().getBomData();
    m_template.queryFilter.apply(data);
    int numRows = 0;
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        ++numRows;
    if (VorBomEvaluator2::evaluate(&engineTemplate(), m_texts) == 1)
        m_numMergedRows = numRows - m_texts.numDetails(); // each row has its section unless it was merged
}

void Report::writeTable(TextSink& sink)
{
    const TableLayout layout(m_template, m_units);
    TableWriter(m_template.title, layout, m_texts).write(sink);
}
}
