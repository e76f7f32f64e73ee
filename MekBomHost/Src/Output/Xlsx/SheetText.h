// Texts as the cells and the names of a workbook can hold them, which is not every text.
//
//   std::string buffer;
//   SheetText::inCell("HEA200", buffer)          ->  "HEA200"
//   SheetText::inCell("a\x1B[31m", buffer)       ->  the same with U+FFFD: what a terminal table shows
//   SheetText::inCell("_x0041_", buffer)         ->  "_x005F_x0041_", which programs read as "_x0041_", and not as "A"
//   SheetText::sheetName("Beams 3/4: cut", 2)    ->  "Beams 3 4 cut 2"
//   SheetText::inPrint("Smith & Sons", 100)      ->  "Smith && Sons"
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom::SheetText
{
// The text that has to be written for a cell to hold `text`, UTF-8; its lines are divided by LF. What stood in `buffer`
// is lost; the answer refers to it.
const std::string& inCell(std::string_view text, std::string& buffer);

// Whether the text is printable ASCII, in which a byte is a character one column wide.
bool isPlain(std::string_view text);

// How long programs take a text to be, which count in UTF-16: two for each character beyond U+FFFF.
std::size_t length(std::string_view text);

// A text in one line of at most `most` such characters, for places that no list depends on; its end is cut off.
std::string inOneLine(std::string_view text, std::size_t most);

// The name of a list's sheet, made of its title: without characters that names cannot have, and no longer than one can
// be. Sheets are numbered from 1, of which nothing shows on the first.
//   sheetName("", 1)                  ->  "List"
//   sheetName("About", 1)             ->  "List": that name is another sheet's
std::string sheetName(std::string_view title, int number);

// The same in the header or footer of printed pages.
std::string inPrint(std::string_view text, std::size_t most);

inline constexpr std::string_view kAbout = "About"; // the sheet that tells what the list is made of
}
