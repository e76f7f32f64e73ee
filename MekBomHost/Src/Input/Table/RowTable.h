// Rows that a program has in memory, by columns that are headed as those of a parts list.
//
//   RowTable table("model", { "Name", "Length [mm]" });
//   table.add({ RecordCell(std::string_view("HEA200")), RecordCell(6000.0) });
//   table.numRows()        ->  1
//   table.cell(0, 1)       ->  the number 6000
//
// Keeps copies of all texts, one behind the other, and 16 bytes for each cell.
#pragma once

#include "RecordCell.h"
#include "RecordSource.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class RowTable
{
public:
    // `name` is what messages call it.
    RowTable(std::string name, std::vector<std::string> headings)
        : m_name(std::move(name)), m_headings(std::move(headings))
    {
    }

    const std::string& name() const { return m_name; }
    const std::vector<std::string>& headings() const { return m_headings; }
    std::size_t numRows() const { return m_headings.empty() ? 0 : m_cells.size() / m_headings.size(); }

    // Appends a row with a cell for each column: texts, numbers or nothing. Throws a Fault of status kInvalidInput, and
    // leaves the table as it was, for a text that is not UTF-8 or has a zero byte, and for a number that is not finite.
    // Where no memory is left the table is as it was, too.
    void add(const Record& row);

    // A cell, good until a row is added. Rows and columns count from 0.
    RecordCell cell(std::size_t row, std::size_t column) const;

private:
    struct Cell
    {
        static constexpr std::size_t kIsNumber = static_cast<std::size_t>(-1); // no text is as long

        union
        {
            double number;
            std::size_t begin; // of the text in m_texts
        };
        std::size_t size; // of the text, in bytes; kIsNumber without one
    };

    void require(const RecordCell& cell, std::size_t column) const;
    void append(const RecordCell& cell);

    std::string m_name;
    std::vector<std::string> m_headings;
    std::vector<Cell> m_cells; // row by row
    std::string m_texts;
};
}
