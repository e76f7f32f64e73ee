// The texts of one column: how many different ones, and the first and the last in natural order, 2 before 10.
//
//   TextTally marks;
//   for (const char* const pMark : { "B10", "B2", "B10" })
//       marks.add(pMark);
//   marks.distinct().countText()   ->  "2"
//   marks.first()                  ->  "B2"
//   marks.last()                   ->  "B10"
#pragma once

#include "DistinctValues.h"

#include "MekRoots/Exp/VorString.h"

#include <string>
#include <string_view>

namespace mekbom
{
class TextTally
{
public:
    // Valid UTF-8, not empty.
    void add(std::string_view text);

    const DistinctValues& distinct() const { return m_distinct; }

    // Empty where there is no text.
    std::string first() const;
    std::string last() const;

private:
    DistinctValues m_distinct;
    VorString m_first;
    VorString m_last;
};
}
