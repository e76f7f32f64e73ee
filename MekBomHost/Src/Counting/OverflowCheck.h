// Finds printed totals and results of formulas that are no numbers any more, though every number of the data is one.
//
//   OverflowCheck check(reportTemplate, sections);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), check);
//
//   rows of S235 with 1e308 kg and 1e308 kg   ->   MB607: "%SumBy:%Weight" of the group "S235" comes to inf
//
// Looks at what is shown, since a number may leave the range of doubles as late as there: 1e308 kg in grams. Tells of each
// tuple of the template once, of the first place where it happens.
#pragma once

#include "Finding.h"
#include "ReportTemplate.h"
#include "SectionRelay.h"

#include <string>
#include <vector>

namespace mekbom
{
class OverflowCheck : public SectionRelay
{
public:
    // `reportTemplate` outlives this object.
    OverflowCheck(const ReportTemplate& reportTemplate, VorBomSectionSink& next);

    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;

    // What was found, each with its place in the template, the name of the file included.
    const std::vector<Finding>& findings() const { return m_findings; }

private:
    // A printed tuple of a section of the template.
    struct Shown
    {
        int tuple;
        const VorBomItemBase* pSection;
        bool isFound = false;
    };
    using ShownTuples = std::vector<Shown>;

    void check(ShownTuples& shownTuples, const VorBomReportSection& section);
    void add(const Shown& shown, const VorBomReportSection& section);
    std::string whereIn(const VorBomReportSection& section) const;
    std::string groupOf(const VorBomDataRow& row, int level) const;

    const ReportTemplate& m_template;
    std::vector<ShownTuples> m_headers; // by level
    std::vector<ShownTuples> m_footers;
    std::vector<Finding> m_findings;
};
}
