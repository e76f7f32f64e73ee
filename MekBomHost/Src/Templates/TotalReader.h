// What a template file says of totals: which a column shows in footers, and which one groups are in the order of.
//
//   column    { "token": "%Length", "total": "mean" }
//   section   { "type": "kGroupHeader", "orderGroups": { "by": "%SumBy:%Weight", "descending": true }, ... }
//
// Each is read where it stands, and looked at again when all sections are there: both name totals of a footer.
#pragma once

#include "JsonChecker.h"
#include "ReportTemplate.h"

namespace mekbom::TotalReader
{
// Of the column, or the section, that the item is. What is wrong is a finding, and read as if it were not there.
ColumnTotal totalOf(JsonChecker& json, const JsonItem& column);
GroupOrderStyle groupOrderOf(JsonChecker& json, const JsonItem& section);

// Adds a finding for each sum that a calculated total or an order names, and the footer it is for has not.
void checkSums(JsonChecker& json, const ReportTemplate& reportTemplate);
}
