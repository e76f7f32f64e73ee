// The texts of cells as workbooks have them.
//
//   <si><r><t>HEA</t></r><r><t>200</t></r></si>       ->  "HEA200": parts of several fonts are one text
//   <si><t>鋼</t><rPh><t>ハガネ</t></rPh></si>            ->  "鋼", without how it is pronounced
//   <t>first_x000D_second</t>                         ->  "first\rsecond": what XML cannot hold has four digits
//   <t>_x005F_x0041_</t>                              ->  "_x0041_": an underscore that is meant
#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace mekbom::CellText
{
// The characters that stand directly in `element`, without those of the elements in it. Good for as long as the element
// and, where a comment cuts the text in two, as `buffer`.
std::string_view charactersOf(const pugi::xml_node& element, std::string& buffer);

// The text of `item`, <si> or <is>; what `buffer` held is lost.
std::string_view textOf(const pugi::xml_node& item, std::string& buffer);

// Adds `text` to `buffer`, which it gives, with the characters that its escapes stand for. What is no escape stays as it
// is: "_x00G0_", and those of zero and of half a character.
std::string& appendUnescaped(std::string_view text, std::string& buffer);
}
