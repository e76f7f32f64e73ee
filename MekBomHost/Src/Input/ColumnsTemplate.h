// The template that prints a parts list as it is: every column, in the order of the file, and the totals that follow
// from them. It is the list of those who name none and whom no shipped one suits, and the one that authors begin with.
//
//   const std::string text = ColumnsTemplate::textOf(parts.columns());
//
// is, for columns %Name, %Quantity and %Weight, the text of a template file that prints
//
//   Name    Quantity  Weight [kg]  Total weight [kg]
//   ------  --------  -----------  -----------------
//   HEA200         2        260.6              521.2
//   IPE360         1        673.8              673.8
//   ------  --------  -----------  -----------------
//   Total          3                            1195
//
// Rows are sorted by the first column of texts, 2 before 10; equal ones get a line each.
#pragma once

#include "InputColumn.h"

#include <string>
#include <vector>

namespace mekbom::ColumnsTemplate
{
// As TemplateReader takes it, whatever the columns are called, with comments for its author. Of a column that the
// catalogue of tokens does not know it says what the column holds, as far as that is known: by its unit or its type.
// Columns whose token asks for something that is no datum of a row, such as "%SumBy:%Weight", are left out: in a
// template they would mean what they say.
std::string textOf(const std::vector<InputColumn>& columns);
}
