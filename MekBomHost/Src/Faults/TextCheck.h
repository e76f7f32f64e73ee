// Whether bytes are text: UTF-8, and without zero bytes.
//
//   requireText("a\nTr\xE4ger\n", "parts.csv");     // throws: parts.csv:2:3: found byte 0xE4, expected text in UTF-8
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
// Throws a Fault of status kInvalidInput that names the first byte that is none. `source` is what messages call the
// origin of the bytes, `firstLine` the number of their first line; lines end with LF, CRLF or CR.
// `remedy` is what may be done about it.
void requireText(std::string_view bytes, const std::string& source, int firstLine = 1, const std::string& remedy = "");
}
