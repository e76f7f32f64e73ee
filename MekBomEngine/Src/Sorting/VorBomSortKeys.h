// What rows are sorted by: tokens, each with a direction, the first counting most.
//
//   VorBomSortKeys keys(tokens, orders, types);   "%Material" and "%Length", 1 and 0: the one ascending, the other not
//   keys.compare([&](std::size_t key) { return first.getTupleAt(keys.token(key)); },
//                [&](std::size_t key) { return second.getTupleAt(keys.token(key)); })   ->  -1, 0 or 1
//
// Two values compare in natural order where the token's sort type asks for it, plainly elsewhere; the sort type is the
// one that the template sets for the token, else that of the catalogue. A row without a key's
// datum stands before those that have it when ascending, after them when descending.
#pragma once

#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <vector>

class VorBomSortKeys
{
public:
    // What stands among sort types for a token whose order nobody has set.
    static constexpr int kByCatalogue = -1;

    // One entry for each token: 1 for ascending or 0 for descending, and an eSortType or kByCatalogue.
    VorBomSortKeys(const VorStringArray& tokens, const VorArray<int>& orders, const VorArray<int>& sortTypes);

    std::size_t count() const { return m_keys.size(); }
    const VorString& token(std::size_t key) const { return m_keys[key].token; }
    bool isAscending(std::size_t key) const { return m_keys[key].isAscending; }

    // An eSortType; kByCatalogue for a token that has none, neither set nor of its own in the catalogue.
    int sortType(std::size_t key) const { return m_keys[key].sortType; }

    // Compares two rows, of which firstTuple(key) and secondTuple(key) tell the tuple under a key, or null.
    template <class FirstTuple, class SecondTuple>
    int compare(FirstTuple firstTuple, SecondTuple secondTuple)
    {
        for (std::size_t key = 0; key < m_keys.size(); ++key)
            if (const int order = m_keys[key].compare(firstTuple(key), secondTuple(key)))
                return order;
        return 0;
    }

private:
    struct Key
    {
        int compare(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond);
        int compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond);

        VorString token;
        bool isAscending;
        int sortType;
    };

    std::vector<Key> m_keys;
};
