// One line of an evaluated report.
//
//   for a group of HEA200, header and footer sharing the line, and columns Profile, Material, Pieces, Weight [kg]
//
//     place    level 1, hasHeader, hasFooter
//     texts    "HEA200"     ""            "4"                "24644"
//     values   kStringData  kUnknownData  kIntData 4         kDoubleData 24644.25 kWeightUnit
//     rows     of the header that which opened the group, of the footer those it counts
#pragma once

#include "SectionRows.h"
#include "ShownText.h"

#include "VorBomTypedValue.h"

#include <string_view>
#include <vector>

namespace mekbom
{
// Which sections stand on a line: a header, a footer, or a header and its own footer.
struct LinePlace
{
    int level = 0; // 0 is the report's outermost; headers of the deepest level are details
    bool hasHeader = false;
    bool hasFooter = false;
};

// The texts, label and rows that a line refers to live as long as the report.
struct ReportLine
{
    LinePlace place;
    std::string_view label; // UTF-8; empty for most lines
    int labelColumn = -1;   // the first that shows nothing on this line; -1 without a label or such a column

    std::vector<ShownText> texts;         // one for each column
    std::vector<VorBomTypedValue> values; // one for each column where values are kept, else none

    // Lists of no rows unless rows are kept.
    RowList headerRows; // of details the line's own row and those merged into it, else the one that opened the group
    RowList footerRows; // that the footer counts
};
}
