#include "Report.h"

#include "TableLayout.h"
#include "TableWriter.h"
#include "Utf8.h"

#include "VorBomEvaluator2.h"

#include <utility>

namespace mekbom
{
Report::Report(ReportTemplate reportTemplate, const VorUnitsManager& units) : m_template(std::move(reportTemplate))
{
    engineTemplate().setUnitsForTokens(&units);
    engineTemplate().findUsedTokens();
}

void Report::evaluate()
{
    m_template.queryFilter.apply(*engineTemplate().getBomData());
    VorBomEvaluator2::evaluate(&engineTemplate(), &m_result);
}

int Report::numMergedRows() const
{
    int numRows = 0;
    for (const VorBomItemBase* pRow = m_template.pTemplate->getBomData()->child(); pRow != nullptr; pRow = pRow->next())
        numRows += static_cast<const VorBomDataRow*>(pRow)->getUseThisDataForSums() == 0 ? 1 : 0;
    return numRows;
}

std::string Report::list()
{
    VorString text;
    m_result.list(text, 0, 1, 1);
    return Utf8::toBytes(text) + "\n";
}

void Report::writeTable(TextSink& sink)
{
    const TableLayout layout(m_template, *engineTemplate().getBomData());
    TableWriter(m_template.title, layout, m_result).write(sink);
}
}
