// The rows of a list in the order of its sort keys, the first key counting most; rows equal under all keys keep their
// order. A row without a key's datum stands before those that have it when ascending, after them when descending.
//
//   VorBomSortedRows rows(data, keys);   // %Material and %Length, length descending
//   rows.sorted()  ->  S235 200, S355 300, S355 100
//
// Each row's tuples are looked up once, and rows are sorted by counting the ranks of their values (VorBomRanks), from the
// last key to the first. Where values of a key have no order, and only among rows that are equal under all keys before,
// values are compared in a stable merge: the result is that of such a merge over all rows.
#pragma once

#include "VorBomData.h"
#include "VorBomRanks.h"
#include "VorBomSortKeys.h"

#include <cstdint>
#include <vector>

class VorBomSortedRows
{
public:
    VorBomSortedRows(VorBomData& data, const VorBomSortKeys& keys);

    // All rows, in order; the data's own chain stays as it is. To be called once.
    std::vector<VorBomItemBase*> sorted();

    // The row that was last when the rows were looked up; null without rows.
    VorBomItemBase* lastInList() const { return m_rows.empty() ? nullptr : m_rows.back(); }

private:
    using Column = std::vector<const VorBomDataTuple*>; // one tuple per row

    // Ranks of all columns, one for each key.
    using Ranks = std::vector<VorBomRanks>;

    Ranks rankColumns();
    void mergeUnordered(const Ranks& ranks, std::vector<std::uint32_t>& indices);
    void reportUnknownKeys(const Ranks& ranks, const std::vector<std::uint32_t>& indices);
    int compareRows(std::uint32_t first, std::uint32_t second, std::size_t firstKey);

    VorBomSortKeys m_keys;
    std::vector<VorBomItemBase*> m_rows;
    std::vector<Column> m_columns; // one per key, empty once no comparison needs it
};
