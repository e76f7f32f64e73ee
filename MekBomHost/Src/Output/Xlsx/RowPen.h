// The rows of one sheet, from top to bottom and in each from left to right, written straight into the file that the
// library collects them in until it packs the workbook.
//
//   RowPen rows(sheet, 3);
//   rows.begin(2);
//   rows.addText(0, "P1", *pText);        <row r="1" outlineLevel="2"><c r="A1" s="1" t="inlineStr"><is><t>P1</t></is></c>
//   rows.addNumber(2, 8.5, *pNumber);     <c r="C1" s="2"><v>8.5</v></c></row>
//   rows.finish();
#pragma once

#include <xlsxwriter.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class RowPen
{
public:
    // The sheet is not owned and outlives this object; nobody else adds rows to it.
    RowPen(lxw_worksheet& sheet, std::size_t numColumns);

    // How many rows have begun.
    std::uint32_t count() const { return m_numRows; }

    // Begins the next row, at that level of the outline. Throws a Fault of status kOutputNotWritten where a sheet has no
    // room for it.
    void begin(std::uint8_t outlineLevel);

    // A cell of the row; formats are those of the sheet's workbook. A text is UTF-8, and one that a cell can hold.
    void addNumber(std::size_t column, double number, lxw_format& format);
    void addText(std::size_t column, std::string_view text, lxw_format& format);
    void addEmpty(std::size_t column, lxw_format& format);

    // To be called once, last, before the workbook is packed.
    void finish();

private:
    void addPlace(std::size_t column, lxw_format& format);
    void addInteger(std::uint32_t integer);
    void endRow();
    void handOver();

    lxw_worksheet& m_sheet;
    std::vector<std::string> m_columnNames; // "A", "B", ...
    std::uint32_t m_numRows = 0;
    std::string m_tags;        // still to be handed over
    std::size_t m_rowAt = 0;   // in m_tags, of the last row
    std::size_t m_cellsAt = 0; // in m_tags, of its cells
};
}
