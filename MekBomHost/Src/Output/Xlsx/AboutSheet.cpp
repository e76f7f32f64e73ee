#include "AboutSheet.h"

#include "SheetPen.h"
#include "SheetText.h"

#include <string>

namespace mekbom::AboutSheet
{
namespace
{
const std::size_t kNumColumns = 2;

// Rows of two cells: what it is about, and what there is to say.
class AboutPen
{
public:
    AboutPen(WorkbookFile& file, CellFormats& formats)
        : m_pen(file, formats, std::string(SheetText::kAbout), kNumColumns)
    {
    }

    void addHeading(const std::string& what, const std::string& value)
    {
        if (m_pen.numRows() > 0)
            m_pen.beginRow();
        addTexts(what, value, { CellLook::kHeading });
    }

    void add(const std::string& what, const std::string& text) { addTexts(what, text, CellLook()); }

    void add(const std::string& what, std::size_t number)
    {
        m_pen.beginRow();
        m_pen.writeText(0, what, CellLook());
        const std::string text = std::to_string(number);
        const SheetNumber cell = { static_cast<double>(number), 0, 1 };
        m_pen.writeNumber(1, cell, static_cast<int>(text.size()), CellLook());
    }

    void addIfAny(const std::string& what, int number)
    {
        if (number > 0)
            add(what, static_cast<std::size_t>(number));
    }

    void addRemark(const std::string& text) { m_pen.writeAcross(text, CellLook::kRemark); }

    void finish() { m_pen.finish(); }

private:
    void addTexts(const std::string& what, const std::string& text, const CellLook& look)
    {
        m_pen.beginRow();
        m_pen.writeText(0, what, look);
        m_pen.writeText(1, text, look);
    }

    SheetPen m_pen;
};

void addRows(const ListFoot& foot, AboutPen& pen)
{
    pen.add("Rows read", static_cast<std::size_t>(foot.numRead));
    for (const FilteredRows& filter : foot.filtered)
        pen.add("Filtered out by " + filter.condition, static_cast<std::size_t>(filter.numRows));
    pen.addIfAny("Merged into equal lines", foot.numMerged);
    pen.add("Rows listed", static_cast<std::size_t>(foot.numListed));
    pen.add("Lines", static_cast<std::size_t>(foot.numLines));
    pen.addIfAny("Rows without any cell, passed over", foot.numEmptyRows);
    pen.addIfAny("Warnings", static_cast<int>(foot.numWarnings));
    if (foot.countsRowsAsPieces)
        pen.add("Pieces", "each row counts as one: there is no column %Quantity");
    if (foot.areUnitsAssumed)
        pen.add("Units of the data", "lengths and weights without a unit were read as mm and kg");
}

void addTotals(const ListFoot& foot, AboutPen& pen)
{
    if (!foot.totals.empty())
        pen.addHeading("Total", "Listed rows that have a value");
    for (const ListFoot::Total& total : foot.totals)
        pen.add(total.label, static_cast<std::size_t>(total.numRows));
    if (!foot.losses.empty())
        pen.addHeading("Total", "Left out with merged rows");
    for (const ListFoot::Loss& loss : foot.losses)
        pen.add(loss.label, loss.amount);
}

// "kg (weight)"; empty for texts and for numbers without a unit.
std::string unitOf(const ReportColumn& column)
{
    const std::string kind = column.pUnitKind == nullptr ? "" : " (" + std::string(column.pUnitKind->name) + ")";
    return column.unitSymbol + kind;
}

void addColumns(const EvaluatedReport& report, AboutPen& pen)
{
    pen.addHeading("Column", "Unit");
    for (const ReportColumn& column : report.columns())
        pen.add(column.heading(), unitOf(column));
}
}

void write(const EvaluatedReport& report, WorkbookFile& file, CellFormats& formats)
{
    AboutPen pen(file, formats);
    pen.addHeading("List", report.title());
    if (report.foot().isKnown)
    {
        addRows(report.foot(), pen);
        addTotals(report.foot(), pen);
    }
    pen.addHeading("In words", "");
    for (const std::string& line : report.foot().lines())
        pen.addRemark(line);
    addColumns(report, pen);
    pen.addHeading("Numbers", "");
    pen.addRemark("Cells show what the list prints and hold more decimals where there are more.");
    pen.addRemark("Totals are values, as they were computed when the list was made: they follow no change of a cell.");
    pen.finish();
}
}
