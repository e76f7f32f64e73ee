// What two headings have in common that mean the same, however they are written.
//
//   headingKey("Teile-Nr.")       ->  "teilenr"
//   headingKey("L\xC3\xA4nge")    ->  "lange", as are "Laenge" and "LANGE"
//   headingKey("Weight (each)")   ->  "weighteach"
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
// Without case, accents, blanks, dots, hyphens, slashes and brackets. What may change the meaning stays: digits, "#",
// "%", "*". `heading` is UTF-8.
std::string headingKey(std::string_view heading);
}
