// The rows of a list in the order of its sort keys, the first key counting most; rows equal under all keys keep their
// order. A row without a key's datum stands before those that have it when ascending, after them when descending.
//
//   VorBomSortedRows rows(data, { L"%Material", L"%Length" }, { 1, 0 });   material ascending, length descending
//   rows.sorted()
//
// Each row's tuples are looked up once. Columns that can be ranked (VorBomRanks), as nearly all can, are sorted by
// counting ranks, from the last key to the first; if one cannot, values are compared in a stable merge.
#pragma once

#include "VorBomData.h"

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <cstdint>
#include <vector>

class VorBomSortedRows
{
public:
    // `orders` holds 1 for ascending or 0 for descending, one for each token.
    VorBomSortedRows(VorBomData& data, const VorStringArray& tokens, const VorArray<int>& orders);

    std::vector<VorBomItemBase*> sorted();

    // The row that was last when the rows were looked up; null without rows.
    VorBomItemBase* lastInList() const { return m_rows.empty() ? nullptr : m_rows.back(); }

    // One key's comparison of two rows' tuples: natural or plain, as the token's sort type asks for.
    class KeyComparison
    {
    public:
        KeyComparison(const VorString& token, int ascending) : m_token(token), m_isAscending(ascending == 1) {}

        // -1, 0 or 1; either may be null. The catalogue is asked at the first comparison of two values, since it
        // reports tokens that it does not know, and only then.
        int compare(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond);

        const VorString& token() const { return m_token; }
        bool isAscending() const { return m_isAscending; }

    private:
        int compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond);

        VorString m_token;
        bool m_isAscending;
        bool m_knowsSortType = false;
        bool m_isNatural = false;
    };

private:
    using Column = std::vector<const VorBomDataTuple*>; // one tuple per row

    bool sortByRanks(std::vector<std::uint32_t>& indices) const;
    int compareRows(std::uint32_t first, std::uint32_t second);

    std::vector<KeyComparison> m_keys;
    std::vector<VorBomItemBase*> m_rows;
    std::vector<Column> m_columns; // one per key
};
