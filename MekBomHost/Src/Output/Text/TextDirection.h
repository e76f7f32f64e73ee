// Texts that run from right to left, kept to themselves within a line that runs from left to right.
//
//   std::string line = "B1  ";
//   TextDirection::append(line, "\xD7\xA7\xD7\x95");   // appended as U+2068, the two letters, U+2069
//   TextDirection::append(line, "HEA200");             // appended as it is
//
// Programs that show text from right to left run it together with the numbers behind it, blanks between them or not: the
// length would stand below the heading of the weight, and the weight below that of the length. What stands between the
// two characters is a unit to them, which nothing around it is ordered by. Neither is as wide as a column.
#pragma once

#include <string>
#include <string_view>

namespace mekbom::TextDirection
{
// Whether any character of the text runs from right to left, or has others do so.
bool hasRightToLeft(std::string_view text);

// Appends a text of the table. It has no characters of its own that begin or end such a unit: WordWrap replaces them.
void append(std::string& line, std::string_view text);
}
