// An evaluated report as a writer of any format gets it: its title, its columns, and its lines as often as wanted.
// Formats share it: nothing here knows how a column is drawn or a value is spelt in a file.
//
//   const EvaluatedReport report(reportTemplate, units, sections);
//   for (const ReportColumn& column : report.columns())
//       sink.write(column.heading() + "\t");
//   ReportLines lines = report.lines();
//   ReportLine line;
//   while (lines.next(line))
//       for (const ShownText& text : line.texts)
//           sink.write(text.view());
//   for (const std::string& ofFoot : report.foot().lines())
//       sink.write(ofFoot);
#pragma once

#include "ListFacts.h"
#include "ListFoot.h"
#include "PackedSections.h"
#include "ReportColumn.h"
#include "ReportLayout.h"
#include "ReportLines.h"
#include "ReportTemplate.h"

#include "MekRoots/Exp/VorUnitsManager.h"

#include <string>
#include <vector>

namespace mekbom
{
class EvaluatedReport
{
public:
    // `sections` took the evaluation of `reportTemplate`, whose numbers were shown in `units`. The report owns none of
    // the three; template and sections must outlive it.
    EvaluatedReport(const ReportTemplate& reportTemplate, const VorUnitsManager& units, const PackedSections& sections)
        : m_title(reportTemplate.title),
          m_countsEqualLines(reportTemplate.equalLines == kCountEqualLines),
          m_layout(reportTemplate, units),
          m_sections(sections)
    {
    }

    // The same with a foot, which is made from what was counted during the evaluation. `facts` are not needed
    // afterwards.
    EvaluatedReport(const ReportTemplate& reportTemplate, const VorUnitsManager& units, const PackedSections& sections,
                    const ListFacts& facts)
        : EvaluatedReport(reportTemplate, units, sections)
    {
        m_foot = ListFoot(facts, reportTemplate, m_layout);
    }

    // The title, in UTF-8; empty for a report without one.
    const std::string& title() const { return m_title; }

    // What was left out of the list, by each filter that there is; none where nobody has counted.
    const std::vector<FilteredRows>& filteredRows() const { return m_foot.filtered; }

    const std::vector<ReportColumn>& columns() const { return m_layout.columns(); }

    // What each section of the template shows in which column.
    const ReportLayout& layout() const { return m_layout; }

    // The lines, from the first one on whenever this is called. They are valid as long as the report.
    ReportLines lines() const { return ReportLines(m_layout, m_sections); }

    // Whether the rows behind a line of details all count in totals; else the first of them does, and the others are
    // merged away.
    bool countsEqualLines() const { return m_countsEqualLines; }

    // What the list is made of, to be told below its lines; without any lines where nobody has counted.
    const ListFoot& foot() const { return m_foot; }

    // The sections of which there is any line, from the outermost level inwards.
    std::vector<SectionPlace> placesWithLines() const;

    // For each column, how long its longest text is and whether all are plain, without a look at the lines. The labels
    // of sections do not count.
    std::vector<TextExtent> textExtents() const;

private:
    const std::string& m_title;
    bool m_countsEqualLines;
    ReportLayout m_layout;
    const PackedSections& m_sections;
    ListFoot m_foot;
};
}
