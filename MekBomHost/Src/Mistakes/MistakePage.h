// What `mekbom check --explain` prints, and Docs/MISTAKES.md holds: the rules with their examples, in Markdown.
//
//   MistakePage::of("MB105")   ->  "# MB105: A details section shows nothing, ..." and so on
#pragma once

#include <string>
#include <string_view>

namespace mekbom::MistakePage
{
// One rule. The code is that of a mistake.
std::string of(std::string_view code);

// All of them, with what they have in common on top: Docs/MISTAKES.md.
std::string ofAll();
}
