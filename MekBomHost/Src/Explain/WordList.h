// Words one after the other, as a sentence has them.
//
//   WordList::joined({ "%Name", "%Material", "%Length" })   ->  "%Name, %Material and %Length"
//   WordList::firstOf({ "row 1", "row 2", "row 3" }, 2)     ->  "row 1, row 2 and 1 more"
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom::WordList
{
// All of them; empty for no words.
std::string joined(const std::vector<std::string>& words);

// No more than `most` of them, and how many are left.
std::string firstOf(const std::vector<std::string>& words, std::size_t most);
}
