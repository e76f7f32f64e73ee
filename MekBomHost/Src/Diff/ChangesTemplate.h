// The template of a list of changes: the columns and groups of the list that has changed, each column that is counted
// with one for its change beside it.
//
//   ChangesTemplate::textOf(report, reportTemplate, columns)      ->  a template file
//   ChangesTemplate::shownToken(3)                                ->  "%Shown3", what the third column shows: "4 → 6"
//   ChangesTemplate::changeToken(3)                               ->  "%Change3", the number of it: 2
#pragma once

#include "ComparedList.h"
#include "EvaluatedReport.h"
#include "ReportTemplate.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom::ChangesTemplate
{
// What has become of a line: a text.
inline constexpr const char* kKindToken = "%KindOfChange";

// Columns count from 0. What they show are texts, what has changed are numbers.
std::string shownToken(std::size_t column);
std::string changeToken(std::size_t column);

// `report` is the one of `reportTemplate`, whose columns are `columns`.
std::string textOf(const EvaluatedReport& report, const ReportTemplate& reportTemplate,
                   const std::vector<ComparedColumn>& columns);
}
