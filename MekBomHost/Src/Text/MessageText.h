// Foreign text in messages: short, on one line, and harmless to the terminal it ends on.
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
// `text`, UTF-8, in double quotes; control characters become '?', and what goes past kMostQuoted characters is cut to
// "...".
//   inQuotes("HEA200")  ->  "\"HEA200\""
std::string inQuotes(std::string_view text);

constexpr int kMostQuoted = 60; // arbitrary: leaves room for the rest of the message
}
