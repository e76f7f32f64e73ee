// The mistakes that authors of lists make: what they write, what the engine does, how to write it right, and for each a
// template that trips the rule and one that just does not.
//
//   MistakeTable::find("MB203")->writes   ->  "%GroupBy: in the deepest level, or in a footer"
//   MistakeTable::find("MB203")->bad      ->  a template file
//
// `mekbom check --explain` and Docs/MISTAKES.md are made of it. A test runs all its templates: a bad one must trip its
// rule, a good one none at all. All texts are UTF-8; the table never changes once it is made.
#pragma once

#include "FindingCodes.h"

#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
struct Mistake
{
    const FindingCode* pCode; // one of MistakeCodes; never null
    std::string writes;       // what the author writes
    std::string happens;      // what comes of it
    std::string fix;          // how to write it right

    // Texts of template files, and, for a rule on data, of parts lists. Where both have the same template, it is the
    // data that differ.
    std::string bad;
    std::string good;
    std::string badRows = {}; // empty for a rule on the template alone
    std::string goodRows = {};

    // No parts list that this program reads trips the rule; rows that another program hands over may.
    bool needsForeignRows = false;
};

namespace MistakeTable
{
// In the order of the codes, each once.
const std::vector<Mistake>& all();

// The mistake of a code such as "MB203", owned by the table; null when the table has none.
const Mistake* find(std::string_view code);
}
}
