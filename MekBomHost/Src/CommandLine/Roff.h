// Text for formatters of manual pages, which take some characters for commands:
//
//   Roff::escaped("--map \"m²\"")    ->  \-\-map \(dqm\[u00B2]\(dq
//   Roff::escaped(".25")             ->  \&.25               a point at the start of a line would call a macro
//
// A minus sign stays one, so that an option can be copied from the page; a formatter makes a hyphen of it otherwise.
#pragma once

#include <string>
#include <string_view>

namespace mekbom::Roff
{
// The text as it stands in a line, or in the argument of a macro within double quotes. No line breaks; UTF-8 becomes
// ASCII.
std::string escaped(std::string_view text);

// ASCII letters in upper case, as names of pages and sections are: "Exit status" -> "EXIT STATUS".
std::string capitals(std::string_view text);
}
