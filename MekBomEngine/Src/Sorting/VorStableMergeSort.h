// A stable sort that any answers of its comparison leave safe: it always ends, and every element stays exactly once.
// The standard's sorts promise neither when values of unlike kinds make the order inconsistent.
//
//   vorStableMergeSort(entries, isNotAfter);   // isNotAfter(a, b): a may stand before b
//
// Merges runs of 1, 2, 4 ... elements from the left, asking only about the two heads of neighbouring runs; of two that
// may stand before each other the left one goes first. n log n comparisons, one buffer of n elements.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

template <class T, class IsNotAfter>
void vorStableMergeSort(std::vector<T>& elements, IsNotAfter isNotAfter)
{
    const std::size_t numElements = elements.size();
    std::vector<T> merged(numElements);
    for (std::size_t runLength = 1; runLength < numElements; runLength *= 2)
    {
        for (std::size_t begin = 0; begin < numElements; begin += 2 * runLength)
        {
            const std::size_t middle = std::min(begin + runLength, numElements);
            const std::size_t end = std::min(middle + runLength, numElements);
            std::size_t left = begin;
            std::size_t right = middle;
            for (std::size_t target = begin; target < end; ++target)
            {
                const bool takesLeft = left < middle && (right == end || isNotAfter(elements[left], elements[right]));
                merged[target] = elements[takesLeft ? left++ : right++];
            }
        }
        std::swap(elements, merged);
    }
}
