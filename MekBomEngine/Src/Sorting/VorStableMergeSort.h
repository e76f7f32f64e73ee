// A stable sort that any answers of its comparison leave safe: it always ends, and every element stays exactly once.
// The standard's sorts promise neither when values of unlike kinds make the order inconsistent.
//
//   const std::vector<std::uint32_t> places = vorStableMergeSort(rows.size(), isNotAfter);
//   rows[places[0]]   ->  the row to stand first
//
// Sorts the places of a list: isNotAfter(a, b) says that what stands at place a may stand before what stands at b. Merges
// the places below 2, 4, 8 ... with as many behind them, asking only about the two heads of neighbours; of two that may
// stand before each other the left one goes first. n log n comparisons, one buffer of n places.
//
// Where answers are no order, what comes out depends on what was merged with what. That is told by the places, so some of
// them alone come out as they do among all others, if each of the others stands clearly before or clearly behind them:
//   places 0 to 7, all sorted      (0 1)(2 3)(4 5)(6 7), then (0 1 2 3)(4 5 6 7), then all
//   places 0 1 4 6, sorted alone   (0 1)(4)(6), then (0 1)(4 6), then all: the same, the others left out
#pragma once

#include "MekRoots/Exp/VorBits.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <vector>

// Sorts some places, from `pPlaces` up to `pEnd` and ascending at first. At `pBuffer` there is room for as many.
template <class IsNotAfter>
void vorStableMergeSort(std::uint32_t* pPlaces, std::uint32_t* pEnd, std::uint32_t* pBuffer, IsNotAfter& isNotAfter)
{
    if (pEnd - pPlaces < 2)
        return;
    // All bits above the highest in which the first place differs from the last are common to all.
    const std::uint32_t half = std::uint32_t{ 1 } << VorBits::highestBit(*pPlaces ^ pEnd[-1]);
    std::uint32_t* const pMiddle =
        std::partition_point(pPlaces, pEnd, [half](std::uint32_t place) { return (place & half) == 0; });
    vorStableMergeSort(pPlaces, pMiddle, pBuffer, isNotAfter); // at most 32 deep, a level for each bit
    vorStableMergeSort(pMiddle, pEnd, pBuffer, isNotAfter);

    const std::uint32_t* const pLeftEnd = std::copy(pPlaces, pMiddle, pBuffer);
    const std::uint32_t* pLeft = pBuffer;
    const std::uint32_t* pRight = pMiddle;
    for (std::uint32_t* pTarget = pPlaces; pLeft < pLeftEnd; ++pTarget)
        *pTarget = pRight == pEnd || isNotAfter(*pLeft, *pRight) ? *pLeft++ : *pRight++;
}

// Sorts the places 0 to `numPlaces` - 1.
template <class IsNotAfter>
std::vector<std::uint32_t> vorStableMergeSort(std::size_t numPlaces, IsNotAfter isNotAfter)
{
    std::vector<std::uint32_t> places(numPlaces);
    std::vector<std::uint32_t> buffer(numPlaces);
    std::iota(places.begin(), places.end(), 0U);
    vorStableMergeSort(places.data(), places.data() + numPlaces, buffer.data(), isNotAfter);
    return places;
}
