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

#include "SectionTexts.h"
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
    // `layout` and `texts` belong to one template and outlive the writer.
    TableWriter(const std::string& title, const TableLayout& layout, const SectionTexts& texts);

    void write(TextSink& sink);

private:
    void measure();
    bool measureSections();
    bool measureSection(const TableSection& section, SectionPlace place);
    void measureLines();
    void measureCells(const std::vector<TableCell>& cells);
    void measureCell(const TableCell& cell, std::size_t column);
    int wrappedWidthOf(const TableCell& cell, std::size_t column) const;
    int wrapWidthOf(const TableCell& cell, std::size_t column) const;
    bool isPlain(const TableCell& cell, std::size_t column) const;
    std::vector<TableCell> heading() const;

    void writeHeading();
    void writeRule();
    void writeSeparation(const TablePlace& place, const TablePlace& previous);
    void writeLooseLabel(const TablePlace& place);
    void writeCells(const std::vector<TableCell>& cells);
    void writePlainLine(const std::vector<TableCell>& cells);
    void writeWrappedLines(const std::vector<TableCell>& cells);
    void writeWrappedLine(std::size_t index);
    void writeText(std::size_t column, const std::string& text);
    void pad(std::size_t column, int width, bool isBefore);
    void endLine();
    void passOn(TextSink& sink, std::size_t least);

    const std::string& m_title;
    const TableLayout& m_layout;
    const SectionTexts& m_texts;
    std::vector<int> m_widths;
    std::size_t m_lineWidth = 0;                     // of all columns, each with the blanks after it
    std::vector<std::vector<std::string>> m_wrapped; // the cells of a line that are not all plain, in lines
    int m_numBlanks = 0;                             // that stand before the next text, if there is one
    std::string m_text;                              // written but not passed on
};
}
