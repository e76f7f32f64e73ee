// A line of details whose number is not that of its first row stands for several rows: they were counted into it, and
// their numbers are added up. A merged row adds nothing, so that the line still has the number of its first one.
//
//   "count", rows 2 and 1 piece      the line says 3, its first row 2     ->   2 + 1 = 3
//   "merge", rows 2 and 2 pieces     the line says 2, its first row 2     ->   nothing to say
#include "CellsInWords.h"

#include "Addition.h"
#include "InQuotes.h"
#include "ListNumbers.h"
#include "NumberInValue.h"
#include "TotalInWords.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"

namespace mekbom
{
CellsInWords::CellsInWords(const ExplainedReport& report)
    : m_report(report), m_levels(*report.reportTemplate.pTemplate), m_data(report)
{
}

std::string CellsInWords::ofHeader(const ReportLine& line) const
{
    std::string text;
    if (line.place.hasHeader)
        for (const Cell& cell : cellsOf(line, false))
            text += inHeader(cell, line.headerRows);
    return text;
}

std::string CellsInWords::ofFooter(const ReportLine& line) const
{
    std::string text;
    if (line.place.hasFooter)
        for (const Cell& cell : cellsOf(line, true))
            text += inFooter(cell, line.footerRows);
    return text;
}

std::vector<CellsInWords::Cell> CellsInWords::cellsOf(const ReportLine& line, bool isFooter) const
{
    const SectionPlace place{ line.place.level, isFooter };
    const VorBomTemplateItem& section = *m_levels.section(place);
    const std::vector<int> tuples = m_report.reportTemplate.shownTuplesOf(section);
    const std::vector<int>& columns = m_report.evaluated.layout().section(place).columns;
    std::vector<Cell> cells;
    // The layout has a column for each tuple that is shown, in their order.
    for (std::size_t i = 0; i < tuples.size(); ++i)
    {
        const auto column = static_cast<std::size_t>(columns[i]);
        cells.push_back({ section, tuples[i], m_report.evaluated.columns()[column],
                          std::string(line.texts[column].view()), line.values[column] });
    }
    return cells;
}

// Nothing is said of a cell that shows what its row has. The numbers are compared without a tolerance: one that was
// only handed on is the row's to the last digit, and any other was added up.
std::string CellsInWords::inHeader(const Cell& cell, const RowList& rows) const
{
    const VorBomDataRow& row = **rows.begin();
    const VorString& token = cell.tupleInTemplate().token().token();
    const std::optional<double> ofRow = RowData::numberIn(row, token);
    if (holdsNumber(cell.value.type) && ofRow && *ofRow != cell.value.number)
        return addedUp(cell, rows, token, 0);
    if (VorBomDataToken::isFormula(token) == 1)
        return computed(cell, row);
    if (row.getTupleAt(token) == nullptr && !cell.text.empty())
        return cell.column.label + ": " + inQuotes(cell.text) + " is the template's, the row has none\n";
    return std::string();
}

// The summands are read from the rows again. A starting value of the template comes first, as the engine adds to it;
// rows without the datum add nothing, and are not written as 0.
std::string CellsInWords::addedUp(const Cell& cell, const RowList& rows, const VorString& token, double start) const
{
    const ListNumbers numbers(m_report, cell.section, cell.tuple, cell.value, cell.column);
    Addition addition(numbers);
    if (start != 0)
        addition.add(start);
    for (const VorBomDataRow* const pRow : rows)
        if (const std::optional<double> number = RowData::numberIn(*pRow, token))
            addition.add(*number);
    VorString summed = token;
    VorBomDataToken::removeFormulaPrefix(summed);
    return cell.column.label + ", " + Utf8::toBytes(summed) + " added up: " + addition.text(cell.text) +
           (start != 0 ? ", the first from the template" : "") + "\n";
}

// The engine writes a result into the row, so a row without it is one that the formula failed on, or was not computed
// for.
std::string CellsInWords::computed(const Cell& cell, const VorBomDataRow& row) const
{
    VorString formula = cell.tupleInTemplate().token().token();
    VorBomDataToken::removeFormulaPrefix(formula);
    const std::string what = cell.column.label + ": " + Utf8::toBytes(formula);
    const std::string operands = m_data.operandsOf(row, formula, cell.section);
    const std::string with = operands.empty() ? "" : ", with " + operands + ",";
    if (row.getTupleAt(cell.tupleInTemplate().token().token()) == nullptr)
        return what + with + " was not computed; " + inQuotes(cell.text) + " is the template's\n";
    const ListNumbers numbers(m_report, cell.section, cell.tuple, cell.value, cell.column);
    return what + with + " is " + numbers.withUnit(cell.text) + "\n";
}

// "Length: the largest %Length of 12 rows is 6000 mm"
std::string CellsInWords::otherTotal(const Cell& cell, const RowList& rows, const VorString& shown) const
{
    const ColumnStyle& style = *m_report.reportTemplate.styleOfTuple(cell.section, cell.tuple);
    const ListNumbers numbers(m_report, cell.section, cell.tuple, cell.value, cell.column);
    const std::string value = cell.text.empty() ? "not to be had" : numbers.withUnit(cell.text);
    return cell.column.label + ": " + totalInWords(style.total, TotalTokens::datumOf(shown)) + ", over " +
           std::to_string(rows.size()) + (rows.size() == 1 ? " row, is " : " rows, is ") + value + "\n";
}

// Only numbers are added up. A footer that shows a datum, or sums a text, has that of the last row counted.
std::string CellsInWords::inFooter(const Cell& cell, const RowList& rows) const
{
    const VorString shown = m_report.reportTemplate.shownTokenOf(cell.section, cell.tuple);
    if (TotalTokens::kindOf(shown) != ColumnTotal::kSum)
        return otherTotal(cell, rows, shown);
    VorString token = cell.tupleInTemplate().token().token();
    const bool isSum = cell.tupleInTemplate().token().getSummingRequest(token) == 1;
    if (isSum && holdsNumber(cell.value.type))
        return addedUp(cell, rows, token, numberIn(cell.tupleInTemplate().value()).value_or(0));
    if (cell.text.empty())
        return cell.column.label + ": no row counted has it\n";
    return cell.column.label + ": " + inQuotes(cell.text) + " of the last row counted that has it\n";
}
}
