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
// False, with `value` untouched, for anything else and for what the type cannot hold.
bool read(std::string_view text, int& value);
bool read(std::string_view text, double& value);

// True for digits with an optional sign, however many.
bool isWhole(std::string_view text);

// True when the number loses something by being read as one: "007" is an article number, not seven.
bool hasLeadingZeros(std::string_view text);
}
