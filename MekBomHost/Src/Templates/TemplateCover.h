// How much of its data a template finds among the columns of a parts list.
//
//   const TemplateCover cover = TemplateCover::of({ "bolts", text }, hasColumn);     columns %Name, %Weight
//
//   cover.missing       { "%BoltName" }     of a template that shows %BoltName and %Weight
//   cover.numFound()    1, of 2 tokens
//   cover.suits()       true: at least half of its data
#pragma once

#include "NamedText.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace mekbom
{
struct TemplateCover
{
    // `hasColumn` answers for a token such as "%Name". Throws a Fault of status kInvalidInput, as TemplateReader does,
    // when the template is malformed.
    static TemplateCover of(const NamedText& file, const std::function<bool(const std::string&)>& hasColumn);

    std::size_t numFound() const { return numTokens - missing.size(); }

    // Whether the template finds at least half of its data, and a row of these columns could pass its filter.
    bool suits() const { return canRowsPass && numTokens > 0 && 2 * numFound() >= numTokens; }

    // Whether it finds a greater part of its data. Compared as fractions, without rounding: 3 of 5 is more than 1 of 2,
    // because 3 * 2 > 1 * 5.
    bool suitsBetterThan(const TemplateCover& other) const;

    std::string name;                 // of the file
    std::string title;                // of the list; may be empty
    std::string filter;               // which rows the list is about, as the template says it; empty for all
    bool canRowsPass = true;          // that filter: a list of bolts is none of parts that happen to have lengths
    std::size_t numTokens = 0;        // the data that it is about
    std::vector<std::string> missing; // those without a column, sorted
};
}
