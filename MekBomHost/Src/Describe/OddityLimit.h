// How much of what is odd about a parts list is told: the first few hundred oddities, so that a file which is odd
// throughout does not become a book, and since to find the place of a cell takes a look at its whole record.
//
//   OddityLimit limit;
//   if (limit.takeOne())
//       tell(oddity);
//   limit.isExceeded()   ->  false: all were told
#pragma once

#include <cstddef>

namespace mekbom
{
class OddityLimit
{
public:
    static constexpr std::size_t kMostTold = 300; // arbitrary: more than anybody reads

    // Whether one more is told.
    bool takeOne()
    {
        m_isExceeded = m_numTold == kMostTold;
        m_numTold += m_isExceeded ? 0 : 1;
        return !m_isExceeded;
    }

    bool isExceeded() const { return m_isExceeded; }

private:
    std::size_t m_numTold = 0;
    bool m_isExceeded = false;
};
}
