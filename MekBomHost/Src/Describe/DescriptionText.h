// The description of a parts list as a page for a terminal: its columns, what is odd, and which lists suit it.
//
//   DescriptionText::of(description, covers)
//
//   parts.csv: 2 rows, 3 columns
//
//   Heading      Token      Kind          Unit  Filled  Distinct  Smallest  Largest  Sum of rows  Sum of pieces
//   Name         %Name      text                2 of 2         2    HEA200   IPE360
//   Length [ft]  %Length    length        ft    2 of 2         2       7.5       10         17.5             50
//   Quantity     %Quantity  whole number        2 of 2         2         2        4            6
//   ...
#pragma once

#include "PartsDescription.h"
#include "TemplateCover.h"

#include <string>
#include <vector>

namespace mekbom::DescriptionText
{
// UTF-8; ends with a line end. `covers` are of the lists that come with the program, the best first.
std::string of(const PartsDescription& description, const std::vector<TemplateCover>& covers);
}
