#include "Report.h"

#include "Fault.h"

#include "VorBomDataTuple.h"
#include "VorBomEvaluator2.h"

#include <utility>

namespace mekbom
{
namespace
{
// The type that the datum has in the first row that has it; kUnknownData when none has.
VorBomDataValue::eBomDataValueType typeInRows(const VorBomData& data, const VorString& token)
{
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        if (const VorBomDataTuple* const pTuple = pRow->getTupleAt(token))
            return pTuple->value().type();
    return VorBomDataValue::kUnknownData;
}
}

Report::Report(ReportTemplate reportTemplate, const VorUnitsManager& units, const DisplaySettings& settings,
               LineContents contents)
    : m_units(units), m_template(std::move(reportTemplate)), m_sections(m_template, contents)
{
    engineTemplate().setUnitsForTokens(&m_units);
    settings.applyTo(*engineTemplate().getBomTemplateUnits());
    engineTemplate().findUsedTokens();
}

std::vector<VorString> Report::filterTokens() const
{
    std::vector<VorString> tokens = m_template.queryFilter.tokens();
    for (const VorString& token : m_where.tokens())
        tokens.push_back(token);
    return tokens;
}

// Filters come before the evaluation: no total may count a row that they leave out.
void Report::evaluate()
{
    if (m_sections.contents().rows)
        m_rowNumbers = RowNumbers(*engineTemplate().getBomData());
    filter();
    VorBomEvaluator2::evaluate(&engineTemplate(), m_sections);
}

void Report::failInFilter(Finding finding, bool isFromTemplate) const
{
    finding.source = "--where";
    if (!isFromTemplate)
        throw Fault(kWrongUsage, finding);
    finding = finding.in(m_template.fileName, m_template.queryFilterPlace.span);
    finding.path = m_template.queryFilterPlace.path;
    throw Fault(kInvalidInput, finding);
}

void Report::filter()
{
    apply(m_template.queryFilter, true);
    apply(m_where, false);
}

void Report::apply(RowFilter& filter, bool isFromTemplate)
{
    if (filter.text().empty())
        return;
    const VorBomData& data = *engineTemplate().getBomData();
    const auto typeOf = [&data](const VorString& token) { return typeInRows(data, token); };
    if (const auto finding = filter.settle(*engineTemplate().getBomTemplateUnits(), typeOf))
        failInFilter(*finding, isFromTemplate);
    m_filtered.push_back({ filter.text(), isFromTemplate, filter.apply(*engineTemplate().getBomData()) });
}
}
