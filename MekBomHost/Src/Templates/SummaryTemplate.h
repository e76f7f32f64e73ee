// Takes the lines out of a list, for somebody who wants to see its groups and totals alone.
//
//   SummaryTemplate::reduce(list)   ->  true: of marks in groups by material the materials and all totals are left
//
// What is not printed is evaluated all the same: totals are those of the whole list, and rows that read alike are merged
// as they are there. In that it differs from "summary" in a template, which keeps every row.
#pragma once

#include "ReportTemplate.h"

namespace mekbom::SummaryTemplate
{
// Hides the details, and the columns that nothing else is shown in; the innermost groups are left without the label of
// their footer where that makes one line of header and footer. False when no line would be left; the template is
// then of no more use.
bool reduce(ReportTemplate& reportTemplate);
}
