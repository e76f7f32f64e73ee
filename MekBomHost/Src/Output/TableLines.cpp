#include "TableLines.h"

#include <cstddef>
#include <cstdint>

namespace mekbom
{
// Labels may hold anything, and are few.
TableCell TableCell::ofLabel(const std::string& label)
{
    return { { label.data(), static_cast<std::uint32_t>(label.size()), false }, true };
}

TableLines::TableLines(const TableLayout& layout, const SectionTexts& texts)
    : m_layout(layout), m_reader(texts), m_hasNext(m_reader.nextSection(m_next))
{
}

bool TableLines::next(TableLine& line)
{
    if (!m_hasNext)
        return false;
    line.place = { m_next.level, false, false };
    line.cells.assign(m_layout.columns().size(), TableCell());
    take(line);
    if (m_hasNext && canShareLine(line))
        take(line);
    return true;
}

// Adds the next section to the line.
void TableLines::take(TableLine& line)
{
    const TableLevel& level = m_layout.levels()[static_cast<std::size_t>(m_next.level)];
    (m_next.isFooter ? line.place.hasFooter : line.place.hasHeader) = true;
    fillFrom(m_next.isFooter ? level.footer : level.header, line);
    m_hasNext = m_reader.nextSection(m_next);
}

void TableLines::fillFrom(const TableSection& section, TableLine& line)
{
    for (const int column : section.columns)
        m_reader.read(line.cells[static_cast<std::size_t>(column)].text);
    if (section.labelColumn >= 0 && !section.label.empty())
        line.cells[static_cast<std::size_t>(section.labelColumn)] = TableCell::ofLabel(section.label);
}

// A footer right after a header of its level belongs to it.
bool TableLines::canShareLine(const TableLine& line) const
{
    return line.place.hasHeader && m_next.isFooter && m_next.level == line.place.level &&
           m_layout.levels()[static_cast<std::size_t>(m_next.level)].canShareLine;
}
}
