// The fields of CSV, as RFC 4180 has them.
//
//   std::string record;
//   CsvText::append(record, "PL10*120", ',');                  // PL10*120
//   CsvText::append(record, "plate, \"bent\"", ',');           // "plate, ""bent"""
//   CsvText::append(record, CsvText::defused("=A1"), ',');     // '=A1
#pragma once

#include <string>
#include <string_view>

namespace mekbom::CsvText
{
// Lines end so, whatever the system.
inline constexpr std::string_view kLineEnd = "\r\n";

// Appends one field, in quotes where it must be. What divides it from the next one is not written.
void append(std::string& record, std::string_view field, char delimiter);

// The text, with an apostrophe in front of one that a spreadsheet would take for a formula and run: what begins with
// = + - @, a tab or a carriage return. For texts of users, and not for numbers, which may begin with a minus sign.
std::string defused(std::string_view text);

// Whether it is such a text.
bool isFormula(std::string_view text);
}
