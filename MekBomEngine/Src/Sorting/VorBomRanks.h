// Whole numbers that order the values of one column as comparing them does: equal values get one rank, a smaller value
// a smaller rank. Rows sorted by ranks hardly ever look at their values again.
//
//   values  "B10" "B2" none "B10", natural order   ->   ranks  2 1 0 2, three of them
//   values  2.0 2.0000004 7.5 2.0000008            ->   ranks  1 1 2 1: all within 1e-6 of each other are equal
//
// Not all values have an order. Doubles closer than 1e-6 are equal, so that a may equal b and b equal c, but not a equal
// c; a NaN equals everything; comparing reports unlike kinds and answers -1 both ways; and natural order knows no
// numbers. Such values share one rank, which is called unordered: among its rows comparing must decide.
//
//   values  2.0 2.0000008 7.5 2.0000016            ->   ranks  1 1 2 1, of which 1 is unordered
//   values  2.0 7 7.5 none                         ->   ranks  1 1 1 0, of which 1 is unordered
#pragma once

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"
#include "VorBomValueOrder.h"

#include <cstdint>
#include <vector>

class VorBomRanks
{
public:
    // Ranks a column of one tuple per row, null for a row without the datum, which ranks lowest.
    // Texts that `order` lists rank by their places, below all others.
    VorBomRanks(const std::vector<const VorBomDataTuple*>& tuples, VorBomDataToken::eSortType sortType,
                const VorBomValueOrder& order = VorBomValueOrder());

    std::uint32_t rankOf(std::uint32_t row) const { return m_ranks[row]; }
    bool hasDatum(std::uint32_t row) const { return m_ranks[row] != kWithoutDatum; }

    // Whether comparing must decide among the rows that have this row's rank, and whether there are any such.
    bool isUnordered(std::uint32_t row) const { return hasUnordered() && m_isUnordered[m_ranks[row]] != 0; }
    bool hasUnordered() const { return !m_isUnordered.empty(); }

    // Reorders `rows`, which are indices into the column, by rank; rows of equal rank keep their order.
    void sortStably(std::vector<std::uint32_t>& rows, bool isAscending) const;

private:
    static constexpr std::uint32_t kWithoutDatum = 0;

    void rankTexts(const std::vector<const VorBomDataTuple*>& tuples, bool naturally, const VorBomValueOrder& order);
    template <class Number>
    void rankNumbers(const std::vector<const VorBomDataTuple*>& tuples);
    void rankAllAlike(const std::vector<const VorBomDataTuple*>& tuples);
    void markUnordered(std::uint32_t rank);

    std::vector<std::uint32_t> m_ranks; // kWithoutDatum, or a number from 1
    std::uint32_t m_nNumRanks = 1;      // rank 0 is there even where every row has the datum
    std::vector<char> m_isUnordered;    // 1 or 0 for each rank; empty when all are ordered
};
