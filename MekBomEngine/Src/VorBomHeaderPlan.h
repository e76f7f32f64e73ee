// What a header or details section asks of every row, read from the template once: where its columns find their data,
// how its formulas are computed and its numbers shown.
//
//   section            %Name "", %Weight 0.0, "%Formula:%Weight*2" ""     row  %Weight 2.5, %Name HEA200
//   process            %Name HEA200, %Weight 2.5, "%Formula:%Weight*2" ""
//   computeFormulas    the same with 5.0 under the formula, which the row carries then, too
//   showInUnits        texts in the units of the report
//
// A plan serves rows of any layout, but one evaluation and one thread only.
#pragma once

#include "VorBomColumns.h"
#include "VorBomDisplayColumn.h"
#include "VorBomFormulaColumn.h"
#include "VorBomTemplateItem.h"

#include "MekRoots/Exp/MekExport.h"

#include <memory>
#include <optional>
#include <vector>

class MEK_BOM_API VorBomHeaderPlan
{
public:
    // The section is not owned and must not change as long as the plan is used.
    VorBomHeaderPlan(const std::shared_ptr<VorBomRowLayouts>& pLayouts, const VorBomTemplateItem& section);

    // A copy of the section without links, its values taken from the row where the row has them; formulas stay as they
    // are. Marks the row's tuples it took as used. Reports "false" for an empty value in the row and passes it over.
    std::unique_ptr<VorBomTemplateItem> process(VorBomDataRow& row);

    // Computes the formulas of a section that process() made from this row, and appends each result to the row.
    void computeFormulas(VorBomTemplateItem& evaluated, VorBomDataRow& row);

    // Turns the numbers of such a section into texts.
    void showInUnits(VorBomTemplateUnits& units, VorBomTemplateItem& evaluated);

private:
    VorBomPayloadCells& cellsForRows();

    const VorBomTemplateItem& m_section;
    VorBomColumns m_columns; // one per tuple of the section; formulas are left out
    std::vector<VorBomFormulaColumn> m_formulas;
    std::optional<VorBomPayloadCells> m_cellsForRows; // of results; apart from the sections, which go before the rows
    int m_numCellsForRows = 0;                        // of those taken last
    std::vector<VorBomDisplayColumn> m_displays;
};
