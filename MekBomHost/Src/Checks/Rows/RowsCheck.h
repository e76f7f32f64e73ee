// Finds the mistakes of an author that only the data show, in one pass over their rows.
//
//   for (const Finding& mistake : RowsCheck::run(reportTemplate, KnownTokens(reportTemplate, columns), data))
//       tell(messageOf(mistake));
//
//   list.json:5:15: warning MB503: "%Material" varies within a group: S235, S355; help: ...
//
// To be run once rows are filtered and before they are evaluated: what is left out lacks nothing, and an evaluation
// changes the rows.
#pragma once

#include "Finding.h"
#include "KnownTokens.h"
#include "ReportTemplate.h"

#include "VorBomData.h"

#include "MekRoots/Exp/VorString.h"

#include <vector>

namespace mekbom::RowsCheck
{
// The tokens that rows have to be read with for the rules, beside those that the template asks for: how many pieces a
// row stands for, where a total is of values of one piece.
std::vector<VorString> neededTokens(const ReportTemplate& reportTemplate, const KnownTokens& tokens);

// All mistakes of whatever severity, excused or not, one rule after the other and not in the order of the file. Reads
// `data` and changes nothing in it, in a time in proportion to its rows. The template must have levels.
std::vector<Finding> run(const ReportTemplate& reportTemplate, const KnownTokens& tokens, const VorBomData& data);
}
