// The sum of many numbers, as exact as a long double is, in whatever order they come: the compensated sum of Kahan, as
// Neumaier improved it.
//
//   ExactSum sum;
//   for (const double number : { 1e18, 0.001, -1e18 })
//       sum.add(number);
//   sum.value()   ->  0.001
//   sum.size()    ->  2e18
#pragma once

#include <cmath>

namespace mekbom
{
class ExactSum
{
public:
    explicit ExactSum(long double start = 0) : m_sum(start), m_size(std::fabs(start)) {}

    // What an addition rounds away is found by taking the larger number off the sum again.
    void add(double number)
    {
        const long double before = m_sum;
        m_sum += number;
        m_rest += std::fabs(before) >= std::fabs(number) ? (before - m_sum) + number : (number - m_sum) + before;
        m_size += std::fabs(number);
    }

    // What is left of an infinite sum is no number.
    long double value() const { return std::isfinite(m_sum) ? m_sum + m_rest : m_sum; }
    long double size() const { return m_size; } // of all that was added, signs left out

private:
    long double m_sum;
    long double m_rest = 0; // what rounding has taken from the sum
    long double m_size;
};
}
