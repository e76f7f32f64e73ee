// Writes an evaluated report as a text table: title, column labels, one line for each section that shows anything.
//
//   Cutting list
//
//   Profile  Material  Pieces  Weight
//   -------  --------  ------  ------
//   HEA200   S355J2         4  1042.4
//   IPE360   S355J2        16  8127.5
//   -------  --------  ------  ------
//   Total                  20  9169.9
//
// A blank line sets off groups of several lines, a rule the report's own footer. A column is as wide as its widest
// text, or as the template says: texts that are wider go on in the next line, numbers widen the column. Lines have no
// blanks at their end. The whole table is in UTF-8, whatever the locale.
#pragma once

#include "TableLayout.h"
#include "TableLines.h"
#include "TextSink.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class TableWriter
{
public:
    // `layout` and `result` belong to one template and outlive the writer.
    TableWriter(const std::string& title, const TableLayout& layout, const VorBomItemBase& result);

    void write(TextSink& sink);

private:
    // What one column holds on one line: a text of the report, or a label; neither when it is empty. Not owned.
    struct Cell
    {
        const VorString* pText = nullptr;
        const std::string* pLabel = nullptr;
    };

    void measure();
    void measureCells();
    void measureCell(std::size_t column);
    int wrappedWidthOf(std::size_t column) const;
    int wrapWidthOf(std::size_t column) const;
    bool isPlain(std::size_t column) const;
    bool isKnownAsPlain(std::size_t column) const;
    int lengthOf(std::size_t column) const;
    std::string textOf(std::size_t column) const;

    void fillWith(const TableLine& line);
    void fillFrom(const TableSection& section, const VorBomTemplateItem* pItem);

    void writeHeading();
    void writeRule();
    void writeSeparation(const TableLine& line, const TableLine& previous);
    void writeLooseLabel(const TableLine& line);
    void writeCells();
    void writePlainLine();
    void writeWrappedLines();
    void writeWrappedLine(std::size_t index);
    void writeText(std::size_t column, const std::string& text);
    void pad(std::size_t column, int width, bool isBefore);
    void endLine();
    void passOn(TextSink& sink, std::size_t least);

    const std::string& m_title;
    const TableLayout& m_layout;
    const VorBomItemBase& m_result;
    std::vector<int> m_widths;
    std::size_t m_lineWidth = 0;           // of all columns, each with the blanks after it
    std::vector<char> m_isPlainThroughout; // for each column whether all of its texts, not its label, are plain
    std::vector<Cell> m_cells;             // of the line in progress
    std::vector<std::vector<std::string>> m_wrapped; // of its cells when they are not all plain
    int m_numBlanks = 0;                             // that stand before the next text, if there is one
    std::string m_text;                              // written but not passed on
};
}
