// The lines of a table, one after the other, read from the texts of an evaluated report:
//
//   report header               shows nothing: no line
//     group header  HEA200      one line, shared:  HEA200  S355J2   4   24644
//     group footer  4, 24644
//   report footer 670, 28531    the last line:     Total           670  28531
//
// A header and its footer share a line when nothing is printed between them and they do not want the same column.
#pragma once

#include "SectionTexts.h"
#include "TableLayout.h"

#include <string>
#include <vector>

namespace mekbom
{
// What stands in one column of a line: a text of the report or a label.
struct TableCell
{
    static TableCell ofLabel(const std::string& label);

    SectionText text;
    bool isLabel = false;
};

// Which sections stand on a line: a header, a footer or both.
struct TablePlace
{
    int level = 0;
    bool hasHeader = false;
    bool hasFooter = false;
};

struct TableLine
{
    TablePlace place;
    std::vector<TableCell> cells; // one for each column of the layout
};

class TableLines
{
public:
    // `texts` are those of a report whose template has this layout. Both outlive the lines.
    TableLines(const TableLayout& layout, const SectionTexts& texts);

    // The next line; false at the end. Its texts are those of the report.
    bool next(TableLine& line);

private:
    void take(TableLine& line);
    void fillFrom(const TableSection& section, TableLine& line);
    bool canShareLine(const TableLine& line) const;

    const TableLayout& m_layout;
    SectionTexts::Reader m_reader;
    SectionPlace m_next; // that is on no line yet
    bool m_hasNext = false;
};
}
