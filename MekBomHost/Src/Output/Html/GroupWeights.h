// What each group of a list weighs, where its totals say so.
//
//   const GroupWeights weights(report, survey);
//   if (weights.column() != nullptr)
//       for (const GroupWeight& group : weights.groups())
//           page.append(group.name).append(" ").append(group.text);
//
// Of groups within groups the outer ones are meant, and of several totals of weights the first: a list of profiles with
// the lengths of each has the weights of the profiles. A list of a single group has none.
#pragma once

#include "EvaluatedReport.h"
#include "ListSurvey.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct GroupWeight
{
    std::string name;     // UTF-8: the texts that are no numbers of the line that opens the group, "HEA200 S355J2"
    std::string text;     // the total as the list shows it; empty where there is none
    double weight = 0;    // in kg, of either sign
    bool isKnown = false; // there is a total, and it is finite
};

class GroupWeights
{
public:
    // `report`, which must outlive this, has values, and `survey` is its own.
    GroupWeights(const EvaluatedReport& report, const ListSurvey& survey);

    // The column of the totals; null where no level has several groups with a weight.
    const ReportColumn* column() const { return m_pColumn; }

    // In the order of the list.
    const std::vector<GroupWeight>& groups() const { return m_groups; }

private:
    void findTotals(const ListSurvey& survey);
    void readGroups();
    std::string nameOf(const ReportLine& line) const;
    GroupWeight groupOf(const ReportLine& line, const std::string& nameOfHeader) const;

    const EvaluatedReport& m_report;
    int m_level = 0;          // of the groups
    std::size_t m_column = 0; // of the totals
    const ReportColumn* m_pColumn = nullptr;
    std::vector<GroupWeight> m_groups;
};
}
