// The first record of a parts list, which names its columns, and what every other must have in common with it.
//
//   const Record& headings = HeaderRow::read(source);
//   HeaderRow::wrongNumberOfFields(3, 4)      ->  found 3 fields, expected 4 as in the header row
#pragma once

#include "Finding.h"
#include "RecordSource.h"

#include <cstddef>

namespace mekbom::HeaderRow
{
// Good until the next record is read. Throws a Fault of status kInvalidInput when there is none.
const Record& read(RecordSource& source);

// A finding without its place.
Finding wrongNumberOfFields(std::size_t numFields, std::size_t numColumns);
}
