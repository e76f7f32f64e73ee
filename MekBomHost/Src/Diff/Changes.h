// What has changed from one list to another of the same template, as a list of its own, which every writer can write:
//
//   Change   Mark     Profile          Pieces   Pieces change   Weight [kg]     Weight change [kg]
//   changed  B1 → B7  IPE300           4 → 6                2   537.6 → 806.4               268.8
//   removed  P2       PL10*120         16                 -16   36.16                      -36.16
//   added    P3       PL12*120         16                  16   43.39                       43.39
//
//   Order in addition: Pieces 18, Weight 312.19 kg
//   Send back: Pieces 16, Weight 36.16 kg
//
// It has the groups of the lists, each with the changes of its totals. A line that has come to another group is removed
// there and added here. Lines are compared by what they show, and only those that read otherwise are listed.
//
// Whoever has ordered steel for the old list needs more of what was added and less of what was removed; of a line that
// has changed, the difference, unless the change makes other steel of it: then all of the new, and none of the old. A
// mark or a remark makes no other steel, a profile, a grade or a length does, and so does a datum that nobody knows.
#pragma once

#include "ComparedList.h"
#include "EvaluatedReport.h"
#include "LineContents.h"
#include "LinePairs.h"
#include "Report.h"
#include "ReportJob.h"

#include <string>
#include <vector>

namespace mekbom
{
class Changes
{
public:
    // `newJob` made the report of `newList`; the lists are not needed afterwards, the job must outlive this. `contents`
    // are those that the list of changes is to be read with. Throws a Fault of status kInvalidInput when the lists show a
    // column in two units.
    Changes(const ComparedList& oldList, const ComparedList& newList, const ReportJob& newJob, LineContents contents);

    // Whether there are any.
    bool any() const { return m_numAdded + m_numRemoved + m_numChanged > 0; }

    // The list of them, good for as long as this object.
    EvaluatedReport report() const { return m_report.evaluated(); }

private:
    // Of one counted column, what is to be ordered and what to be sent back, in the model's unit.
    struct Balance
    {
        double ordered = 0;
        double sentBack = 0;
        int numLines = 0; // of those that differ, the ones that have a number wherever they are
    };

    void requireSameColumns(const ComparedList& oldList) const;
    void add(const LinePair& pair);
    void addRow(const char* change, const ComparedLine* pOld, const ComparedLine* pNew);
    void count(const LinePair& pair);
    bool hasMoved(const LinePair& pair) const;
    bool makesOtherSteel(const LinePair& pair) const;
    std::vector<std::string> gaps() const;
    std::string balanceText(double Balance::*side) const;
    std::vector<std::string> statements() const;

    EvaluatedReport m_newReport;
    const std::vector<ComparedColumn> m_columns;
    Report m_report;
    std::vector<Balance> m_balances; // of each column; only of counted ones anything
    int m_numAdded = 0;
    int m_numRemoved = 0;
    int m_numChanged = 0;
    int m_numSame = 0;
};
}
