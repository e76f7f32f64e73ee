// What a user should know of how the columns of a parts list and a list go together, as findings.
//
//   const Finding note = ColumnNotes::missing(parts, "parts.csv", { "%Length" });
//
// says of a parts list with columns "length" and "Weight"
//
//   parts.csv has no column for %Length, which the template asks for: did you mean its column "length"?
#pragma once

#include "Finding.h"
#include "PartsList.h"

#include <string>
#include <vector>

namespace mekbom::ColumnNotes
{
// Says that the list asks for `tokens`, at least one, for which the parts list called `source` has no columns.
Finding missing(const PartsList& parts, const std::string& source, const std::vector<std::string>& tokens);

// Says why nobody can tell what a column is, of which that is known, to those who need not know it for certain.
Finding inDoubt(const InputColumn& column, const std::string& source);

// Says that a list was chosen, of that name and title, because it suits the columns. The title may be empty.
Finding chosen(const std::string& name, const std::string& title);

// Says that no list suits the columns of the parts list called `source`, so that they are printed as they are.
Finding printedAsTheyAre(const PartsList& parts, const std::string& source);
}
