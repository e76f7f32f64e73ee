// Finds the tuples of one item by many tokens: through a table where looking through the tuples each time would cost
// their number times that of the tokens.
//
//   const VorBomTupleFinder finder(row.getData(), tokens.length());
//   finder.find(token)   ->  what row.getTupleAt(token) finds
//
// The tuples are not owned and must not change meanwhile.
#pragma once

#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <optional>

class VorBomTupleFinder
{
public:
    static constexpr int kNone = -1;

    // `numTokens` is how many will be asked for.
    VorBomTupleFinder(const VorBomDataTupleArray& tuples, int numTokens);

    // The first tuple with exactly this token, or null; its index, or kNone.
    const VorBomDataTuple* find(const VorString& token) const;
    int indexOf(const VorString& token) const;

private:
    // Fewer tokens are found faster among the tuples than a table is made. Measured with BM_CompareByManyTokens.
    static constexpr int kFewTokens = 32;

    const VorBomDataTupleArray& m_tuples;
    std::optional<VorStringHashMap<int>> m_indices; // of each token's first tuple
};
