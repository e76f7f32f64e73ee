// A group has its name on the line that opens it and its weight on the line that closes it; lines of several levels come
// between them:
//
//   level 1 header   HEA200  S355J2                    the name waits
//   level 2 details           2400  12   822.24
//   level 1 footer                  12   822.24        the group: "HEA200 S355J2", 822.24
#include "GroupWeights.h"

#include "TotalTokens.h"

#include <cmath>

namespace mekbom
{
namespace
{
const int kNone = -1;

bool isWeight(const ReportColumn& column)
{
    return column.pUnitKind != nullptr && column.pUnitKind->system == VorUnitsTransformArray::kWeight;
}

// The first column in which the section shows a total of weights; kNone without one.
int weightColumnOf(const SectionLayout& section, const std::vector<ReportColumn>& columns)
{
    for (std::size_t i = 0; i < section.columns.size(); ++i)
        if (TotalTokens::isSum(section.tokens[i]) && isWeight(columns[static_cast<std::size_t>(section.columns[i])]))
            return section.columns[i];
    return kNone;
}
}

GroupWeights::GroupWeights(const EvaluatedReport& report, const ListSurvey& survey) : m_report(report)
{
    findTotals(survey);
    if (m_pColumn != nullptr)
        readGroups();
}

// The lines of the deepest level are no groups.
void GroupWeights::findTotals(const ListSurvey& survey)
{
    const std::vector<LevelLayout>& levels = m_report.layout().levels();
    for (std::size_t level = 0; level + 1 < levels.size(); ++level)
    {
        const int column = weightColumnOf(levels[level].footer, m_report.columns());
        if (column == kNone || survey.numFooters(static_cast<int>(level)) < 2)
            continue;
        m_level = static_cast<int>(level);
        m_column = static_cast<std::size_t>(column);
        m_pColumn = &m_report.columns()[m_column];
        return;
    }
}

void GroupWeights::readGroups()
{
    std::string name;
    ReportLines lines = m_report.lines();
    for (ReportLine line; lines.next(line);)
    {
        if (line.place.level != m_level)
            continue;
        if (line.place.hasHeader)
            name = nameOf(line);
        if (line.place.hasFooter)
            m_groups.push_back(groupOf(line, name));
    }
}

// Numbers of a group, such as how many there are of an assembly, name nothing.
std::string GroupWeights::nameOf(const ReportLine& line) const
{
    std::string name;
    for (std::size_t i = 0; i < line.texts.size(); ++i)
        if (line.texts[i].length > 0 && !isNumber(line.values[i]))
            name.append(name.empty() ? "" : " ").append(line.texts[i].view());
    return name;
}

// A group that no line opens may say on its last one what it is.
GroupWeight GroupWeights::groupOf(const ReportLine& line, const std::string& nameOfHeader) const
{
    const VorBomTypedValue& value = line.values[m_column];
    GroupWeight group;
    group.name = nameOfHeader.empty() ? nameOf(line) : nameOfHeader;
    group.text = line.texts[m_column].view();
    group.isKnown = isNumber(value) && std::isfinite(value.number);
    group.weight = group.isKnown ? value.number : 0;
    return group;
}
}
