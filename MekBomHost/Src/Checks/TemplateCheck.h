// Finds the mistakes of an author that can be told from the template alone.
//
//   const ReportTemplate list = TemplateReader::read("list.json", text);
//   for (const Finding& mistake : TemplateCheck::run(list, KnownTokens(list, {}), false))
//       tell(messageOf(mistake));
//
//   list.json:8:17: error MB201: "%GroupBy:%Material" groups rows that are not sorted by %Material: the same group
//   comes several times; help: "%GroupBy:%Material" needs "%SortAscBy:%Material" beside it
//
// What the codes mean, each with a template that trips it, is in the room Mistakes.
#pragma once

#include "Finding.h"
#include "KnownTokens.h"
#include "ReportTemplate.h"

#include <vector>

namespace mekbom::TemplateCheck
{
// All mistakes of whatever severity, excused or not, in the order of the file; of one place, the lower hundreds of
// codes first. None for a template without sections. `hasData` leaves to RowsCheck what data tell better. `tokens` is
// about the same template.
std::vector<Finding> run(const ReportTemplate& reportTemplate, const KnownTokens& tokens, bool hasData);
}
