// Rows are written from top to bottom and cannot be returned to, which the order of steps follows. On a sheet of 1,048,576
// rows the last is kept free: it says where the list goes on, if it does.
//
//   row 1          Cutting list
//   row 2          1200000 rows read, 1200000 listed
//   row 3          Profile, Length [mm], ...          the heading row, which each of the sheets has
//   row 4          the first line
//   row 1048576    Continued on the sheet "Cutting list 2"
#include "ListSheets.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "SheetText.h"
#include "WorkbookLimits.h"

#include <optional>

namespace mekbom
{
namespace
{
const double kMostPortraitWidth = 105;   // characters beside each other on the shorter side of a page
const std::size_t kLongestInPrint = 100; // arbitrary: leaves room for the page number in the 255 that there are
const int kBesideWidth = 10;             // 99999.999 and a sign
}

ListSheets::ListSheets(const EvaluatedReport& report, const XlsxSettings& settings, WorkbookFile& file,
                       CellFormats& formats)
    : m_report(report), m_settings(settings), m_file(file), m_formats(formats), m_outline(report.placesWithLines())
{
    placeColumns();
}

void ListSheets::placeColumns()
{
    for (const ReportColumn& column : m_report.columns())
    {
        const SheetColumn sheetColumn(column);
        const bool hasBeside = m_settings.hasNumbersBeside && sheetColumn.hasNumbersBeside();
        const bool isIndented = !column.isAlignedRight && !m_places.empty() &&
                                (m_places.back().column.isAlignedRight() || m_places.back().hasBeside);
        m_places.push_back({ sheetColumn, m_numColumns, hasBeside, isIndented });
        m_numColumns += hasBeside ? 2 : 1;
    }
    if (m_numColumns > WorkbookLimits::kMostColumns)
        throw Fault(
            kOutputNotWritten,
            Finding::of(FindingCodes::kOutputNotWritten, "a list of " + std::to_string(m_numColumns) + " columns",
                        "at most " + std::to_string(WorkbookLimits::kMostColumns) + ", which a workbook holds"));
}

void ListSheets::write()
{
    beginSheet();
    ReportLines lines = m_report.lines();
    ReportLine line;
    while (lines.next(line))
        writeLine(line);
    endSheet();
}

void ListSheets::beginSheet()
{
    ++m_numSheets;
    m_pPen = std::make_unique<SheetPen>(m_file, m_formats, nameOf(m_numSheets), m_numColumns);
    writeAboveList();
    writeHeadings();
}

// Rows of one cell each, which whoever reads the table takes for no heading row. A list that leaves rows out says so
// where a reader begins.
void ListSheets::writeAboveList()
{
    if (!m_report.title().empty())
        m_pPen->writeAcross(m_report.title(), CellLook::kTitle);
    if (m_numSheets > 1)
        m_pPen->writeAcross("Continued from the sheet \"" + nameOf(m_numSheets - 1) + "\"", CellLook::kRemark);
    for (const FilteredRows& filtered : m_report.filteredRows())
        m_pPen->writeAcross("Rows where " + filtered.condition, CellLook::kRemark);
    for (const std::string& line : m_report.foot().lines())
        m_pPen->writeAcross(line, CellLook::kRemark);
}

void ListSheets::writeHeadings()
{
    m_headingRow = m_pPen->numRows();
    m_pPen->beginRow();
    for (const Place& place : m_places)
    {
        const CellLook look = { CellLook::kHeading, place.column.isAlignedRight(), false, place.isIndented };
        m_pPen->writeText(place.index, place.column.heading(), look, place.column.textLimit());
        if (place.hasBeside)
            m_pPen->writeText(place.index + 1, place.column.besideHeading(), { CellLook::kHeading, true });
    }
}

// A label that no column of its line has room for stands above it.
void ListSheets::writeLine(const ReportLine& line)
{
    const bool hasLabelAbove = !line.label.empty() && line.labelColumn < 0;
    if (m_pPen->numRows() + (hasLabelAbove ? 2 : 1) >= m_settings.mostRows)
        continueOnNextSheet();
    const std::uint8_t outlineLevel = m_outline.of(line.place);
    m_look = lookOf(line.place);
    if (hasLabelAbove)
    {
        m_pPen->beginRow(outlineLevel);
        m_pPen->writeText(0, line.label, m_look);
    }
    m_pPen->beginRow(outlineLevel);
    for (std::size_t i = 0; i < m_places.size(); ++i)
    {
        m_look.isRight = m_places[i].column.isAlignedRight();
        m_look.isIndented = m_places[i].isIndented;
        if (line.labelColumn == static_cast<int>(i))
            m_pPen->writeText(m_places[i].index, line.label, m_look, m_places[i].column.textLimit());
        else
            writeCell(m_places[i], line.texts[i], line.values[i]);
    }
}

// Empty cells are left out where nothing would be seen of them.
void ListSheets::writeCell(const Place& place, const ShownText& text, const VorBomTypedValue& value)
{
    if (text.length > 0)
    {
        if (const std::optional<SheetNumber> number = place.column.numberIn(text, value))
            m_pPen->writeNumber(place.index, *number, static_cast<int>(text.length), m_look);
        else
            m_pPen->writeText(place.index, text.view(), m_look, place.column.textLimit());
    }
    else if (m_look.isAcross())
        m_pPen->writeEmpty(place.index, m_look);
    if (place.hasBeside)
        writeBeside(place, value);
}

void ListSheets::writeBeside(const Place& place, const VorBomTypedValue& value)
{
    const CellLook look = { m_look.role, true };
    if (const std::optional<SheetNumber> number = place.column.numberBeside(value))
        m_pPen->writeNumber(place.index + 1, *number, kBesideWidth, look);
    else if (look.isAcross())
        m_pPen->writeEmpty(place.index + 1, look);
}

CellLook ListSheets::lookOf(const LinePlace& place) const
{
    if (m_outline.isDeepest(place))
        return { CellLook::kLine };
    if (place.hasHeader && !place.hasFooter)
        return { CellLook::kGroupHeader };
    return { place.level == 0 && !place.hasHeader ? CellLook::kTotal : CellLook::kGroupTotal };
}

void ListSheets::continueOnNextSheet()
{
    m_pPen->writeAcross("Continued on the sheet \"" + nameOf(m_numSheets + 1) + "\"", CellLook::kRemark);
    endSheet();
    beginSheet();
}

void ListSheets::endSheet()
{
    lxw_worksheet* const pSheet = &m_pPen->sheet();
    worksheet_freeze_panes(pSheet, m_headingRow + 1, 0);
    worksheet_outline_settings(pSheet, LXW_TRUE, m_outline.hasSummariesBelow() ? LXW_TRUE : LXW_FALSE, LXW_TRUE,
                               LXW_FALSE);
    setUpPage(m_pPen->finish());
}

void ListSheets::setUpPage(double width)
{
    lxw_worksheet* const pSheet = &m_pPen->sheet();
    if (width > kMostPortraitWidth)
        worksheet_set_landscape(pSheet);
    WorkbookFile::require(worksheet_repeat_rows(pSheet, m_headingRow, m_headingRow));
    std::string footer = "&RPage &P of &N";
    if (!m_report.title().empty())
        footer = "&L" + SheetText::inPrint(m_report.title(), kLongestInPrint) + footer;
    WorkbookFile::require(worksheet_set_footer(pSheet, footer.c_str()));
}

std::string ListSheets::nameOf(int sheet) const
{
    return SheetText::sheetName(m_report.title(), sheet);
}
}
