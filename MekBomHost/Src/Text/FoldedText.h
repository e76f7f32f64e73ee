// A text as it is compared when neither case nor accents nor the forms of a character count.
//
//   foldedText("L\xC3\xA4nge")      ->  "lange"
//   foldedText("QUANTIT\xC3\x89")   ->  "quantite"
//   foldedText("m\xC2\xB2")         ->  "m2"
#pragma once

#include <string>
#include <string_view>

namespace mekbom
{
// `text` is UTF-8; one that is none stays as it is. Letters that are no others with an accent stay, too: U+00F8.
std::string foldedText(std::string_view text);
}
