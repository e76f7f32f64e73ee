// Sorting as the slow second evaluator of reports does it: by insertion, comparing the rows' values anew each time.
#pragma once

#include "ReferenceData.h"

#include <string>
#include <vector>

struct SortKey
{
    std::wstring token;
    bool ascending;
};

// Appends what sorting requests ask for. An element without a direction of its own takes that of the one before it,
// `ascending`, which is also carried to the next call.
//   "%SortDescBy:%A", "%B"  ->  %A descending, %B descending
void addSortKeys(std::vector<SortKey>& keys, const std::vector<std::wstring>& requests, bool& ascending);

// By each token's own order, natural for some; rows without the datum come first, ascending.
void sortRows(std::vector<RefRow*>& rows, const std::vector<SortKey>& keys);

// Whether the keys give these rows one order, whatever the way of sorting.
bool haveOneOrder(const std::vector<RefRow*>& rows, const std::vector<SortKey>& keys);

// Sorts the evaluated sections below `item` by the rows that opened them, never naturally, each with the footer that
// follows it. Those on the level `requests[0]` are the children of `item`; levels without requests stay as they are.
// False when some of them have no one order; they are then in any.
bool sortSections(RefSection& item, const std::vector<std::vector<std::wstring>>& requests, std::size_t level = 0);
