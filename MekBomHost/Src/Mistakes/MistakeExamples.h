// Template files as examples have them: a list by groups, with details, and totals below each group.
//
//   groupedList({ "%GroupBy:%Name", "%SortAscBy:%Name", "%Name" }, { "%PNum", "%Weight" }, { "%SumBy:%Weight" })
//
// A tuple is its token, or, where it begins with a brace, the whole object as JSON.
#pragma once

#include "MistakeTable.h"

#include <string>
#include <vector>

namespace mekbom::MistakeExamples
{
using Tuples = std::vector<std::string>;

// What most examples are grouped by, show and sum.
extern const Tuples kByMaterial; // groups by material, sorts by it, and shows it
extern const Tuples kParts;      // mark, length and weight
extern const Tuples kWeights;    // the total of the weights

// "{ "token": "%Name" }, { "token": "%Weight" }"
std::string tuplesOf(const Tuples& tuples);

// `keys` are further keys of the template: "\"equalLines\": \"keep\"".
std::string groupedList(const Tuples& group, const Tuples& details, const Tuples& footer, const std::string& keys = "");

// By material, with one formula in the details beside mark, length and weight.
std::string listWithFormula(const std::string& formula, const std::string& keys = "");

// The sections as they are: "{ "type": "kDetails" }, { "type": "kReportFooter" }".
std::string listOfSections(const std::string& sections, const std::string& keys = "");

// The mistakes of a hundred of codes, in their order.
std::vector<Mistake> ofStructure();
std::vector<Mistake> ofGrouping();
std::vector<Mistake> ofSums();
std::vector<Mistake> ofFormulas();
std::vector<Mistake> ofTokens();
std::vector<Mistake> ofData();
}
