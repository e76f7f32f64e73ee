// Finds the columns of a template that say of their numbers what these do not have.
//
//   { "token": "%Length", "unit": "kg" }     found "kg", expected a unit of distance such as mm, m, in or ft, ...
//   { "token": "%Quantity", "unit": "m" }    the unit "m" is for quantities, of which the column has none
//   { "token": "%Weight", "result": "EUR" }  the result "EUR" is for formulas, of which the column has none
//   { "token": "%Weight", "label": "Weight [m]" }   the label "Weight [m]" names m, but the numbers are weight
#pragma once

#include "Finding.h"
#include "ReportLayout.h"
#include "ReportTemplate.h"
#include "TokenQuantities.h"

#include <vector>

namespace mekbom::ColumnCheck
{
// The errors, in the order of the columns, each with its place in the template, without the name of the file. What hidden
// columns say is not looked at.
std::vector<Finding> errorsOf(const ReportTemplate& reportTemplate, const ReportLayout& layout,
                              const TokenQuantities& quantities);
}
