// How deep the lines of a list stand in the outline of a sheet, which folds the lines of a group away.
//
//   lines of levels 0, 1, 2 and 3, the last of them details
//
//     group header  HEA200      level 1   ->   0
//       group header  S355J2    level 2   ->   1
//         details     R12       level 3   ->   2
//       group footer  4         level 2   ->   1
//     report footer  Total      level 0   ->   0
//
// Levels without any line do not count, and what is deeper than a sheet has levels stands on the deepest.
#pragma once

#include "ReportLine.h"
#include "SectionPlace.h"

#include <cstdint>
#include <vector>

namespace mekbom
{
class OutlineLevels
{
public:
    // `places` are those that a list has lines of, from the outermost level inwards.
    explicit OutlineLevels(const std::vector<SectionPlace>& places);

    std::uint8_t of(const LinePlace& place) const;

    // Whether the line is one of those that the list consists of, and not the header or footer of several.
    bool isDeepest(const LinePlace& place) const { return place.level >= m_deepest; }

    // Whether the line that stays when a group is folded away stands below its lines.
    bool hasSummariesBelow() const { return m_hasSummariesBelow; }

private:
    std::vector<std::uint8_t> m_outlines; // by level
    int m_deepest = 0;
    bool m_hasSummariesBelow = false;
};
}
