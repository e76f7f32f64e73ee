// The lines of an evaluated report, one after the other, as often as they are asked for:
//
//   for a report that shows groups of profiles but no details
//
//     report header               shows nothing: no line
//       group header  HEA200      one line, shared:  HEA200  S355J2   4   24644
//       group footer  4, 24644
//     report footer 670, 28531    the last line:     Total           670  28531
//
//   ReportLines lines(layout, sections);
//   ReportLine line;
//   while (lines.next(line))
//       sink.write(line.texts.front().view());
//
// A header and its footer share a line when nothing is printed between them and they do not want the same column.
#pragma once

#include "PackedSections.h"
#include "ReportLayout.h"
#include "ReportLine.h"

namespace mekbom
{
class ReportLines
{
public:
    // `sections` are those of a report whose template has this layout. Neither is owned; both must outlive the lines.
    ReportLines(const ReportLayout& layout, const PackedSections& sections);

    // The next line; false, with `line` as it was, at the end. Whatever `line` held is overwritten.
    bool next(ReportLine& line);

private:
    void begin(ReportLine& line) const;
    void take(ReportLine& line);
    void fill(ReportLine& line, const SectionLayout& section);
    bool canShareLine(const ReportLine& line) const;

    const ReportLayout& m_layout;
    PackedSections::Reader m_reader;
    bool m_hasValues;
    SectionPlace m_next; // the section read ahead, which is on no line yet
    bool m_hasNext = false;
};
}
