// Numbers as people and programs write them: decimal digits with an optional sign, point and exponent, blanks around
// them allowed. Never dependent on the locale; no decimal comma, no thousands separator, no "inf", no "nan".
//
//   NumberReader::read("12.50", value)       ->  12.5
//   NumberReader::read(" -1e3 ", value)      ->  -1000
//   NumberReader::read("1,5", value)         ->  false
#pragma once

#include <string_view>

namespace mekbom::NumberReader
{
// Sets `value` to the number that all of `text` is. False, with `value` untouched, for anything else and for what the
// type cannot hold: "2.5" is no int, "1e400" is no double.
bool read(std::string_view text, int& value);
bool read(std::string_view text, double& value);

// The same, and sets `numDecimals` to how many digits the number is written with behind its point, up to 15, since a
// double has no more: "12.50" has 2, "1.5e-3" has 4 and "15e3" has none. Untouched when the text is no number.
bool read(std::string_view text, double& value, int& numDecimals);

// True for digits with an optional sign, however many: also for a whole number that no int holds.
bool isWhole(std::string_view text);

// The text without a point behind which there are zeros alone: "4" of "4.000". Others stay as they are.
std::string_view withoutZeroDecimals(std::string_view text);

// True for a number that can be written again as it was: digits with an optional sign and point. "007" is an article
// number and not seven, "1E5" more likely a mark than a hundred thousand, and of the eighteen digits of
// "340123450000000018" a double would keep fifteen.
bool isPlain(std::string_view text);
}
