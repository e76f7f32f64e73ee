// What keeps two lines of details apart: the group that one of them stands in, or the data that read differently.
//
//   LinesApart(explained).text(line, lineBefore)
//
//   lines of two groups      ->  is in another group: %Material "S235", here "S355"
//   lines of one group       ->  differs in %Name: "IPE450", here "IPE360"
//   lines that read alike    ->  reads the same
//
// Columns that are not printed keep lines apart, too; numbers of pieces do not where equal lines are counted.
#pragma once

#include "ExplainedReport.h"
#include "ReportLine.h"
#include "RowData.h"
#include "TemplateLevels.h"

#include <string>
#include <vector>

namespace mekbom
{
class LinesApart
{
public:
    // Nothing of `report` is copied; it must outlive this object.
    explicit LinesApart(const ExplainedReport& report);

    // What a sentence about `line` says, behind its subject; values of `other` come first. Both are lines of details,
    // with their rows.
    std::string text(const ReportLine& line, const ReportLine& other) const;

private:
    std::vector<std::string> unlikeGroups(const VorBomDataRow& row, const VorBomDataRow& other) const;
    std::vector<std::string> unlikeTexts(const ReportLine& line, const ReportLine& other) const;
    bool isCounted(const VorString& token) const;
    std::string textOf(const ReportLine& line, int tuple) const;

    const ExplainedReport& m_report;
    TemplateLevels m_levels;
    RowData m_data;
    const VorBomTemplateItem& m_details;
    std::vector<int> m_columns; // the column of each tuple of the details; -1 for one that is not shown
};
}
