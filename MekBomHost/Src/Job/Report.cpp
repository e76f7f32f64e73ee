#include "Report.h"

#include "ColumnCheck.h"
#include "Fault.h"
#include "FormulaResults.h"
#include "TokenQuantities.h"

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
    : m_units(units), m_settings(settings), m_template(std::move(reportTemplate)), m_sections(m_template, contents)
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

std::vector<Finding> Report::numberErrors() const
{
    const FormulaResults formulas(m_template);
    const TokenQuantities quantities(*m_template.pTemplate->getBomData(), *m_template.pTemplate->getBomTemplateUnits(),
                                     formulas);
    std::vector<Finding> findings = formulas.undeclared();
    for (const Finding& finding : ColumnCheck::errorsOf(m_template, ReportLayout(m_template, m_units), quantities))
        findings.push_back(finding);
    for (Finding& finding : findings)
        finding.source = m_template.fileName;
    return findings;
}

// Filters come before the evaluation: no total may count a row that they leave out. What rows hold decides how numbers
// are written and texts are sorted, so that this waits for them, too.
void Report::evaluate()
{
    if (m_sections.contents().rows)
        m_rowNumbers = RowNumbers(*engineTemplate().getBomData());
    filter();
    const FormulaResults formulas(m_template);
    formulas.registerWith(*engineTemplate().getBomTemplateUnits());
    const TokenQuantities quantities(*engineTemplate().getBomData(), *engineTemplate().getBomTemplateUnits(), formulas);
    setOrders(quantities);
    m_pFormats =
        std::make_unique<NumberFormats>(m_template, ReportLayout(m_template, m_units), quantities, m_units, m_settings);
    m_pFormats->setFor(engineTemplate());
    VorBomEvaluator2::evaluate(&engineTemplate(), m_sections);
}

// Numbers are sorted by value whatever a column says: "2" before "10" is what natural order means.
void Report::setOrders(const TokenQuantities& quantities)
{
    for (const ColumnStyle& style : m_template.columns)
        if (style.order != ColumnStyle::kByCatalogue && !quantities.isNumeric(style.token))
            engineTemplate().setSortType(style.token, style.order == ColumnStyle::kNatural
                                                          ? VorBomDataToken::kSortAlphanumeric
                                                          : VorBomDataToken::kSortString);
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
