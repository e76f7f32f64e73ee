// Elements and attributes by their names without prefixes: which prefix stands for which vocabulary is up to who writes
// a workbook, and most write none.
//
//   XmlNames::withoutPrefix("x:row")        ->  "row"
//   XmlNames::attribute(row, "spans")       ->  "1:14"; empty where there is none
//   XmlNames::isNamed(cell, "v")            ->  true for <v> and <x:v>
#pragma once

#include <pugixml.hpp>

#include <string_view>

namespace mekbom::XmlNames
{
std::string_view withoutPrefix(std::string_view name);

bool isNamed(const pugi::xml_node& element, std::string_view name);

// The value of the first attribute of that name; empty where there is none.
std::string_view attribute(const pugi::xml_node& element, std::string_view name);
}
