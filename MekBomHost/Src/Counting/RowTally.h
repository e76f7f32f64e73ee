// Counts what becomes of the rows of a report while it is evaluated.
//
//   rows  P1 2.5 kg, P1 2.5 kg, P2 without a weight; the second is merged into the first; footer "%SumBy:%Weight"
//
//   RowTally tally(reportTemplate, sections);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), tally);
//   tally.counts().numListed                     ->  2
//   tally.counts().numMerged                     ->  1
//   tally.counts().totals[0].numRows             ->  1: of the two listed one has a weight
//   tally.counts().totals[0].lost                ->  2.5
//
// Asks the engine for equal lines where the template counts or keeps them: then no row is merged.
#pragma once

#include "ReportTemplate.h"
#include "SectionRelay.h"

#include "MekRoots/Exp/VorString.h"

#include <cstddef>
#include <vector>

namespace mekbom
{
// A datum that printed footers sum, and what came of it.
struct TotalCount
{
    VorString datum;            // "%Weight", or a formula
    int level = 0;              // of the outermost footer that prints the total
    std::size_t shownIndex = 0; // of the total among the tuples that this footer shows
    bool isOutermost = false;   // it stands in the outermost footer that prints any total

    int numRows = 0;     // that have the datum, of those that this footer counts; only where isOutermost
    int numRowsLost = 0; // merged ones whose value is a number other than 0
    double lost = 0;     // the sum of those values, in the model's unit
    bool isWhole = true; // they are whole numbers
};

struct RowCounts
{
    int numListed = 0;              // rows with a line of their own
    int numMerged = 0;              // rows that were merged into the line of another, and count in no total
    int numLosing = 0;              // of the merged ones those that some printed total would have counted
    std::vector<TotalCount> totals; // of each datum once, from the outermost footer inwards
};

class RowTally : public SectionRelay
{
public:
    // `reportTemplate` is read while this is constructed, and not looked at later.
    RowTally(const ReportTemplate& reportTemplate, VorBomSectionSink& next);

    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;
    void takeMergedRow(const VorBomDataRow& row) override;

    const RowCounts& counts() const { return m_counts; }

private:
    // Where the numbers of rows for a total stand in the outermost footer.
    struct OutermostTotal
    {
        std::size_t total; // its index in RowCounts::totals
        int tuple;
    };

    void addTotalsOf(const ReportTemplate& reportTemplate, const VorBomItemBase& footer, int level);

    RowCounts m_counts;
    std::vector<OutermostTotal> m_outermostTotals;
    int m_outermostLevel = -1; // of the footer that they stand in
    int m_lastLevel = -1;      // of details
};
}
