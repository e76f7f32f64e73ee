// What a footer asks of the rows of its group, read from the template once, and the footer of the group now open. Rows
// are taken in as they come, so that no group is walked again when it closes.
//
//   columns  "%SumBy:%Weight" starting at 0.0, "%Material"
//   rows     2.5 S235, 1.5 S235          ->  4.0, S235
//
// A plain token ends with the value of the last counted row that has it. A total adds up: it stays an integer while
// everything added is one and the sum fits 32 bits, else it becomes a double for good. A total that is no number yet
// starts from zero of the added value's type; a text replaces it, and "!bIsSummingRequest" is reported.
//
// How many of the rows had a datum for each column is counted as well, 2 and 2 above: a total of 4.0 over three rows of
// which one has no weight says less than it seems to.
#pragma once

#include "VorBomColumns.h"
#include "VorBomDisplayPlan.h"
#include "VorBomEngineState.h"
#include "VorBomTemplateItem.h"

#include <cstdint>
#include <memory>
#include <vector>

class VorBomFooterPlan
{
public:
    // The section is not owned and must not change as long as the plan is used.
    VorBomFooterPlan(const std::shared_ptr<VorBomTuplePositions>& pPositions, const VorBomTemplateItem& section);

    // Takes in the rows of the open group that came since the last call. Rows that do not count are passed over;
    // whether they do must be settled by now.
    void takeNewRows(const VorBomDataRowPointerArray& rows);

    // Takes in those rows, too, then hands the footer over and begins the next one.
    std::unique_ptr<VorBomTemplateItem> finish(const VorBomDataRowPointerArray& rows);

    // For each column of the footer finished last how many of its counted rows had a datum for it.
    const int* numRowsWithDatum() const { return m_numFoundInFinished.data(); }

    // Shows the footers that finish() has handed over.
    VorBomDisplayPlan& display() { return m_display; }

    // From the next row on totals of ints are added up in 64 bits as well, and what is shown is kept. To be called
    // before the first row.
    void keepValues();
    // What the footer shown last held before; null unless that is kept.
    const VorBomTypedValue* typedValues();

private:
    // What the ints of a column add up to.
    struct WholeSum
    {
        std::int64_t sum = 0;
        int numAdded = kNone;

        static constexpr int kNone = -1; // of a column that is no total, or does not start from a whole number
    };

    void beginFooter();
    void beginWholeSums();
    static void addWhole(WholeSum& whole, const VorBomDataValue& value);
    void takeIn(VorBomDataRow& row);

    const VorBomTemplateItem& m_section;
    VorBomColumns m_columns;   // one per tuple of the section
    std::vector<char> m_isSum; // 1 or 0; bits would cost more than they save
    VorBomDisplayPlan m_display;
    std::unique_ptr<VorBomTemplateItem> m_pFooter; // of the open group; never null
    std::vector<int> m_numFound;                   // for each column, in the rows of the open group so far
    std::vector<int> m_numFoundInFinished;
    std::vector<WholeSum> m_wholeSums; // one for each column, or none unless values are kept
    std::vector<WholeSum> m_wholeSumsInFinished;
    int m_nTakenRows = 0;
    bool m_keepsValues = false;
};
