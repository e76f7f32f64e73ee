// The orders in which the rows of a list carry their tokens. Rows of one list share few of them, so that what was found
// once for a layout ("%Weight is the seventh tuple") holds for all its rows.
//
//   layouts.layoutOf(row)   ->  0     %Num %Name %Weight
//   layouts.layoutOf(next)  ->  1     %Num %Weight          the next row has no name
//
// A layout is told by the texts that the tokens are handles to, not by their characters: rows whose equal tokens are
// separate texts have separate layouts. Past kMostLayouts a row has none.
#pragma once

#include "VorBomItemBase.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

class VorBomRowLayouts
{
public:
    static constexpr int kNoLayout = -1;

    // Rows with so many different layouts gain nothing from their being remembered. Arbitrary.
    static constexpr int kMostLayouts = 1000;

    // The number of the row's layout, counted from 0, or kNoLayout. A row that was asked for just before and has as
    // many tuples still is taken to have the same layout; if it has more, only those are looked at.
    int layoutOf(const VorBomItemBase& row)
    {
        for (const Remembered& remembered : m_remembered)
            if (remembered.pRow == &row && remembered.numTuples == row.getData().length())
                return remembered.layout;
        return findLayout(row);
    }

private:
    struct Layout
    {
        std::vector<VorString> tokens;
        int latestLonger = kNoLayout; // that of the row which grew out of this one last
    };

    struct Remembered
    {
        const VorBomItemBase* pRow = nullptr;
        int numTuples = 0;
        int layout = kNoLayout;
    };

    int findLayout(const VorBomItemBase& row);
    int findLonger(const Remembered& shorter, const VorBomDataTupleArray& tuples);
    int findOrAddLayout(const VorBomDataTupleArray& tuples);
    Layout& layoutAt(int number) { return m_layouts[static_cast<std::size_t>(number)]; }

    std::vector<Layout> m_layouts;
    std::unordered_multimap<std::size_t, int> m_byHash;
    int m_nLatest = kNoLayout;  // of a row that was met for the first time
    Remembered m_remembered[2]; // latest first: a row and the one before it are compared level by level
};
