// One section is always read ahead: whether the line just read is complete depends on what follows it.
//
//   packed    header 1 "HEA200"   footer 1 "4" "24644"   header 1 "IPE360"   ...
//   next()    takes the header, sees the footer of its level, takes that too, sees a header: the line is complete
#include "ReportLines.h"

#include <cstddef>

namespace mekbom
{
ReportLines::ReportLines(const ReportLayout& layout, const PackedSections& sections)
    : m_layout(layout),
      m_reader(sections),
      m_hasValues(sections.contents().values),
      m_hasNext(m_reader.nextSection(m_next))
{
}

bool ReportLines::next(ReportLine& line)
{
    if (!m_hasNext)
        return false;
    begin(line);
    take(line);
    if (m_hasNext && canShareLine(line))
        take(line);
    return true;
}

// Keeps the memory of the line before.
void ReportLines::begin(ReportLine& line) const
{
    line.place = { m_next.level, false, false };
    line.label = std::string_view();
    line.labelColumn = -1;
    line.texts.assign(m_layout.columns().size(), ShownText());
    line.values.assign(m_hasValues ? m_layout.columns().size() : 0, VorBomTypedValue());
    line.headerRows = RowList();
    line.footerRows = RowList();
}

// Adds the next section to the line.
void ReportLines::take(ReportLine& line)
{
    (m_next.isFooter ? line.place.hasFooter : line.place.hasHeader) = true;
    (m_next.isFooter ? line.footerRows : line.headerRows) = m_reader.rows();
    fill(line, m_layout.section(m_next));
    m_hasNext = m_reader.nextSection(m_next);
}

// The i-th text of a packed section belongs to the i-th column of its layout; all texts come before all values.
void ReportLines::fill(ReportLine& line, const SectionLayout& section)
{
    for (const int column : section.columns)
        m_reader.read(line.texts[static_cast<std::size_t>(column)]);
    if (m_hasValues)
        for (const int column : section.columns)
            m_reader.read(line.values[static_cast<std::size_t>(column)]);
    if (section.label.empty())
        return;
    line.label = section.label;
    line.labelColumn = section.labelColumn;
}

// A footer right after a header of its level belongs to it.
bool ReportLines::canShareLine(const ReportLine& line) const
{
    return line.place.hasHeader && m_next.isFooter && m_next.level == line.place.level &&
           m_layout.levels()[static_cast<std::size_t>(m_next.level)].canShareLine;
}
}
