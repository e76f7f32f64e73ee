// What one heading of a parts list may mean, seen alone: which tokens, and in which unit.
//
//   TokenKinds kinds;
//   HeadingReading::of("Gewicht [kg]", kinds)   ->  %Weight in kg, "Gewicht" for people
//   HeadingReading::of("Length mm", kinds)      ->  %Length in mm
//   HeadingReading::of("Gewicht kg/m", kinds)   ->  %WeightMeter in kg/m: the unit tells which weight it is
//   HeadingReading::of("Position", kinds)       ->  %PNum or %Num
//   HeadingReading::of("%Weight", kinds)        ->  no more than what is written
//
// Which of several tokens a column gets is for ColumnNames to say, who sees the whole header row.
#pragma once

#include "ColumnHeading.h"
#include "HeadingTable.h"
#include "TokenKinds.h"

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct HeadingReading
{
    static HeadingReading of(std::string_view field, const TokenKinds& kinds);

    // Whether the heading is that one letter by letter, with its unit or without.
    static bool isCalled(std::string_view field, std::string_view heading);

    // The unit that the heading names for a token of that kind, be it in brackets, in parentheses, behind a blank or a
    // slash; empty when there is none.
    static std::string unitIn(std::string_view field, const std::string& token, const TokenKinds& kinds);

    ColumnHeading written;                              // the field as a token and, in brackets, a unit
    bool isToken = false;                               // it has its '%', and so means what it says
    HeadingEntry::eMeaning meaning = HeadingEntry::kIs; // of the tokens
    std::vector<std::string> tokens;                    // that it may be, the usual one first; none: of one's own
    std::string unit;                                   // for these; empty where it names none
    std::string label;                                  // the heading without the unit
};
}
