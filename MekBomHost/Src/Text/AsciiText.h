// Text for what knows no other characters than ASCII: an old printer, a terminal of another code page.
//
//   AsciiText::of("Träger 12 m²")   ->  "Traeger 12 m2"
//   AsciiText::of("Ø 20 × 90°")     ->  "O 20 x 90deg"
//   AsciiText::of("柱")             ->  "?"
//
// Two texts may become the same.
#pragma once

#include <string>
#include <string_view>

namespace mekbom::AsciiText
{
// `text` is UTF-8. Letters lose their marks, but for German umlauts, which become two letters as readers write them;
// what has no such form becomes a question mark, and so do control characters but for tabs and line breaks.
std::string of(std::string_view text);
}
