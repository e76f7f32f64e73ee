// The first record of a parts list, which names its columns, and what every other must have in common with it.
//
//   const Record& headings = HeaderRow::read(source);
//   HeaderRow::wrongNumberOfFields(3, 4)      ->  found 3 fields, expected 4 as in the header row
//   HeaderRow::tooManyColumns(1000000)        ->  found 1000000 columns, expected 16384 at most
#pragma once

#include "Finding.h"
#include "RecordSource.h"

#include <cstddef>

namespace mekbom::HeaderRow
{
// Good until the next record is read. Throws a Fault of status kInvalidInput when there is none, and when it has more
// columns than InputLimits allow.
const Record& read(RecordSource& source);

// Findings without their place.
Finding wrongNumberOfFields(std::size_t numFields, std::size_t numColumns);
Finding tooManyColumns(std::size_t numColumns);
}
