#include "EvaluatedReport.h"

#include <algorithm>

namespace mekbom
{
TextExtent EvaluatedReport::extentOf(std::size_t column) const
{
    TextExtent all;
    for (const SectionPlace place : placesWithLines())
    {
        const std::vector<int>& columns = m_layout.section(place).columns;
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            if (columns[i] != static_cast<int>(column))
                continue;
            const TextExtent extent = m_sections.extentOf(place, i);
            all.longest = std::max(all.longest, extent.longest);
            all.areAllPlain = all.areAllPlain && extent.areAllPlain;
        }
    }
    return all;
}

std::vector<std::string> EvaluatedReport::labelsIn(std::size_t column) const
{
    std::vector<std::string> labels;
    for (const SectionPlace place : placesWithLines())
    {
        const SectionLayout& section = m_layout.section(place);
        if (!section.label.empty() && section.labelColumn == static_cast<int>(column))
            labels.push_back(section.label);
    }
    return labels;
}

std::vector<SectionPlace> EvaluatedReport::placesWithLines() const
{
    std::vector<SectionPlace> places;
    for (int level = 0; level < static_cast<int>(m_layout.levels().size()); ++level)
        for (const bool isFooter : { false, true })
            if (m_sections.hasLineOf({ level, isFooter }))
                places.push_back({ level, isFooter });
    return places;
}
}
