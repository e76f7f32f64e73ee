// The columns that the header row of a parts list names, and what is wrong with it.
//
//   const HeaderColumns header = HeaderColumns::read(source, HeadingChoices());     "Name,Length [ft],Name"
//
//   header.columns     %Name   %Length in ft   %Name
//   header.mistakes    column "%Name" a second time
//
// What a column holds follows from more than its heading: ColumnTypes.
#pragma once

#include "FindingList.h"
#include "InputColumn.h"
#include "RecordSource.h"

#include <vector>

namespace mekbom
{
struct HeaderColumns
{
    // Reads the first record. Throws a Fault of status kInvalidInput when there is none, and of kWrongUsage when a
    // heading that must be there is not.
    static HeaderColumns read(RecordSource& source, const HeadingChoices& choices);

    std::vector<InputColumn> columns; // one for each cell of the header row
    FindingList mistakes;             // with their places; a list with one of them cannot be told what its columns are
};
}
