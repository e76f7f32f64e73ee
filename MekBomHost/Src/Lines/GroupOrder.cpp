// The sections packed so far are cut into ranges where groups begin and end. Told on groups of 100, 900 and 500 kg:
//   header S235    a cut: the report's header is range 0; the first group begins with range 1
//   header S275    a cut: all of S235 is range 1; the second group begins with range 2
//   report footer  a cut, and the groups are complete: ranges 0 1 2 3 become 0 2 3 1
// Groups within groups are complete before those around them, whose ranges are in order within by then.
#include "GroupOrder.h"

#include "NumberInValue.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace mekbom
{
namespace
{
// The tuple of the level's footer with that token; -1 for a level that leaves its groups as they come.
int tupleOf(const GroupOrderStyle& order, const VorBomItemBase* pFooter)
{
    for (int i = 0; pFooter != nullptr && order.by.isEmpty() == 0 && i < pFooter->getData().length(); ++i)
        if (pFooter->getData()[i].token().token() == order.by)
            return i;
    return -1;
}
}

bool GroupOrder::isIn(const ReportTemplate& reportTemplate)
{
    return std::any_of(reportTemplate.sectionStyles.begin(), reportTemplate.sectionStyles.end(),
                       [](const auto& entry) { return entry.second.groupOrder.by.isEmpty() == 0; });
}

GroupOrder::GroupOrder(const ReportTemplate& reportTemplate, PackedSections& sections)
    : SectionRelay(sections, kTypedValues), m_sections(sections)
{
    for (const VorBomItemBase* pHeader = reportTemplate.pTemplate->child(); pHeader != nullptr;
         pHeader = pHeader->child())
    {
        const GroupOrderStyle& order = reportTemplate.styleOf(pHeader).groupOrder;
        m_levels.push_back({ tupleOf(order, pHeader->next()), order.isDescending, {} });
    }
}

void GroupOrder::takeHeader(const VorBomReportSection& header)
{
    closeBelow(header.level);
    Level& level = m_levels[static_cast<std::size_t>(header.level)];
    if (level.tuple >= 0)
    {
        cut();
        if (level.groups.empty())
            m_open.push_back(header.level);
        level.groups.push_back({ m_ranges.size(), std::nullopt });
    }
    SectionRelay::takeHeader(header);
}

// What is no number has no place in the order of numbers.
void GroupOrder::takeFooter(const VorBomReportSection& footer)
{
    closeBelow(footer.level);
    Level& level = m_levels[static_cast<std::size_t>(footer.level)];
    if (!level.groups.empty())
    {
        const VorBomTypedValue& total = footer.pValues[level.tuple];
        if (holdsNumber(total.type) && !std::isnan(total.number))
            level.groups.back().total = total.number;
    }
    SectionRelay::takeFooter(footer);
}

void GroupOrder::finish()
{
    closeBelow(-1);
    cut();
    m_sections.setOrder(std::move(m_ranges));
}

// A section of some level ends all groups within the one that it belongs to.
void GroupOrder::closeBelow(int level)
{
    for (; !m_open.empty() && m_open.back() > level; m_open.pop_back())
        close(m_levels[static_cast<std::size_t>(m_open.back())]);
}

void GroupOrder::close(Level& level)
{
    cut();
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < level.groups.size(); ++i)
        order.push_back(i);
    const auto comesBefore = [&level](std::size_t first, std::size_t second)
    {
        const std::optional<double> total = level.groups[first].total;
        const std::optional<double> other = level.groups[second].total;
        if (!total || !other)
            return total && !other;
        return level.isDescending ? *total > *other : *total < *other;
    };
    std::stable_sort(order.begin(), order.end(), comesBefore);
    const std::size_t begin = level.groups.front().firstRange;
    level.groups.push_back({ m_ranges.size(), std::nullopt }); // where the last one ends
    std::vector<PackedSections::Range> ordered;
    for (const std::size_t group : order)
        for (std::size_t i = level.groups[group].firstRange; i < level.groups[group + 1].firstRange; ++i)
            ordered.push_back(m_ranges[i]);
    std::copy(ordered.begin(), ordered.end(), m_ranges.begin() + static_cast<std::ptrdiff_t>(begin));
    level.groups.clear();
}

void GroupOrder::cut()
{
    const PackedSections::Position end = m_sections.end();
    if (end.numSections > m_cut.numSections)
        m_ranges.push_back({ m_cut, end.numSections });
    m_cut = end;
}
}
