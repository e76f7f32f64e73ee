// Whole numbers that order the values of one column as comparing them does: equal values get one rank, a smaller value
// a smaller rank. Rows sorted by ranks never look at their values again.
//
//   values  "B10" "B2" none "B10", natural order   ->   ranks  2 1 0 2, three of them
//
// Not every column can be ranked. Comparing reports unlike kinds and answers -1 both ways; doubles closer than 1e-6 are
// equal, so that a may equal b and b equal c, but not a equal c, and a NaN equals everything; and natural order knows
// no numbers. For such columns there is no order but what comparisons make of it, and create() gives none.
#pragma once

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"

#include <cstdint>
#include <vector>

class VorBomRanks
{
public:
    // Ranks a column of one tuple per row, null for a row without the datum, which ranks lowest. Answers 0, and has no
    // ranks then, when the column cannot be ranked.
    int create(const std::vector<const VorBomDataTuple*>& tuples, VorBomDataToken::eSortType sortType);

    // Reorders `rows`, which are indices into the column, by rank; rows of equal rank keep their order.
    void sortStably(std::vector<std::uint32_t>& rows, bool isAscending) const;

private:
    int rankTexts(const std::vector<const VorBomDataTuple*>& tuples, bool naturally);
    template <class Number>
    int rankNumbers(const std::vector<const VorBomDataTuple*>& tuples);

    std::vector<std::uint32_t> m_ranks; // 0 for a row without the datum, the others from 1
    std::uint32_t m_nNumRanks = 1;
};
