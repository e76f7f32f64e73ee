// A table of texts for a terminal: columns are as wide as their widest text, with two blanks between them.
//
//   AlignedTable table({ "Token", "Value" });
//   table.add({ "%Weight", "number" });
//   table.text()   ->  "Token    Value\n%Weight  number\n"
//
// Columns of numbers stand to the right:
//
//   AlignedTable rows({ "File", "Rows" });
//   rows.alignRight(1);
//   rows.add({ "a.csv", "7" });
//   rows.text()    ->  "File   Rows\na.csv     7\n"
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
class AlignedTable
{
public:
    using Row = std::vector<std::string>;

    // All rows have as many texts as the headings, in UTF-8.
    explicit AlignedTable(Row headings) : m_isRight(headings.size()), m_rows{ std::move(headings) } {}

    void add(Row row) { m_rows.push_back(std::move(row)); }

    // The texts of that column, counted from 0, end below one another.
    void alignRight(std::size_t column) { m_isRight[column] = true; }

    // Whether there are no rows but the headings.
    bool isEmpty() const { return m_rows.size() == 1; }

    // No line ends in blanks; each ends with a line end.
    std::string text() const;

private:
    std::vector<int> widths() const;

    std::vector<bool> m_isRight; // one for each column
    std::vector<Row> m_rows;     // the headings first
};
}
