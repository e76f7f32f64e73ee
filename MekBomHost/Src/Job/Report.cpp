// The rows of an evaluated report pass through a chain of sinks, each of which sees what the one before it hands on:
//
//   RowTally      counts rows: those that are listed and those that are merged
//   TotalsCheck   adds up every total a second time, if that is wanted
//   OtherTotals   puts means and the like into footers, if a column wants them
//   EqualLines    makes one line of those that read alike, if the template says "count"
//   OverflowCheck looks for numbers that have become none
//   GroupOrder    has groups printed in the order of a total, if a level wants that
//   PackedSections, which keeps what is printed
//
// The chain is made from its end, as each sink is given the one that it hands on to. RowTally stands in front, because
// EqualLines would show it one line where there were three rows.
#include "Report.h"

#include "ColumnCheck.h"
#include "EqualLines.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "FormulaResults.h"
#include "GroupOrder.h"
#include "OtherTotals.h"
#include "OverflowCheck.h"
#include "ProgressRelay.h"
#include "RowTally.h"
#include "RowTree.h"
#include "SummaryTemplate.h"
#include "TokenNames.h"
#include "TokenQuantities.h"
#include "TotalsCheck.h"

#include "VorBomEvaluator2.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace mekbom
{
namespace
{
int numRowsOf(const VorBomData& data)
{
    int number = 0;
    for (const VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        ++number;
    return number;
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

std::vector<Finding> Report::columnErrors() const
{
    const FormulaResults formulas(m_template);
    const TokenQuantities quantities(*m_template.pTemplate->getBomData(), *m_template.pTemplate->getBomTemplateUnits(),
                                     formulas);
    std::vector<Finding> findings = ColumnCheck::errorsOf(m_template, ReportLayout(m_template, m_units), quantities);
    for (Finding& finding : findings)
        finding.source = m_template.fileName;
    return findings;
}

// What is kept of the evaluation depends on what is printed.
void Report::summarize()
{
    if (!SummaryTemplate::reduce(m_template))
    {
        Finding finding = Finding::stating(FindingCodes::kNothingToSummarise, "the list has no groups and no totals");
        finding.source = "--summary";
        throw Fault(kWrongUsage, finding);
    }
    m_sections = PackedSections(m_template, m_sections.contents());
}

// Filters come before the evaluation: no total may count a row that they leave out. What rows hold decides how numbers
// are written and texts are sorted, so that this waits for them, too.
void Report::evaluate()
{
    if (!m_isFiltered)
        filter();
    prepareNumbers();
    evaluateRows();
    if (m_checksTotals)
        checkRows();
}

// What a column shows must be known before the first number is written: the kind of each formula, the order that texts
// are sorted in, and how many decimals its numbers have, which the rows tell.
void Report::prepareNumbers()
{
    const FormulaResults formulas(m_template);
    formulas.registerWith(*engineTemplate().getBomTemplateUnits());
    const TokenQuantities quantities(*engineTemplate().getBomData(), *engineTemplate().getBomTemplateUnits(), formulas);
    setOrders(quantities);
    m_pFormats =
        std::make_unique<NumberFormats>(m_template, ReportLayout(m_template, m_units), quantities, m_units, m_settings);
    m_pFormats->setFor(engineTemplate());
}

void Report::evaluateRows()
{
    std::optional<GroupOrder> order;
    std::optional<EqualLines> equalLines;
    std::optional<OtherTotals> otherTotals;
    std::optional<TotalsCheck> check;
    VorBomSectionSink* pSink = &m_sections;
    if (GroupOrder::isIn(m_template))
        pSink = &order.emplace(m_template, m_sections);
    OverflowCheck overflows(m_template, *pSink);
    pSink = &overflows;
    if (m_template.equalLines == kCountEqualLines)
        pSink = &equalLines.emplace(m_template, *pSink);
    if (OtherTotals::areIn(m_template))
        pSink = &otherTotals.emplace(m_template, *pSink);
    if (m_checksTotals)
        pSink = &check.emplace(m_template, *pSink);
    RowTally tally(m_template, *pSink);
    pSink = &tally;
    std::optional<ProgressRelay> progress;
    if (m_pProgress != nullptr)
        pSink = &progress.emplace(tally, *m_pProgress);
    VorBomEvaluator2::evaluate(&engineTemplate(), *pSink);
    if (equalLines)
    {
        equalLines->finish();
        m_facts.numRowsInOtherLines = equalLines->numRowsAdded();
    }
    if (order)
        order->finish();
    m_facts.rows = tally.counts();
    m_mistakes = overflows.findings();
    if (equalLines)
        addMistakes(equalLines->findings());
    if (otherTotals)
        addMistakes(otherTotals->findings());
}

void Report::addMistakes(const std::vector<Finding>& mistakes)
{
    m_mistakes.insert(m_mistakes.end(), mistakes.begin(), mistakes.end());
}

// Each row is replaced by its parts, filtered out, merged into the line of another one, or listed; of 8 rows
// 1 + 2 + 1 + 4 are all. A difference
// is a fault of the program and not of its user, so that it ends the run as one.
void Report::checkRows() const
{
    int numKnown = m_facts.rows.numListed + m_facts.rows.numMerged + m_facts.numParents;
    for (const FilteredRows& filtered : m_facts.filtered)
        numKnown += filtered.numRows;
    if (numKnown != m_facts.numRowsRead)
        throw std::runtime_error("of " + std::to_string(m_facts.numRowsRead) + " rows read " +
                                 std::to_string(numKnown) + " were filtered out, merged or listed");
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

std::optional<Finding> Report::multiplyPieces(const PieceChoices& choices)
{
    countRows();
    RowTree tree(*engineTemplate().getBomData());
    if (!choices.isFlattened)
        if (auto nesting = tree.nesting())
            return nesting;
    if (!choices.changePieces())
        return std::nullopt;
    if (auto mistake = tree.multiply(choices, engineTemplate().isTokenRequired(TokenNames::kWideFactors) != 0))
        return mistake;
    auto warning = tree.weighingElse();
    m_facts.numParents = tree.removeParents();
    m_facts.numSets = choices.numSets;
    return warning;
}

void Report::filter()
{
    countRows();
    apply(m_template.queryFilter, true);
    apply(m_where, false);
    m_isFiltered = true;
}

// Rows get their numbers before any of them is left out: a user counts the lines of the file.
void Report::countRows()
{
    if (m_isCounted)
        return;
    if (m_sections.contents().rows)
        m_rowNumbers = RowNumbers(*engineTemplate().getBomData());
    m_facts.numRowsRead = numRowsOf(*engineTemplate().getBomData());
    m_isCounted = true;
}

// A filter learns here what it compares: only with rows is it known whether "%Mark > 5" is about numbers or texts.
void Report::apply(RowFilter& filter, bool isFromTemplate)
{
    if (filter.text().empty())
        return;
    const VorBomData& data = *engineTemplate().getBomData();
    const auto typeOf = [&data](const VorString& token) { return TokenQuantities::typeInRows(data, token); };
    if (const auto finding = filter.settle(*engineTemplate().getBomTemplateUnits(), typeOf))
        failInFilter(*finding, isFromTemplate);
    m_facts.filtered.push_back({ filter.text(), isFromTemplate, filter.apply(*engineTemplate().getBomData()) });
}
}
