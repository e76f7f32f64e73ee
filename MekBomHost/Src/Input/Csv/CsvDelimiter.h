// What stands between the fields of a CSV file: a comma, or what spreadsheets write where a comma begins the decimals.
//
//   CsvDelimiter::recognise("Mark;Profile;Weight\nB1;HEA200;134,4\n", "parts.csv")     ->  ';'
//   CsvDelimiter::recognise("Name\nHEA200\n", "parts.csv")                             ->  ',': there is none
//   CsvDelimiter::recognise("a,b;c\n1,2;3\n", "parts.csv")                             ->  throws: it may be either
//   CsvDelimiter::announced("sep=;\r\nMark;Profile\r\n")                               ->  ';'
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mekbom::CsvDelimiter
{
inline constexpr char kPlain = ',';

// Each with its name: "tab" for what nobody sees.
const std::vector<std::pair<const char*, char>>& all();

// "a comma", "a semicolon": as sentences call it.
const char* nameOf(char delimiter);

// The delimiter of a file by its first lines, which are in UTF-8. Throws a Fault of status kInvalidInput where two suit
// the lines equally well; `name` is what it calls the file.
char recognise(std::string_view head, const std::string& name);

// The delimiter that a first line "sep=;" announces, which some spreadsheets write and which is no record; 0 where the
// file has none. Bytes as above, perhaps with a byte order mark in front.
char announced(std::string_view head);
}
