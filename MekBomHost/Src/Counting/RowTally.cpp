// A row that is listed passes as the header of a line, one that is merged as itself. Which rows have a datum the engine
// has found out already, and footers tell: no row is looked at again but those few that are merged. Told on rows P1
// 2.5, P1 2.5 and P2 without a weight, under a footer with "%SumBy:%Weight":
//   header  P1           numListed 1
//   merged  P1 2.5       numMerged 1, of %Weight lost 2.5, numLosing 1
//   header  P2           numListed 2
//   footer               of the rows with a line one has %Weight: numRows 1
#include "RowTally.h"

#include "NumberInValue.h"

#include <algorithm>
#include <optional>

namespace mekbom
{
namespace
{
// Two of the four ways to treat equal lines need all of them handed over: they are counted or kept behind this sink,
// and none may have left the totals by then.
int requestsOf(const ReportTemplate& reportTemplate)
{
    const bool takesAll = reportTemplate.equalLines == kCountEqualLines || reportTemplate.equalLines == kKeepEqualLines;
    return takesAll ? VorBomSectionSink::kEqualLines : VorBomSectionSink::kTextsAlone;
}

// Adds a merged row's value to what the total has lost; false when it loses nothing by it.
bool loses(TotalCount& total, const VorBomDataRow& row)
{
    const VorBomDataTuple* const pDatum = row.getTupleAt(total.datum);
    if (pDatum == nullptr)
        return false;
    const std::optional<double> number = numberIn(pDatum->value());
    if (number.value_or(0) == 0)
        return false;
    total.lost += *number;
    total.isWhole = total.isWhole && pDatum->value().type() == VorBomDataValue::kIntData;
    ++total.numRowsLost;
    return true;
}
}

RowTally::RowTally(const ReportTemplate& reportTemplate, VorBomSectionSink& next)
    : SectionRelay(next, requestsOf(reportTemplate))
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        ++m_lastLevel;
        if (pHeader->next() != nullptr)
            addTotalsOf(reportTemplate, *pHeader->next(), m_lastLevel);
    }
}

// A datum that several footers total is one entry, that of the outermost, since this is met first. Totals of inner
// footers count only for what merged rows take out of them: the outermost one has all rows.
void RowTally::addTotalsOf(const ReportTemplate& reportTemplate, const VorBomItemBase& footer, int level)
{
    std::size_t shownIndex = 0;
    for (const int tuple : reportTemplate.shownTuplesOf(footer))
    {
        TotalCount total;
        total.level = level;
        total.shownIndex = shownIndex++;
        const bool isSum = footer.getData()[tuple].token().getSummingRequest(total.datum) == 1;
        const auto isSame = [&total](const TotalCount& other) { return other.datum == total.datum; };
        if (!isSum || std::any_of(m_counts.totals.begin(), m_counts.totals.end(), isSame))
            continue;
        if (m_outermostLevel < 0)
            m_outermostLevel = level;
        total.isOutermost = level == m_outermostLevel;
        if (total.isOutermost)
            m_outermostTotals.push_back({ m_counts.totals.size(), tuple });
        m_counts.totals.push_back(total);
    }
}

void RowTally::takeHeader(const VorBomReportSection& header)
{
    if (header.level == m_lastLevel)
        ++m_counts.numListed;
    SectionRelay::takeHeader(header);
}

// The footer of a report comes once, that of a group for each of them.
void RowTally::takeFooter(const VorBomReportSection& footer)
{
    if (footer.level == m_outermostLevel)
        for (const OutermostTotal& outermost : m_outermostTotals)
            m_counts.totals[outermost.total].numRows += footer.pNumRowsWithDatum[outermost.tuple];
    SectionRelay::takeFooter(footer);
}

// A row without a weight, or with one of 0, leaves no total poorer; only the others are losing rows, each counted once
// however many totals it is missing from.
void RowTally::takeMergedRow(const VorBomDataRow& row)
{
    ++m_counts.numMerged;
    bool isLosing = false;
    for (TotalCount& total : m_counts.totals)
        isLosing = loses(total, row) || isLosing;
    m_counts.numLosing += isLosing ? 1 : 0;
    SectionRelay::takeMergedRow(row);
}
}
