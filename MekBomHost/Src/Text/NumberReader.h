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

// True for digits with an optional sign, however many: also for a whole number that no int holds.
bool isWhole(std::string_view text);

// True when the number loses something by being read as one: "007" is an article number, not seven.
bool hasLeadingZeros(std::string_view text);
}
