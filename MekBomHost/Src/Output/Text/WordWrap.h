// A text as it stands in a table: in lines no wider than its column, without anything that would move a terminal's
// cursor.
//
//   WordWrap::wrap("Base plate, corner", 10)   ->   "Base" | "plate," | "corner"      words stay whole where they fit
//   WordWrap::wrap("PL20*300*400", 6)          ->   "PL20*3" | "00*400"
//   WordWrap::wrap("one\ntwo", 0)              ->   "one" | "two"                     0 is no limit
//
// Widths are columns of a terminal, which wide characters take two of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mekbom::WordWrap
{
// The lines of `text`, of which there is at least one. Line breaks end a line, tabs become blanks, and other
// control characters U+FFFD, those among them that would turn the order of others round. A character that is wider than
// the column stands in a line of its own.
std::vector<std::string> wrap(std::string_view text, int width);

// How wide the text is, if wrap() without a limit gives it back as it is, in one line; kNotOneLine for any other text.
//   WordWrap::widthOfLine("Träger")     ->   6
//   WordWrap::widthOfLine("one\ntwo")   ->   WordWrap::kNotOneLine
inline constexpr int kNotOneLine = -1;
int widthOfLine(std::string_view text);

// One line of what wrap() gave without a limit, of which there is at least one, with `ellipsis` at the end of what
// something is missing from. A column that is narrower than that has as much of it as there is room for.
//   WordWrap::cut({ "Base plate, corner" }, 10, "...")   ->   "Base pl..."
//   WordWrap::cut({ "one", "two" }, 0, "...")            ->   "one..."
std::string cut(const std::vector<std::string>& lines, int width, std::string_view ellipsis);
}
