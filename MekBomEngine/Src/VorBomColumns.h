// Data looked up in many rows: a list of tokens, and where each layout of rows has them.
//
//   VorBomColumns columns(layouts, { L"%Material", L"%Weight" });
//   columns.find(row);
//   columns[1]   ->  the row's first tuple "%Weight", or null
//
// Finds what VorBomItemBase::getTupleAt finds. The tuples are those of the row asked for last, as it was then.
#pragma once

#include "VorBomItemBase.h"
#include "VorBomRowLayouts.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorString.h"

#include <memory>
#include <vector>

class MEK_BOM_API VorBomColumns
{
public:
    VorBomColumns(std::shared_ptr<VorBomRowLayouts> pLayouts, std::vector<VorString> tokens);

    // Looks all tokens up in `row`.
    void find(VorBomItemBase& row);

    int count() const { return static_cast<int>(m_tokens.size()); }
    VorBomDataTuple* operator[](int column) const { return m_found[static_cast<std::size_t>(column)]; }

private:
    using Positions = std::vector<int>; // per token; kNone where the layout lacks it
    static constexpr int kNone = -1;

    const Positions& positionsFor(int layout, const VorBomDataTupleArray& tuples);

    std::shared_ptr<VorBomRowLayouts> m_pLayouts;
    std::vector<VorString> m_tokens;
    std::vector<VorBomDataTuple*> m_found;
    std::vector<Positions> m_positions; // per layout; empty where none was asked for
    int m_nLatestLayout = VorBomRowLayouts::kNoLayout;
    const int* m_pLatestPositions = nullptr;
};
