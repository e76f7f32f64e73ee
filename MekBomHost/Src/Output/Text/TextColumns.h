// How wide the columns of a text table are: as the template says, and as wide as their widest text where it leaves that
// open.
//
//   %Name, as wide as need be; texts "HEA200", "L50"                ->   width 6
//   %Name, width 4; texts "HEA200", "L50"                           ->   width 4, the text goes on below: "HEA2", "00"
//   %Weight in kg, width 2; texts "1234.56", "12"                   ->   width 7, since numbers are never cut
//
// Widths are columns of a terminal, which wide characters take two of.
#pragma once

#include "EvaluatedReport.h"
#include "ShownText.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mekbom
{
struct TextColumn
{
    // Whether a text of a line, not a label, can be written as it is: in one line, a byte for each column.
    bool takesAsIs(const ShownText& text) const
    {
        return text.isPlain && (textLimit == 0 || text.length <= static_cast<std::uint32_t>(textLimit));
    }

    std::string heading;
    bool isAlignedRight = false;
    int width = 1;
    int labelLimit = 0; // what the heading and labels of lines are wrapped to; 0 for no limit
    int textLimit = 0;  // the same for other texts
};

namespace TextColumns
{
// One for each column of the report, in their order. Values: the report may go.
std::vector<TextColumn> of(const EvaluatedReport& report);
}
}
