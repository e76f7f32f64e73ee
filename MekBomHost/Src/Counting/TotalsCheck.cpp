// Told on rows A 134.4, B 134.4, C 50 under levels 0 report, 1 group by name, 2 details:
//   header 0, header 1    the report and the first group begin at row 0
//   lines of A and B      rows A, B
//   footer 1              rows from 0 on: 268.8, as the footer has to read
//   header 1              the second group begins at row 2
//   line of C, footer 1   rows from 2 on: 50
//   footer 0              rows from 0 on: 318.8
// Sums are long doubles with the rest that each addition leaves carried along, so that their own error does not show.
#include "TotalsCheck.h"

#include "ExactSum.h"
#include "InQuotes.h"
#include "NumberInValue.h"
#include "NumberText.h"
#include "Utf8.h"

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>

namespace mekbom
{
namespace
{
// The sum of two infinities of unlike sign is no number, on either side. A sum of doubles may pass the greatest of them
// where a long double does not: that is for OverflowCheck to tell.
bool agree(long double printed, const ExactSum& sum)
{
    const long double added = sum.value();
    const bool mayPassGreatest = sum.size() > std::numeric_limits<double>::max();
    return (mayPassGreatest && !std::isfinite(printed)) || printed == added ||
           (std::isnan(printed) && std::isnan(added)) ||
           std::fabs(printed - added) <= TotalsCheck::kTolerance * sum.size();
}

// What a header shows, as "HEA200, S355J2"; empty for one that shows nothing.
std::string shownBy(const VorBomTemplateItem& header)
{
    std::string shown;
    for (const VorBomDataTuple& tuple : header.getData())
    {
        const VorString text = tuple.value().asString();
        if (VorBomDataToken::isInvisibleToken(tuple.token().token()) == 0 && text.isEmpty() == 0)
            shown += (shown.empty() ? "" : ", ") + Utf8::toBytes(text);
    }
    return shown;
}
}

// A total may start from a number that the template gives it, "value": 100.0, which the rows then come on top of.
TotalsCheck::TotalsCheck(const ReportTemplate& reportTemplate, VorBomSectionSink& next)
    : SectionRelay(next, kTypedValues)
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        m_levels.emplace_back();
        const VorBomItemBase* const pFooter = pHeader->next();
        if (pFooter == nullptr)
            continue;
        for (const int tuple : reportTemplate.shownTuplesOf(*pFooter))
        {
            const VorBomDataTuple& column = pFooter->getData()[tuple];
            Total total{ tuple, VorString(), numberIn(column.value()).value_or(0) };
            if (column.token().getSummingRequest(total.datum) == 1)
                m_levels.back().totals.push_back(total);
        }
    }
}

// Groups are not looked up: a level's group begins where its header passes, and its rows are all that come until its
// footer does. Of an inner level the begin is overwritten by each group.
void TotalsCheck::takeHeader(const VorBomReportSection& header)
{
    Level& level = m_levels[static_cast<std::size_t>(header.level)];
    level.firstRow = m_rows.size();
    if (&level == &m_levels.back())
        m_rows.push_back(header.pRow);
    m_pMergedRow = nullptr;
    if (!level.totals.empty())
        level.group = shownBy(header.section);
    SectionRelay::takeHeader(header);
}

void TotalsCheck::takeMergedRow(const VorBomDataRow& row)
{
    m_pMergedRow = &row;
    SectionRelay::takeMergedRow(row);
}

void TotalsCheck::takeFooter(const VorBomReportSection& footer)
{
    for (const Total& total : m_levels[static_cast<std::size_t>(footer.level)].totals)
        check(footer, total);
    SectionRelay::takeFooter(footer);
}

// A footer beside the details counts the row of their line even when that is merged: it was made before that showed.
TotalsCheck::Rows TotalsCheck::rowsOf(int level) const
{
    const Level& ofLevel = m_levels[static_cast<std::size_t>(level)];
    if (&ofLevel == &m_levels.back() && m_pMergedRow != nullptr)
        return { &m_pMergedRow, &m_pMergedRow + 1 };
    return { m_rows.data() + ofLevel.firstRow, m_rows.data() + m_rows.size() };
}

// A total that no row has a number for stays what the template says, be that a number or a text. One row with a text in
// place of a number makes the engine report the total, and this check leave it alone.
void TotalsCheck::check(const VorBomReportSection& footer, const Total& total)
{
    ExactSum sum(total.start);
    bool hasAny = false;
    for (const VorBomDataRow* const pRow : rowsOf(footer.level))
    {
        const VorBomDataTuple* const pDatum = pRow->getTupleAt(total.datum);
        if (pDatum == nullptr)
            continue;
        const std::optional<double> number = numberIn(pDatum->value());
        if (!number)
            return;
        sum.add(*number);
        hasAny = true;
    }
    ++m_numChecked;
    const VorBomTypedValue& printed = footer.pValues[total.tuple];
    if (holdsNumber(printed.type) ? !agree(printed.number, sum) : hasAny)
        throw std::runtime_error(mistakeIn(footer, total, sum.value()));
}

std::string TotalsCheck::mistakeIn(const VorBomReportSection& footer, const Total& total, long double sum) const
{
    const Rows rows = rowsOf(footer.level);
    const Level& level = m_levels[static_cast<std::size_t>(footer.level)];
    const VorBomTypedValue& printed = footer.pValues[total.tuple];
    return "the total of " + Utf8::toBytes(total.datum) + " in the footer of level " + std::to_string(footer.level) +
           (level.group.empty() ? "" : ", below " + inQuotes(level.group)) + ", is " +
           (holdsNumber(printed.type) ? numberText(printed.number) : std::string("no number")) +
           ", but adding up its rows (" + std::to_string(rows.end() - rows.begin()) + ") gives " +
           numberText(static_cast<double>(sum));
}
}
