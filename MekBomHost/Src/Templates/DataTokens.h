// The names of the data that a template is about, without what steers, sums or computes them.
//
//   "%GroupBy:%Name", "%SumBy:%Weight", "%Formula:%Length/1000", "%Handle"   ->   "%Length", "%Name", "%Weight"
//
// The handle is left out: every object has one.
#pragma once

#include "VorBomTemplate.h"

#include <string>
#include <vector>

namespace mekbom::DataTokens
{
// Sorted as the template's token trace is, each name once. In UTF-8. The template finds its used tokens for that, unless
// it has done so.
std::vector<std::string> of(VorBomTemplate& reportTemplate);
}
