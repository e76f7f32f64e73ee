// The lines of a table, one after the other, read from an evaluated report:
//
//   report header               shows nothing: no line
//     group header  HEA200      one line, shared:  HEA200  S355J2   4   24644
//     group footer  4, 24644
//   report footer 670, 28531    the last line:     Total           670  28531
//
// A header and its footer share a line when nothing is printed between them and they do not want the same column.
#pragma once

#include "SectionWalk.h"
#include "TableLayout.h"

#include "VorBomTemplateItem.h"

namespace mekbom
{
// What stands on a line: a header, a footer or both. Not owned.
struct TableLine
{
    const VorBomTemplateItem* pHeader = nullptr;
    const VorBomTemplateItem* pFooter = nullptr;
    int level = 0;
};

class TableLines
{
public:
    // `result` is the root of an evaluated report whose template has this layout. Both outlive the lines.
    TableLines(const TableLayout& layout, const VorBomItemBase& result);

    // The next line; false at the end.
    bool next(TableLine& line);

private:
    bool nextSection(TableLine& line);
    bool showsAnything(const TableLine& section) const;
    bool canShareLine(const TableLine& header, const TableLine& footer) const;

    const TableLayout& m_layout;
    SectionWalk m_sections;
    TableLine m_waiting; // a section that has been visited and is on no line yet
    bool m_isWaiting = false;
};
}
