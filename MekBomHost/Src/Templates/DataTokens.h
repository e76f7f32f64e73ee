// The names of the data that a template is about, without what steers, sums or computes them.
//
//   const std::vector<std::string> tokens = DataTokens::of(reportTemplate);
//
// Of a template that has the tokens "%GroupBy:%Name", "%SumBy:%Weight", "%Formula:%Length/1000" and "%Handle" these are
// "%Length", "%Name" and "%Weight". The handle is left out: every object has one. A parts list should have columns for
// all others, and the more of them it has, the better the template suits it.
#pragma once

#include "VorBomTemplate.h"

#include <set>
#include <string>
#include <vector>

namespace mekbom::DataTokens
{
// Sorted as the template's token trace is, each name once. In UTF-8. The template finds its used tokens for that,
// unless it has done so.
std::vector<std::string> of(VorBomTemplate& reportTemplate);

// Whether rows may carry a datum of that name: not what steers, sums or computes others.
//   DataTokens::isDatum(L"%Weight")         ->  true
//   DataTokens::isDatum(L"%SumBy:%Weight")  ->  false
bool isDatum(const VorString& token);

// Whether a parts list may have a column for it: one of these, or "%%PaintMeter", which the catalogue has under a name
// that is spelled like no other.
bool canBeColumn(const VorString& token);

// Those of them that it sums or computes with, so that their values have to be numbers: above these are "%Weight" and
// "%Length".
std::set<std::string> computedWith(VorBomTemplate& reportTemplate);
}
