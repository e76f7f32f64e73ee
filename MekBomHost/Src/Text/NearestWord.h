// The word that somebody meant who wrote another one, found among all that there are.
//
//   NearestWord::of("reprot", { "demo", "report", "units" })      ->  "report"
//   NearestWord::of("length", { "%Length", "%Level" })            ->  "%Length"
//   NearestWord::of("beams", { "demo", "report", "units" })       ->  ""
//   NearestWord::question("reprot", { "demo", "report" })         ->  "did you mean \"report\"?"
//
// Words are as far from each other as it takes slips to make one of the other: a character too many, one too few, a
// wrong one, two in the wrong order. A letter in the wrong case is hardly a slip: it decides only between words that
// are equally near otherwise.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mekbom::NearestWord
{
constexpr int kLongest = 64; // bytes; arbitrary: longer than any name that one would mistype, so nothing is near it

// The nearest of `words`; of equally near ones the first. Empty when none is as near as one slip in three characters of
// `word`. Takes a time that grows with the number of words, and none to speak of for those of quite another length.
std::string of(std::string_view word, const std::vector<std::string>& words);

// What a finding asks as its remedy; empty when no word is near.
std::string question(std::string_view word, const std::vector<std::string>& words);
}
