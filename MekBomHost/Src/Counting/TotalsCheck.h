// Adds up every printed total a second time, from the rows that were handed over, and compares: a number that steel is
// ordered by is worth two ways of getting at it.
//
//   TotalsCheck check(reportTemplate, sections);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), check);
//
//   rows of 134.4 kg twice, and a footer of 134.4   ->   the total of %Weight in the footer of level 1, below "HEA200",
//                                                        is 134.4, but adding up its rows (2) gives 268.8
//
// Takes nothing from the engine's adding up, not even which rows count: those of a group are seen from the lines that
// come between its header and its footer, and they are added in another way. Totals of texts are not looked at.
#pragma once

#include "ReportTemplate.h"
#include "SectionRelay.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class TotalsCheck : public SectionRelay
{
public:
    // Doubles are added in the order of the rows, which for a million of them costs the last five digits of sixteen or
    // so. Relative to the sum of what is added, signs left out.
    static constexpr double kTolerance = 1e-9;

    // `reportTemplate` is read while this is constructed, and not looked at later.
    TotalsCheck(const ReportTemplate& reportTemplate, VorBomSectionSink& next);

    void takeHeader(const VorBomReportSection& header) override;
    // Throws std::runtime_error, which runGuarded() makes an internal fault of, when a total is another one than its
    // rows add up to; the footer is not handed on then.
    void takeFooter(const VorBomReportSection& footer) override;
    void takeMergedRow(const VorBomDataRow& row) override;

    // How many totals were compared until now.
    int numChecked() const { return m_numChecked; }

private:
    struct Total
    {
        int tuple;
        VorString datum;   // that is summed
        long double start; // what the template has it start from
    };

    struct Level
    {
        std::vector<Total> totals; // of its footer, those that are printed
        std::string group;         // what the header shows of the group now open
        std::size_t firstRow = 0;  // of that group, among m_rows
    };

    // The rows that a footer of that level counts.
    struct Rows
    {
        const VorBomDataRow* const* begin() const { return pBegin; }
        const VorBomDataRow* const* end() const { return pEnd; }

        const VorBomDataRow* const* pBegin;
        const VorBomDataRow* const* pEnd;
    };
    Rows rowsOf(int level) const;

    void check(const VorBomReportSection& footer, const Total& total);
    std::string mistakeIn(const VorBomReportSection& footer, const Total& total, long double sum) const;

    std::vector<Level> m_levels;
    std::vector<const VorBomDataRow*> m_rows;    // of all lines so far that were not merged
    const VorBomDataRow* m_pMergedRow = nullptr; // of the line just merged; null behind one that was not
    int m_numChecked = 0;
};
}
