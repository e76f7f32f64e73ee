// Writes one sheet, row by row from top to bottom, and makes its columns as wide as what stands in them.
//
//   SheetPen pen(file, formats, "List", 2);
//   pen.beginRow();
//   pen.writeText(0, "HEA200", CellLook());
//   pen.writeNumber(1, *SheetNumber::of("8.57", 8.5744), 4, CellLook());
//   pen.finish();
#pragma once

#include "CellFormats.h"
#include "RowPen.h"
#include "SheetNumber.h"
#include "WorkbookFile.h"

#include <xlsxwriter.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class SheetPen
{
public:
    static constexpr int kUsualLimit = 60; // arbitrary: longer texts go on in a further line of their cell

    // Adds a sheet of that name to the file, to be printed as wide as a page. Neither `file` nor `formats` is owned; both outlive the pen.
    SheetPen(WorkbookFile& file, CellFormats& formats, const std::string& name, std::size_t numColumns);

    lxw_worksheet& sheet() { return m_sheet; }
    std::uint32_t numRows() const { return m_rows.count(); }

    // Begins the next row, at that level of the outline. It must be there before its cells.
    void beginRow(std::uint8_t outlineLevel = 0) { m_rows.begin(outlineLevel); }

    // Writes a text into the row, whatever it looks like: formulas and addresses are texts like others. One that is
    // wider than `limit` goes on in further lines of the cell. Throws a Fault of status kOutputNotWritten for a text
    // that is longer than those of cells.
    void writeText(std::size_t column, std::string_view text, CellLook look, int limit = kUsualLimit);

    // The same for a number; its text takes `width` characters.
    void writeNumber(std::size_t column, const SheetNumber& number, int width, const CellLook& look);

    void writeEmpty(std::size_t column, const CellLook& look);

    // Writes a text into a row of its own, across all columns, of which it widens none. Of several lines each gets a row.
    void writeAcross(std::string_view text, CellLook::eRole role);

    // Completes the rows, sets the widths of the columns and gives the width of all together, in characters.
    double finish();

private:
    void requireLength(std::size_t column, std::string_view text) const;
    void makeRoom(std::size_t column, int width);

    CellFormats& m_formats;
    const std::string m_name;
    lxw_worksheet& m_sheet;
    RowPen m_rows;
    std::vector<int> m_widths; // of the columns, in characters
    std::string m_text;        // as the cell being written holds it; a buffer
};
}
