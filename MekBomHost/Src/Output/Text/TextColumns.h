// How wide the columns of a text table are: as the template says, and as wide as their widest text where it leaves that
// open.
//
//   %Name, as wide as need be; texts "HEA200", "L50"                ->   width 6
//   %Name, width 4; texts "HEA200", "L50"                           ->   width 4, the text goes on below: "HEA2", "00"
//   %Weight in kg, width 2; texts "1234.5", "12.25"                 ->   width 7, since numbers are never cut: "1234.5 "
//                                                                        and "  12.25", with their points below each other
//
// A table that has to fit into a width loses it where columns are widest: headings are wrapped, texts wrapped or cut.
//
// Widths are columns of a terminal, which wide characters take two of.
#pragma once

#include "DecimalPlaces.h"
#include "EvaluatedReport.h"
#include "OutputChoices.h"
#include "ShownText.h"
#include "TableText.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct TextColumn
{
    // How many blanks stand behind a text, so that its decimal point stands below those of the others.
    std::uint32_t blanksBehind(std::string_view text) const
    {
        return decimals == 0 ? 0 : decimals - std::min(decimals, DecimalPlaces::lengthIn(text));
    }

    std::string heading;
    bool isAlignedRight = false;
    int width = 1;
    int least = 1;              // that it can be narrowed to: numbers, and the words of its heading, stay whole
    std::uint32_t decimals = 0; // that its numbers have, with the point; 0 where these are not aligned
    int labelLimit = 0;         // what the heading and labels of lines are wrapped to; 0 for no limit
    int textLimit = 0;          // the same for other texts
};

namespace TextColumns
{
inline constexpr int kNumBlanksBetween = 2;

// One for each column of the report, in their order. Values: the report may go. Throws a Fault of status kWrongUsage
// when they cannot be made as narrow as the choices want the table.
std::vector<TextColumn> of(const EvaluatedReport& report, const OutputChoices& choices = OutputChoices());
}
}
