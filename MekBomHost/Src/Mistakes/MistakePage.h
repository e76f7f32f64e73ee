// What `mekbom check --explain` prints, and Docs/MISTAKES.md holds: the rules with their examples, in Markdown.
//
//   MistakePage::of("MB105")   ->  "# MB105: A details section shows nothing, ..." and so on
#pragma once

#include <string>
#include <string_view>

namespace mekbom::MistakePage
{
// One rule, below a heading of the first order; empty for a code that no mistake has.
std::string of(std::string_view code);

// All rules, with what they have in common on top, below headings for each hundred: Docs/MISTAKES.md to the letter.
std::string ofAll();
}
