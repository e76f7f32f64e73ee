// The rows of a sheet, each with those of its cells that hold something.
//
//   SheetRows rows(part, workbook, "Parts");
//   while (rows.next())
//       for (const SheetRows::Cell& cell : rows.cells())
//           use(rows.placeOf(cell.column), cell.value);       "Parts!C7", 134.4
//
// Numbers are as they are stored, also those that formulas gave; one whose format shows a unit of the catalogue is a
// text, "134.4 kg". Cells whose number is not the one that is shown, dates and percentages, and those that hold none,
// errors and formulas that nobody has computed yet, are refused ones (RecordCell). Rows without any cell are passed over.
#pragma once

#include "ByteSource.h"
#include "CellName.h"
#include "Finding.h"
#include "RecordCell.h"
#include "Workbook.h"
#include "XmlElements.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class SheetRows
{
public:
    struct Cell
    {
        int column; // from 0
        RecordCell value;
    };

    // Cells that are merged into one, which has the value of the first.
    struct Block
    {
        CellPlace first;
        CellPlace last;
    };

    // `part` is that of the sheet; it and the workbook are not owned and outlive this object.
    SheetRows(ByteSource& part, const Workbook& workbook, std::string sheet);

    // False at the end. Throws a Fault of status kInvalidInput where the sheet is damaged.
    bool next();

    // Those of the row read last, by their columns. They are good until the next call.
    const std::vector<Cell>& cells() const { return m_cells; }
    int row() const { return m_row; } // from 1; 0 before the first

    // The name of a cell of that row.
    std::string placeOf(int column) const { return CellName::inSheet(m_sheet, CellName::of({ m_row, column })); }

    // Those that reach over several rows, known once next() has been false.
    const std::vector<Block>& mergedBlocks() const { return m_mergedBlocks; }

private:
    struct CellParts;

    void beginRow(const pugi::xml_node& row);
    void readRow(const pugi::xml_node& row);
    void moveTo(std::string_view name);
    RecordCell valueOf(const CellParts& parts);
    RecordCell sharedText(std::string_view number) const;
    RecordCell numberIn(std::string_view text, std::string_view style);
    RecordCell formatted(double number, const NumberFormat& format);
    RecordCell checked(std::string_view text) const;
    RecordCell refused(Finding finding);
    std::string& newText() { return m_texts.emplace_back(); }
    void takeMerged(const pugi::xml_node& merged);
    [[noreturn]] void failInCell(const std::string& found, const std::string& expected) const;
    [[noreturn]] void failInSheet(const std::string& found, const std::string& expected) const;

    XmlElements m_elements;
    const Workbook& m_workbook;
    WorkbookPart m_part;
    std::string m_sheet;
    int m_row = 0;
    int m_column = -1; // of the cell that is being read
    std::vector<Cell> m_cells;
    std::string m_buffer;
    std::deque<std::string> m_texts; // of these cells, where they are neither shared nor stand in the part as they are
    std::deque<Finding> m_refusals;  // why some of these cells are refused
    std::vector<Block> m_mergedBlocks;
};
}
