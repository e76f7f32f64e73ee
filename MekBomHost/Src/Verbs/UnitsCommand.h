// `mekbom units`: the catalogue of units, and single quantities from one unit to another.
//
//   mekbom units                             the catalogue as a table
//   mekbom units convert 2286 mm ft-in/16    7' 6"
//   mekbom units read "7'-6 1/2\""           2298.7
#pragma once

#include "UnitsOptions.h"

#include <string>

namespace mekbom::UnitsCommand
{
// The text to print, in UTF-8. Throws a Fault of status kWrongUsage for words that are no units and no quantities.
std::string textOf(const UnitsOptions& options);
}
