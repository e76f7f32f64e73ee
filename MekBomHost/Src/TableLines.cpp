#include "TableLines.h"

#include <cstddef>

namespace mekbom
{
TableLines::TableLines(const TableLayout& layout, const VorBomItemBase& result) : m_layout(layout), m_sections(result)
{
}

// A section waits until the one after it is known: a footer may come to stand on its header's line.
bool TableLines::next(TableLine& line)
{
    TableLine section;
    while (nextSection(section))
    {
        if (m_isWaiting && canShareLine(m_waiting, section))
        {
            line = m_waiting;
            line.pFooter = section.pFooter;
            m_isWaiting = false;
            return true;
        }
        const bool isLineComplete = m_isWaiting;
        line = m_waiting;
        m_waiting = section;
        m_isWaiting = true;
        if (isLineComplete)
            return true;
    }
    if (!m_isWaiting)
        return false;
    line = m_waiting;
    m_isWaiting = false;
    return true;
}

// The next section that shows something: headers before what is under them, footers after it. An evaluated header knows
// the row that opened it; a footer has none.
bool TableLines::nextSection(TableLine& line)
{
    for (WalkedSection section; m_sections.next(section);)
    {
        line = TableLine();
        line.level = section.level;
        (section.pItem->getFirstDataRow() != nullptr ? line.pHeader : line.pFooter) = section.pItem;
        if (showsAnything(line))
            return true;
    }
    return false;
}

bool TableLines::showsAnything(const TableLine& section) const
{
    const TableLevel& level = m_layout.levels()[static_cast<std::size_t>(section.level)];
    return section.pHeader != nullptr ? level.header.showsAnything : level.footer.showsAnything;
}

bool TableLines::canShareLine(const TableLine& header, const TableLine& footer) const
{
    return header.pHeader != nullptr && footer.pFooter != nullptr && header.pHeader->next() == footer.pFooter &&
           m_layout.levels()[static_cast<std::size_t>(header.level)].canShareLine;
}
}
