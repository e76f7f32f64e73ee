// Puts into footers what their columns say that they show in place of a sum: a count, the smallest or the greatest value, a
// mean, or what a formula makes of several sums.
//
//   rows of 2000, 6000 and 4000 mm; the footer has "%SumBy:%Length", its column says "total": "max"
//
//   OtherTotals totals(reportTemplate, sections);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), totals);
//
//   the engine hands over   %SumBy:%Length 12000   ->   handed on   %SumBy:%Length 6000
//
// The rows of a footer are those of the lines that come between its header and itself, whatever merged ones there are. A
// calculated total takes the sums, even those that are shown as something else.
#pragma once

#include "CalculatedTotal.h"
#include "Finding.h"
#include "ReportTemplate.h"
#include "SectionRelay.h"
#include "ValueTally.h"

#include "VorBomNumberFormat.h"
#include "VorBomTemplateUnits.h"

#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
class OtherTotals : public SectionRelay
{
public:
    // Whether any column shows other totals than sums.
    static bool areIn(const ReportTemplate& reportTemplate);

    // `reportTemplate` is not owned, outlives this object, and keeps its sections and number formats meanwhile.
    OtherTotals(const ReportTemplate& reportTemplate, VorBomSectionSink& next);

    void takeHeader(const VorBomReportSection& header) override;
    void takeMergedRow(const VorBomDataRow& row) override;
    void takeFooter(const VorBomReportSection& footer) override;

    // What was found, each with its place in the template: MB310, once for each column, of a total that cannot be
    // calculated.
    const std::vector<Finding>& findings() const { return m_findings; }

private:
    // What one tuple of a footer shows.
    struct Total
    {
        int tuple;
        const ColumnStyle* pStyle;
        const VorBomNumberFormat* pFormat; // not owned; null where the template's units show its numbers
        VorBomTemplateUnits::eTokenUnitType unitType;
        std::optional<ValueTally> values; // unless it is calculated
        std::optional<CalculatedTotal> calculated;
    };

    struct Level
    {
        const VorBomItemBase* pFooter;
        std::vector<Total> totals;
    };

    void addLevel(const VorBomItemBase* pFooter);
    void addRow(const VorBomDataRow& row);
    VorBomTypedValue valueOf(const Total& total, const VorBomReportSection& footer);
    void addFinding(const Total& total, const std::string& reason);

    const ReportTemplate& m_template;
    std::vector<Level> m_levels;
    std::vector<VorBomTypedValue> m_values; // of the footer that is handed on
    std::vector<Finding> m_findings;
};
}
