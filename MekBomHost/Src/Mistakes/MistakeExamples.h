// Template files as examples have them: a list by groups, with details, and totals below each group.
//
//   groupedList({ "%GroupBy:%Name", "%SortAscBy:%Name", "%Name" }, { "%PNum", "%Weight" }, { "%SumBy:%Weight" })
//
// A tuple is its token, or, where it begins with a brace, the whole object as JSON:
//
//   groupedList(kByMaterial, { "%PNum", R"({ "token": "%Weight", "value": 0.0 })" }, kWeights);
//
// The texts are laid out as an author would write them, since they are printed on the page of mistakes.
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

// The tuples as JSON, without the brackets around them: { "token": "%Name" }, { "token": "%Weight" }
std::string tuplesOf(const Tuples& tuples);

// A report header around one level of groups, with a footer below each. `keys` are further keys of the template as
// JSON, such as "equalLines": "keep"; empty for none.
std::string groupedList(const Tuples& group, const Tuples& details, const Tuples& footer, const std::string& keys = "");

// A list by material, with one formula in the details beside mark, length and weight. `formula` has its prefix.
std::string listWithFormula(const std::string& formula, const std::string& keys = "");

// A template of these sections, written out as JSON: { "type": "kDetails" }, { "type": "kReportFooter" }
std::string listOfSections(const std::string& sections, const std::string& keys = "");

// What happens, with the remark behind it that only rows of another program trip the rule.
std::string withForeignRows(const std::string& happens);

// The mistakes of a hundred of codes, in their order, for MistakeTable.
std::vector<Mistake> ofStructure();
std::vector<Mistake> ofGrouping();
std::vector<Mistake> ofSums();
std::vector<Mistake> ofFormulas();
std::vector<Mistake> ofTokens();
std::vector<Mistake> ofData();
}
