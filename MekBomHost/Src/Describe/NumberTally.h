// The numbers of one column: the smallest, the largest, and what they add up to, by rows and by pieces.
//
//   NumberTally lengths;
//   lengths.add(3185, 0, 4);          // four pieces of 3185
//   lengths.add(240.5, 1, 16);
//   lengths.smallest()       ->  240.5
//   lengths.sum()            ->  3425.5, of two rows
//   lengths.sumOfPieces()    ->  16588, of twenty pieces
//   lengths.numDecimals()    ->  1
//
// No rounding shows in the sums of a million numbers (ExactSum).
#pragma once

#include "ExactSum.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace mekbom
{
class NumberTally
{
public:
    // `number` is finite and written with `numDecimals` digits behind its point.
    void add(double number, int numDecimals, int numPieces)
    {
        ++m_count;
        m_smallest = std::min(m_smallest, number);
        m_largest = std::max(m_largest, number);
        m_numDecimals = std::max(m_numDecimals, numDecimals);
        m_sum.add(number);
        m_sumOfPieces.add(number * numPieces);
    }

    std::size_t count() const { return m_count; }

    // Only where there is a number. Sums may be infinite.
    double smallest() const { return m_smallest; }
    double largest() const { return m_largest; }
    double sum() const { return static_cast<double>(m_sum.value()); }
    double sumOfPieces() const { return static_cast<double>(m_sumOfPieces.value()); }

    // The most that a number is written with.
    int numDecimals() const { return m_numDecimals; }

private:
    std::size_t m_count = 0;
    double m_smallest = std::numeric_limits<double>::infinity();
    double m_largest = -std::numeric_limits<double>::infinity();
    int m_numDecimals = 0;
    ExactSum m_sum;
    ExactSum m_sumOfPieces;
};
}
