#include "EvaluatedReport.h"

#include <cstddef>

namespace mekbom
{
// A section without any line tells nothing: the label of a footer does not widen a table without rows.
std::vector<SectionPlace> EvaluatedReport::placesWithLines() const
{
    std::vector<SectionPlace> places;
    for (int level = 0; level < static_cast<int>(m_layout.levels().size()); ++level)
        for (const bool isFooter : { false, true })
            if (m_sections.hasLineOf({ level, isFooter }))
                places.push_back({ level, isFooter });
    return places;
}

// A column's texts are those of all sections that show a tuple in it:
//   %Weight of the details "478.25", of the footer "1630.28"   ->   longest 7
std::vector<TextExtent> EvaluatedReport::textExtents() const
{
    std::vector<TextExtent> extents(columns().size());
    for (const SectionPlace place : placesWithLines())
    {
        const std::vector<int>& shown = m_layout.section(place).columns;
        for (std::size_t i = 0; i < shown.size(); ++i)
            extents[static_cast<std::size_t>(shown[i])].add(m_sections.extentOf(place, i));
    }
    return extents;
}
}
