// Has the groups of a level printed in the order of a total in their footers, which is known only when the last row of a
// group has come. Of groups in the order of "%SumBy:%Weight", descending:
//
//   packed    header S235, its lines, footer 100   header S275, its lines, footer 900   report footer 1000
//   printed   header S275, its lines, footer 900   header S235, its lines, footer 100   report footer 1000
//
// The sections are read in that order once all of them are there:
//
//   GroupOrder order(reportTemplate, sections);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), order);
//   order.finish();
//
// Groups whose totals are the same stay in the order in which they came, and so do those without a total, behind all
// others. Groups never leave the group around them.
#pragma once

#include "PackedSections.h"
#include "ReportTemplate.h"
#include "SectionRelay.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace mekbom
{
class GroupOrder : public SectionRelay
{
public:
    // Whether any level says how its groups are ordered.
    static bool isIn(const ReportTemplate& reportTemplate);

    // `reportTemplate` is read while this is constructed, and not looked at later. `sections` must be empty.
    GroupOrder(const ReportTemplate& reportTemplate, PackedSections& sections);

    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;

    // To be called once, when the evaluation has come to its end.
    void finish();

private:
    struct Group
    {
        std::size_t firstRange;      // in m_ranges
        std::optional<double> total; // none until its footer comes, and where that shows no number
    };

    struct Level
    {
        int tuple = -1; // of the footer, that decides; -1 for a level whose groups stay as they come
        bool isDescending = false;
        std::vector<Group> groups; // of the group around them that is open
    };

    void closeBelow(int level);
    void close(Level& level);
    void cut();

    PackedSections& m_sections;
    std::vector<Level> m_levels;
    std::vector<int> m_open; // the levels with groups, from the outside in
    std::vector<PackedSections::Range> m_ranges;
    PackedSections::Position m_cut; // up to which m_ranges has all sections
};
}
