// Distances are those of Damerau and Levenshtein, for which no character is touched twice (optimal string alignment):
//
//          r  e  p  o  r  t    each number is what it costs to make the word on the left, up to there, of that above:
//       0  1  2  3  4  5  6    one more than the number above it, beside it or across from it, the last without the one
//   r   1  0  1  2  3  4  5    where the letters agree, or than the one two rows and two columns back where the last two
//   e   2  1  0  1  2  3  4    letters are swapped
//   p   3  2  1  0  1  2  3
//   r   4  3  2  1  1  1  2
//   o   5  4  3  2  1  1  2
//   t   6  5  4  3  2  2  1
//
// Counted in slips, that is; in truth a slip costs kSlip, and a letter in the wrong case one.
#include "NearestWord.h"

#include "InQuotes.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace mekbom::NearestWord
{
namespace
{
using Row = std::array<int, kLongest + 1>;

const int kSlip = kLongest + 1;   // more than all letters of a word in the wrong case
const int kCharactersPerSlip = 3; // arbitrary: one slip in "dat", two in "length", none in "id"

int costOf(char one, char other)
{
    if (one == other)
        return 0;
    return VorCharacters::toLower(one) == VorCharacters::toLower(other) ? 1 : kSlip;
}

// What it costs to make `word` of `other`, both no longer than kLongest; anything above `limit` when it is more.
int distance(std::string_view word, std::string_view other, int limit)
{
    Row beforeLast{};
    Row last{};
    Row row{};
    for (std::size_t column = 0; column <= word.size(); ++column)
        row[column] = static_cast<int>(column) * kSlip;
    for (std::size_t i = 1; i <= other.size(); ++i)
    {
        beforeLast = last;
        last = row;
        row[0] = static_cast<int>(i) * kSlip;
        int least = row[0];
        for (std::size_t j = 1; j <= word.size(); ++j)
        {
            row[j] = std::min({ last[j] + kSlip, row[j - 1] + kSlip, last[j - 1] + costOf(word[j - 1], other[i - 1]) });
            if (i > 1 && j > 1)
                row[j] = std::min(row[j], beforeLast[j - 2] + kSlip + costOf(word[j - 1], other[i - 2]) +
                                              costOf(word[j - 2], other[i - 1]));
            least = std::min(least, row[j]);
        }
        if (least > limit) // no later row holds less
            return least;
    }
    return row[word.size()];
}

std::size_t lengthDifference(std::string_view one, std::string_view other)
{
    return std::max(one.size(), other.size()) - std::min(one.size(), other.size());
}
}

std::string of(std::string_view word, const std::vector<std::string>& words)
{
    if (word.size() > kLongest)
        return std::string();
    const std::size_t mostSlips = word.size() / kCharactersPerSlip;
    int limit = static_cast<int>(mostSlips) * kSlip + kLongest; // all letters may be in the wrong case
    const std::string* pNearest = nullptr;
    for (const std::string& candidate : words)
    {
        if (candidate.size() > kLongest || lengthDifference(word, candidate) > mostSlips)
            continue;
        const int cost = distance(word, candidate, limit);
        if (cost > limit)
            continue;
        limit = cost - 1;
        pNearest = &candidate;
    }
    return pNearest == nullptr ? std::string() : *pNearest;
}

std::string question(std::string_view word, const std::vector<std::string>& words)
{
    const std::string nearest = of(word, words);
    return nearest.empty() ? std::string() : "did you mean " + inQuotes(nearest) + "?";
}
}
