// The lines of a list as another list of the same template is compared with: the innermost ones that are printed, each
// with what it shows, what the groups around it show, and the objects behind it.
//
//   S235                             a line of the group          no line to compare
//     P1  PL10*120   4   9.04 kg     a line of the details        texts  S235, P1, PL10*120, 4, 9.04
//   Total            4   9.04 kg     a footer around it           no line to compare
//
//   const ComparedList list(job);
//   list.lines().front().key          ->  "S235\x1FP1\x1F", what the list groups and sorts by
#pragma once

#include "EvaluatedReport.h"
#include "ReportJob.h"

#include "VorBomTypedValue.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
struct ComparedLine
{
    std::vector<std::string> texts;       // of each column, those of the groups around the line included
    std::vector<VorBomTypedValue> values; // of each column, of the line alone
    std::vector<VorString> handles;       // of the rows behind the line that have one
    std::string key;                      // what the list tells its lines apart by
};

// What a column is to the comparison.
struct ComparedColumn
{
    std::string heading;    // with its unit
    bool isCounted = false; // totals are made of it: its change is a number that can be added up
    int groupLevel = -1;    // the level whose header shows it; -1 for one of the lines themselves
};

class ComparedList
{
public:
    // The job must have made a report, evaluated with values and rows. It is not needed afterwards.
    explicit ComparedList(const ReportJob& job);

    const std::vector<ComparedLine>& lines() const { return m_lines; }
    const std::vector<ComparedColumn>& columns() const { return m_columns; }

    // Whether lines may be told by the objects behind them: the parts list says which these are.
    bool hasHandles() const { return m_hasHandles; }

private:
    // A token that lines are told apart by: in a column, or in the rows alone, where `column` is -1.
    struct KeyToken
    {
        VorString token;
        int column;
    };

    void findColumns(const EvaluatedReport& report);
    void findKeys(const ReportJob& job, const EvaluatedReport& report);
    void takeLines(const EvaluatedReport& report);
    void openGroup(const ReportLine& line);
    void take(const ReportLine& line);
    std::string keyOf(const ComparedLine& line, const VorBomDataRow& row) const;

    std::vector<ComparedColumn> m_columns;
    std::vector<KeyToken> m_keys;
    std::vector<std::string> m_groupTexts; // of each column, of the groups that are open
    int m_level = 0;                       // of the lines that are compared
    bool m_hasHandles = false;
    std::vector<ComparedLine> m_lines;
};
}
