// Texts as JSON writes them.
//
//   jsonText("Length \"net\"")   ->  "\"Length \\\"net\\\"\""
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
// `text`, UTF-8, in double quotes, with all that JSON wants escaped: on one line whatever it holds.
std::string jsonText(std::string_view text);

// The same at the end of what `json` holds.
void appendJsonText(std::string& json, std::string_view text);

// The same, or null for an empty text.
void appendJsonTextOrNull(std::string& json, std::string_view text);
}
