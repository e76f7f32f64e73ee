#include "Report.h"

#include "EvaluatedReport.h"
#include "ReportFormats.h"

#include "VorBomEvaluator2.h"

#include <utility>

namespace mekbom
{
Report::Report(ReportTemplate reportTemplate, const VorUnitsManager& units)
    : m_units(units), m_template(std::move(reportTemplate)), m_sections(m_template)
{
    engineTemplate().setUnitsForTokens(&m_units);
    engineTemplate().findUsedTokens();
}

void Report::evaluate()
{
    m_template.queryFilter.apply(*engineTemplate().getBomData());
    VorBomEvaluator2::evaluate(&engineTemplate(), m_sections);
}

void Report::writeTable(TextSink& sink)
{
    ReportFormats::createWriter(ReportFormats::kText)->write(EvaluatedReport(m_template, m_units, m_sections), sink);
}
}
