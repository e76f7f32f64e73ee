// Finds handles that stand in several rows of a parts list, and rows that have none: a line of a list could not be
// traced back to its object.
//
//   HandleCheck handles;
//   for (const char* const pHandle : { "2A0", "2A1", "", "2A0" })
//       handles.add(pHandle);
//   handles.findings()   ->  that handle "2A0" stands in rows 1 and 4, and that row 3 has no handle
//
// Takes time in proportion to the rows. Rows are counted from 1.
#pragma once

#include "Finding.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
class HandleCheck
{
public:
    // The handle of the next row, which is copied; empty where the row has none.
    void add(std::string_view handle);

    // Up to two findings without a place, one for handles that come again and one for rows without.
    std::vector<Finding> findings() const;

private:
    // Two rows of one handle, the second of which is the next one behind the first or any later one.
    struct Repetition
    {
        std::size_t firstRow;
        std::size_t row;
    };

    std::size_t numRows() const { return m_bounds.size() - 1; }
    std::string_view handleOf(std::size_t row) const // from 0
    {
        return std::string_view(m_bytes.data() + m_bounds[row], m_bounds[row + 1] - m_bounds[row]);
    }
    std::vector<Repetition> repetitions() const;
    void addRepeated(std::vector<Finding>& findings) const;
    void addMissing(std::vector<Finding>& findings) const;

    std::string m_bytes;                    // the handles one after the other
    std::vector<std::size_t> m_bounds{ 0 }; // where each begins and the one before it ends
};
}
