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

#include "VorBomDataToken.h"
#include "VorBomDataTuple.h"
#include "VorBomValueOrder.h"

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

    // Texts that `order` lists compare by their places from now on, and stand before all others. A token that somebody
    // has put in order is known.
    void setValueOrder(std::size_t key, const VorBomValueOrder& order);
    const VorBomValueOrder& valueOrder(std::size_t key) const { return m_keys[key].valueOrder; }

    std::size_t count() const { return m_keys.size(); }
    const VorString& token(std::size_t key) const { return m_keys[key].token; }
    bool isAscending(std::size_t key) const { return m_keys[key].isAscending; }

    // Values under a token that nobody knows, neither host nor catalogue, compare plainly.
    VorBomDataToken::eSortType sortType(std::size_t key) const
    {
        const int type = m_keys[key].sortType;
        return type == kByCatalogue ? VorBomDataToken::kSortString : static_cast<VorBomDataToken::eSortType>(type);
    }

    bool isUnknown(std::size_t key) const { return m_keys[key].sortType == kByCatalogue; }

    // Reports a token that nobody knows, as the first comparison of two values under it does; nothing after that.
    void reportIfUnknown(std::size_t key) { m_keys[key].findSortType(); }

    // Compares two rows, of which firstTuple(key) and secondTuple(key) tell the tuple under a key, or null. The keys
    // before `firstKey` are known to be equal.
    template <class FirstTuple, class SecondTuple>
    int compare(FirstTuple firstTuple, SecondTuple secondTuple, std::size_t firstKey = 0)
    {
        for (std::size_t key = firstKey; key < m_keys.size(); ++key)
            if (const int order = m_keys[key].compare(firstTuple(key), secondTuple(key)))
                return order;
        return 0;
    }

private:
    struct Key
    {
        int compare(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond);
        int compareValues(const VorBomDataTuple* pFirst, const VorBomDataTuple* pSecond);
        void findSortType();

        VorString token;
        bool isAscending;
        int sortType;
        VorBomValueOrder valueOrder = {};
    };

    std::vector<Key> m_keys;
};
