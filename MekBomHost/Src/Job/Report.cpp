#include "Report.h"

#include "VorBomEvaluator2.h"

#include <utility>

namespace mekbom
{
Report::Report(ReportTemplate reportTemplate, const VorUnitsManager& units, const DisplaySettings& settings,
               LineContents contents)
    : m_units(units), m_template(std::move(reportTemplate)), m_sections(m_template, contents)
{
    engineTemplate().setUnitsForTokens(&m_units);
    settings.applyTo(*engineTemplate().getBomTemplateUnits());
    engineTemplate().findUsedTokens();
}

// The filter comes before the evaluation: no total may count a row that it leaves out.
void Report::evaluate()
{
    m_template.queryFilter.apply(*engineTemplate().getBomData());
    VorBomEvaluator2::evaluate(&engineTemplate(), m_sections);
}
}
