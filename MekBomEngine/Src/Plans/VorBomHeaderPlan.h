// What a header or details section asks of every row, read from the template once: where its columns find their data,
// how its formulas are computed and its numbers shown.
//
//   section            %Name "", %Weight 0.0, "%Formula:%Weight*2" ""     row  %Weight 2.5, %Name HEA200
//   process            %Name HEA200, %Weight 2.5, "%Formula:%Weight*2" ""
//   computeFormulas    the same with 5.0 under the formula, which the row carries then, too
//   display().show     texts in the units of the report
//
// A plan serves rows with any tuples, but one evaluation and one thread only.
#pragma once

#include "VorBomColumns.h"
#include "VorBomDisplayPlan.h"
#include "VorBomFormulaColumn.h"
#include "VorBomTemplateItem.h"

#include <memory>
#include <vector>

class VorBomHeaderPlan
{
public:
    // The section is not owned and must not change as long as the plan is used.
    VorBomHeaderPlan(const std::shared_ptr<VorBomTuplePositions>& pPositions, const VorBomTemplateItem& section);

    // A copy of the section without links, its values taken from the row where the row has them; formulas stay as they
    // are. Marks the row's tuples it took as used. Reports "false" for an empty value in the row and passes it over.
    std::unique_ptr<VorBomTemplateItem> process(VorBomDataRow& row);

    // Takes a section that process() made, and that nobody needs any more, to make the next one of: a report that is
    // handed over line by line needs the memory of two lines. Its values may be changed, its tuples must be there.
    void takeBack(std::unique_ptr<VorBomTemplateItem> pSection);

    // Computes the formulas of a section with the tokens of this plan's, and appends each result to the row, which may
    // be null.
    void computeFormulas(VorBomTemplateItem& evaluated, VorBomDataRow* pRow);

    // Leaves the variables and errors of the formula computed last in the thread's lists, which compiled formulas do
    // not touch: computes it once more, for a section made anew. The rows must still be there. 0 when none was
    // computed.
    int leaveLastFormula();

    // A formula that could not be computed, and why.
    struct Failure
    {
        int tuple; // of the section
        VorString token;
        VorString message;
        int position; // of the error in the formula; VorExprEvalError::kNoPosition for none
    };

    // From now on computeFormulas() writes down the formulas that fail: each costs another evaluation, for its message.
    void keepFailures() { m_keepsFailures = true; }
    // The failures of the section computed last, in the order of its tuples; none unless they are kept.
    const std::vector<Failure>& failures() const { return m_failures; }

    // Shows the sections that process() has made.
    VorBomDisplayPlan& display() { return m_display; }

private:
    std::unique_ptr<VorBomTemplateItem> makeSection(VorBomDataRow& row, bool isEmptyDatumReported);
    void refill(VorBomTemplateItem& section, VorBomDataRow& row);

    const VorBomTemplateItem& m_section;
    VorBomColumns m_columns; // one per tuple of the section; formulas are left out
    std::vector<VorBomFormulaColumn> m_formulas;
    std::unique_ptr<VorBomTemplateItem> m_pSpare; // a section to be filled anew, or null
    VorBomDataRow* m_pLastRow = nullptr;          // the one that formulas were computed for last; not owned
    bool m_keepsFailures = false;
    std::vector<Failure> m_failures;
    VorBomDisplayPlan m_display;
};
