#include "OutlineLevels.h"

#include "WorkbookLimits.h"

#include <algorithm>
#include <cstddef>

namespace mekbom
{
// The whole list is not folded away: the outermost level and the one below it both stand outside.
OutlineLevels::OutlineLevels(const std::vector<SectionPlace>& places)
{
    for (const SectionPlace& place : places)
        m_deepest = std::max(m_deepest, place.level);
    m_outlines.resize(static_cast<std::size_t>(m_deepest) + 1, 0);
    std::vector<bool> hasLines(m_outlines.size(), false);
    for (const SectionPlace& place : places)
    {
        hasLines[static_cast<std::size_t>(place.level)] = true;
        if (place.isFooter && place.level > 0 && place.level < m_deepest)
            m_hasSummariesBelow = true;
    }
    int next = 0;
    for (std::size_t level = 1; level < hasLines.size(); ++level)
        if (hasLines[level])
            m_outlines[level] = static_cast<std::uint8_t>(std::min(next++, WorkbookLimits::kDeepestOutline));
}

std::uint8_t OutlineLevels::of(const LinePlace& place) const
{
    return m_outlines[static_cast<std::size_t>(place.level)];
}
}
