// Data looked up in many rows: a list of tokens, and where each layout of rows has them.
//
//   VorBomColumns columns(layouts, { L"%Material", L"%Weight" });
//   columns.find(row);
//   columns[1]   ->  the row's first tuple "%Weight", or null
//
// Finds what VorBomItemBase::getTupleAt finds. What columns[] answers is valid until find() is asked for another row or
// the row gets further tuples.
#pragma once

#include "VorBomItemBase.h"
#include "VorBomRowLayouts.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <memory>
#include <vector>

class VorBomColumns
{
public:
    VorBomColumns(std::shared_ptr<VorBomRowLayouts> pLayouts, std::vector<VorString> tokens);

    // Takes `column` for one that no row has. To be called before the first find().
    void leaveOut(int column) { m_leftOut.push_back(column); }

    // Columns are moved, never copied: they point into their own list of positions.
    VorBomColumns(const VorBomColumns&) = delete;
    VorBomColumns& operator=(const VorBomColumns&) = delete;
    VorBomColumns(VorBomColumns&&) noexcept = default;
    VorBomColumns& operator=(VorBomColumns&&) noexcept = default;
    ~VorBomColumns() = default;

    // Looks all tokens up in `row`.
    void find(VorBomItemBase& row)
    {
        m_pTuples = row.getData().begin();
        const int layout = m_pLayouts->layoutOf(row);
        if (layout != m_nLayout || layout == VorBomRowLayouts::kNoLayout)
            usePositionsOf(layout, row.getData());
    }

    int count() const { return static_cast<int>(m_tokens.size()); }

    VorBomDataTuple* operator[](int column) const
    {
        const int position = m_pPositions[column];
        return position < 0 ? nullptr : m_pTuples + position;
    }

private:
    using Positions = std::vector<int>; // per token; VorBomTupleFinder::kNone where the layout lacks it

    void usePositionsOf(int layout, const VorBomDataTupleArray& tuples);
    Positions positionsIn(const VorBomDataTupleArray& tuples) const;

    std::shared_ptr<VorBomRowLayouts> m_pLayouts;
    std::vector<VorString> m_tokens;
    std::vector<int> m_leftOut;
    std::vector<Positions> m_positions; // per layout; empty where none was asked for
    Positions m_positionsOfRow;         // of a row that has no layout

    // The row that find() was called for last: its layout, the positions in it, its tuples.
    int m_nLayout = VorBomRowLayouts::kNoLayout;
    const int* m_pPositions = nullptr;
    VorBomDataTuple* m_pTuples = nullptr;
};
