// What has to be known of a report, beside its lines, to say what it is made of.
//
//   ListFacts facts;
//   facts.numRowsRead = 417;
//   facts.filtered.push_back({ "%Material = 'S355'", false, 12 });
//   facts.rows = tally.counts();
#pragma once

#include "FilteredRows.h"
#include "RowTally.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct ListFacts
{
    int numRowsRead = 0;
    int numParents = 0; // of these, rows whose parts stand in their place
    int numSets = 1;    // that the pieces are for
    std::vector<FilteredRows> filtered;
    RowCounts rows;                  // of those that no filter took
    int numRowsInOtherLines = 0;     // listed ones that were counted into the line of another
    int numEmptyRows = 0;            // of the file, passed over
    bool countsRowsAsPieces = false; // the data say of no row how many pieces it stands for
    bool areUnitsAssumed = false;    // some length or weight came without a unit, and was read as mm or kg
    std::size_t numWarnings = 0;

    // What is told below the list in place of all this, where lines are not made of a parts list's rows.
    std::vector<std::string> statements;
};
}
