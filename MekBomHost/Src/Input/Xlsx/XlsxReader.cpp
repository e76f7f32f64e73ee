// A sheet has room for more than a table:
//
//        A            B         C           D
//   1    Hall 7                                       one filled cell: a title
//   3    Mark                   Profile     Length    the header row; records have three cells
//   4    B1                     HEA200      6000      B1 | HEA200 | 6000
//   5    B2           check!    HEB300      5500      refused, since nobody says what column B is
//
// The header row is looked for when the sheet is opened, so that what is passed over can be told before anything else
// that is wrong with the table.
#include "XlsxReader.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "NearestWord.h"

#include <algorithm>

namespace mekbom
{
namespace
{
const int kNoColumn = -1;
const std::size_t kMostNamed = 20; // arbitrary: as many sheets as a message can name

// Those of all sheets but one.
std::vector<std::string> namesOf(const std::vector<Workbook::Sheet>& sheets, const std::string& except = std::string())
{
    std::vector<std::string> names;
    for (const Workbook::Sheet& sheet : sheets)
        if (sheet.name != except)
            names.push_back(sheet.name);
    return names;
}

//   "Parts", "Prices" and others
std::string listed(const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), kMostNamed); ++i)
        text += (i == 0 ? "" : ", ") + inQuotes(names[i]);
    return text + (names.size() > kMostNamed ? " and others" : "");
}
}

XlsxReader::XlsxReader(ByteSource& source, const std::string& sheet, FindingList& notes)
    : m_workbook(source.name(), source.readAll()), m_sheet(choose(sheet, notes))
{
    findHeader(notes);
    takeColumns();
}

const Record* XlsxReader::next()
{
    if (!m_isHeaderNext && !m_pRows->next())
    {
        requireUnmerged();
        return nullptr;
    }
    m_isHeaderNext = false;
    fillRecord();
    return &m_record;
}

void XlsxReader::placeRecord(Finding& finding) const
{
    placeCell(0, finding);
}

void XlsxReader::placeCell(std::size_t index, Finding& finding) const
{
    finding.source = name();
    finding.path = m_pRows->placeOf(m_columns[index]);
}

const Workbook::Sheet& XlsxReader::choose(const std::string& sheet, FindingList& notes) const
{
    const std::vector<Workbook::Sheet>& sheets = m_workbook.sheets();
    if (!sheet.empty())
    {
        const auto found = std::find_if(sheets.begin(), sheets.end(),
                                        [&sheet](const Workbook::Sheet& candidate) { return candidate.name == sheet; });
        if (found == sheets.end())
            failWithoutSheet(sheet);
        return *found;
    }
    const auto first = std::find_if(sheets.begin(), sheets.end(),
                                    [](const Workbook::Sheet& candidate) { return !candidate.isHidden; });
    const Workbook::Sheet& chosen = first == sheets.end() ? sheets.front() : *first;
    if (sheets.size() > 1)
        notes.add(Finding::saying(FindingCodes::kSheetChosen,
                                  "sheet " + inQuotes(chosen.name) + " of " + name() +
                                      " is read; --sheet NAME takes another: " + listed(namesOf(sheets, chosen.name))));
    return chosen;
}

void XlsxReader::failWithoutSheet(const std::string& sheet) const
{
    const std::vector<std::string> names = namesOf(m_workbook.sheets());
    Finding finding = Finding::of(FindingCodes::kSheetUnknown, "no such sheet in " + name(),
                                  (names.size() == 1 ? "" : "one of ") + listed(names));
    finding.source = "--sheet " + sheet;
    finding.remedy = NearestWord::question(sheet, names);
    throw Fault(kWrongUsage, finding);
}

// From its first row on.
void XlsxReader::openSheet()
{
    m_pRows.reset();
    m_pPart = m_workbook.open(m_sheet);
    m_pRows = std::make_unique<SheetRows>(*m_pPart, m_workbook, m_sheet.name);
}

// A sheet of a single column is read a second time.
void XlsxReader::findHeader(FindingList& notes)
{
    openSheet();
    int firstRow = 0;
    while (m_pRows->next())
    {
        firstRow = firstRow == 0 ? m_pRows->row() : firstRow;
        if (m_pRows->cells().size() < 2)
            continue;
        if (firstRow < m_pRows->row())
            noteRowsAbove(firstRow, notes);
        return;
    }
    openSheet();
    if (!m_pRows->next())
        failWithoutHeader();
}

void XlsxReader::noteRowsAbove(int firstRow, FindingList& notes) const
{
    notes.add(Finding::saying(FindingCodes::kRowsAboveHeader,
                              name() + ": the header row is " + m_pRows->placeOf(m_pRows->cells().front().column) +
                                  "; what stands above it, from row " + std::to_string(firstRow) + " on, is not read"));
}

void XlsxReader::failWithoutHeader() const
{
    Finding finding = Finding::of(FindingCodes::kNoHeaderRow, "nothing on sheet " + inQuotes(m_sheet.name),
                                  "a header row with column names");
    finding.source = name();
    const std::vector<std::string> others = namesOf(m_workbook.sheets(), m_sheet.name);
    finding.remedy = others.empty() ? "" : "--sheet NAME takes another: " + listed(others);
    throw Fault(kInvalidInput, finding);
}

void XlsxReader::takeColumns()
{
    m_headerRow = m_pRows->row();
    for (const SheetRows::Cell& cell : m_pRows->cells())
    {
        m_indices.resize(static_cast<std::size_t>(cell.column) + 1, kNoColumn);
        m_indices.back() = static_cast<int>(m_columns.size());
        m_columns.push_back(cell.column);
    }
}

void XlsxReader::fillRecord()
{
    m_record.assign(m_columns.size(), RecordCell());
    for (const SheetRows::Cell& cell : m_pRows->cells())
    {
        const auto column = static_cast<std::size_t>(cell.column);
        if (column >= m_indices.size() || m_indices[column] == kNoColumn)
            failWithoutHeading(cell);
        m_record[static_cast<std::size_t>(m_indices[column])] = cell.value;
    }
}
// What a heading would say of the cell is not known, and a remark beside the table is easily moved.
void XlsxReader::failWithoutHeading(const SheetRows::Cell& cell) const
{
    const std::string heading = CellName::of({ m_headerRow, cell.column });
    Finding finding = Finding::of(FindingCodes::kCellWithoutHeading,
                                  cell.value.isRefused() ? cell.value.refusal().found : inQuotes(cell.value.asText()),
                                  "an empty cell, since " + heading + " names no column");
    finding.source = name();
    finding.path = m_pRows->placeOf(cell.column);
    throw Fault(kInvalidInput, finding);
}

// Known only at the end of the sheet, where merged cells are listed.
void XlsxReader::requireUnmerged() const
{
    for (const SheetRows::Block& block : m_pRows->mergedBlocks())
        if (block.last.row > m_headerRow && hasHeading(block))
        {
            Finding finding = Finding::of(FindingCodes::kCellsMerged, "merged cells", "a value in each row");
            finding.source = name();
            finding.path = CellName::inSheet(m_sheet.name, CellName::of(block.first) + ":" + CellName::of(block.last));
            finding.remedy = "unmerge them and fill each";
            throw Fault(kInvalidInput, finding);
        }
}

bool XlsxReader::hasHeading(const SheetRows::Block& block) const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [&block](int column) { return block.first.column <= column && column <= block.last.column; });
}
}
