// Which line of a list is which line of an older one: first by the objects behind them, then by what the list tells its
// lines apart by.
//
//   old    P1 {h1, h2}   P2 {h3}         new    P1 {h9}   P7 {h1}
//   pairs  P7 is the old P1, renamed: both have h1; the new P1 has an object that was not there, and the mark of a line
//          that is taken; the old P2 is gone
//
//   LinePairs::of(oldList, newList)      ->  old 0 with new 1, old 1 alone, new 0 alone
#pragma once

#include "ComparedList.h"

#include <cstddef>
#include <vector>

namespace mekbom
{
struct LinePair
{
    const ComparedLine* pOld = nullptr; // null for a line that was added
    const ComparedLine* pNew = nullptr; // null for one that is gone
};

namespace LinePairs
{
// Every line of both lists once: those of the new list in their order, then the old ones that are gone. The lists are not
// owned and outlive the pairs. Of several lines that share objects those that share the most belong together, and of
// lines of one key the first with the first.
std::vector<LinePair> of(const ComparedList& oldList, const ComparedList& newList);
}
}
