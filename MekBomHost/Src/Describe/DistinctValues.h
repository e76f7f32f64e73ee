// How many different values a column has, up to a bound.
//
//   DistinctValues values;
//   values.add("HEA200")     ->  true
//   values.add("IPE360")     ->  true
//   values.add("HEA200")     ->  false: that has been seen
//   values.countText()       ->  "2"
//
// Values are compared, not their hashes alone, so the number is exact. Beyond the bound nothing is kept any more, and
// the number is "more than 100000".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>

namespace mekbom
{
class DistinctValues
{
public:
    // Both arbitrary: more different values than anybody looks through, in memory that a column of long remarks does not
    // fill.
    static constexpr std::size_t kMostValues = 100000;
    static constexpr std::size_t kMostBytes = std::size_t{ 1 } << 24;

    // Whether the value has not been added before; true for each beyond the bound.
    bool add(std::string_view text);
    bool add(double number); // 0 and -0 are one; texts and numbers are not to be added to the same object

    // "2", "more than 100000"
    std::string countText() const;

private:
    void giveUp();

    std::unordered_set<std::string> m_values;
    std::string m_value; // to be looked for, so that no look allocates
    std::size_t m_numBytes = 0;
    bool m_isMore = false;
    std::size_t m_numAtLeast = 0; // where there are more
};
}
