// The places of texts that a host has put in an order of its own.
//
//   const VorBomValueOrder order(phases);   // "ground", "roof"
//   order.placeOf(L"roof")    ->  1
//   order.placeOf(L"annex")   ->  2, as of every text that is not listed
//
// Copies share the places, which never change.
#pragma once

#include "VorBomDataTuple.h"

#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorStringHashMap.h"

#include <memory>

class VorBomValueOrder
{
public:
    VorBomValueOrder() = default; // of no texts
    // Of equal texts the first counts.
    explicit VorBomValueOrder(const VorStringArray& texts);

    bool isEmpty() const { return m_pPlaces == nullptr; }
    int placeOf(const VorString& text) const;

    // -1, 0 or 1 by places; 0 for two that are not listed. A value that is no text is not listed.
    int compare(const VorBomDataValue& first, const VorBomDataValue& second) const;

private:
    int placeOf(const VorBomDataValue& value) const;

    std::shared_ptr<const VorStringHashMap<int>> m_pPlaces; // null for no texts
    int m_nBehindAll = 0;
};
