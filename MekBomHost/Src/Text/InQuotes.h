// Foreign text as messages quote it: short, on one line, and harmless to the terminal it ends on.
//
//   inQuotes("HEA200")                   ->  "HEA200" with its quotes, eight characters
//   inQuotes("a\nb\x1B[31m")             ->  "a?b?[31m": what a terminal may take as a command is gone
//   inQuotes(std::string(100, 'x'))      ->  sixty x and "..."
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
constexpr int kMostQuoted = 60; // characters; arbitrary: leaves room for the rest of the message

// `text`, UTF-8, in double quotes; control characters become '?', and what goes past `most` characters is cut to
// "...". A byte that is no UTF-8 becomes U+FFFD.
std::string inQuotes(std::string_view text, int most = kMostQuoted);

// The same without the quotes, for a name that stands in a sentence as one of its words: "shop.ini sets C7_Other".
std::string harmless(std::string_view text, int most = kMostQuoted);
}
