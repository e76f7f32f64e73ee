// Told on rows P1, P1, P2 under level 0 and lines of level 1, after the first line:
//   open        level 0 alone: the line closes with the next section
//   rows        P1; it counts
//   then        P1 is merged: the last line has two rows, of which the second is settled not to count
//   footer      closes level 0: its header ends here and has three rows; the footer counts two of them
#include "VorBomKeptSections.h"

namespace
{
VorBomKeptSections::Cell cellOf(const VorBomDataValue& shown, const VorBomTypedValue& value)
{
    VorBomKeptSections::Cell cell;
    if (shown.type() == VorBomDataValue::kStringData)
        cell.text = *static_cast<const VorString*>(shown.data());
    cell.type = static_cast<std::uint8_t>(value.type);
    cell.unitType = value.unitType;
    cell.isWhole = value.isWhole;
    if (value.isWhole)
        cell.whole = value.whole;
    else
        cell.number = value.number;
    return cell;
}
}

void VorBomKeptSections::clear()
{
    *this = VorBomKeptSections();
}

// A level is the deepest when its header has nothing under it in the template: its header is a line.
void VorBomKeptSections::addHeader(const VorBomReportSection& header)
{
    const bool isLine = header.pTemplateSection->child() == nullptr;
    closeDownTo(header.level);
    m_open.push_back({ m_sections.size(), m_numCounted });
    add(header, isLine ? kLine : kHeader);
    if (!isLine)
        return;
    m_nDeepest = header.level;
    m_nLastLine = m_sections.size() - 1;
    addRow(*header.pRow);
}

// After a merged line there is no line before its own footer: that of the line before was closed by its own.
void VorBomKeptSections::addFooter(const VorBomReportSection& footer)
{
    closeDownTo(footer.level + 1);
    const Open group = m_open.empty() ? Open{ m_sections.size(), m_numCounted } : m_open.back();
    closeDownTo(footer.level);
    const bool isOwn = footer.level == m_nDeepest;
    Section& kept = add(footer, isOwn ? kOwnFooter : kFooter);
    if (isOwn)
        countOwnRow(kept, footer.countedRows);
    else
        countRowsOf(kept, group);
    kept.end = m_sections.size();
    kept.firstDatum = m_numRowsWithDatum.size();
    const int numTuples = footer.section.getData().length();
    for (int tuple = 0; tuple < numTuples; ++tuple)
        m_numRowsWithDatum.push_back(footer.pNumRowsWithDatum == nullptr ? 0 : footer.pNumRowsWithDatum[tuple]);
}

void VorBomKeptSections::addMergedRow(const VorBomDataRow& row)
{
    addRow(row);
}

// Whether the row was merged away is known only now.
void VorBomKeptSections::settleRow()
{
    while (m_areCounted.size() < m_rows.size())
    {
        const bool isCounted = m_rows[m_areCounted.size()]->getUseThisDataForSums() != 0;
        m_areCounted.push_back(isCounted);
        m_numCounted += isCounted ? 1 : 0;
    }
}

std::size_t VorBomKeptSections::endOfRows(const Section& section) const
{
    const bool isOpen = section.kind == kHeader && section.end == kOpen;
    return isOpen ? m_rows.size() : section.firstRow + static_cast<std::size_t>(section.numRows);
}

// The cells of a section end where those of the next begin.
int VorBomKeptSections::numTuples(std::size_t index) const
{
    const std::size_t end = index + 1 < m_sections.size() ? m_sections[index + 1].firstCell : m_cells.size();
    return static_cast<int>(end - m_sections[index].firstCell);
}

const VorBomKeptSections::Cell* VorBomKeptSections::cell(std::size_t index, int tuple) const
{
    if (tuple < 0 || tuple >= numTuples(index))
        return nullptr;
    return &m_cells[m_sections[index].firstCell + static_cast<std::size_t>(tuple)];
}

// Numbers may be missing where the system had no memory for them.
int VorBomKeptSections::numRowsWithDatum(std::size_t index, int tuple) const
{
    const Section& section = m_sections[index];
    const bool isFooter = section.kind == kFooter || section.kind == kOwnFooter;
    if (!isFooter || cell(index, tuple) == nullptr)
        return 0;
    const std::size_t datum = section.firstDatum + static_cast<std::size_t>(tuple);
    return datum < m_numRowsWithDatum.size() ? m_numRowsWithDatum[datum] : 0;
}

VorBomKeptSections::Section& VorBomKeptSections::add(const VorBomReportSection& section, eKind kind)
{
    Section kept;
    kept.pTemplateSection = section.pTemplateSection;
    kept.firstCell = m_cells.size();
    kept.firstRow = m_rows.size();
    kept.level = section.level;
    kept.kind = kind;
    m_sections.push_back(kept);
    const VorBomDataTupleArray& tuples = section.section.getData();
    for (int tuple = 0; tuple < tuples.length(); ++tuple)
    {
        const VorBomTypedValue value = section.pValues == nullptr ? VorBomTypedValue() : section.pValues[tuple];
        m_cells.push_back(cellOf(tuples.begin()[tuple].value(), value));
    }
    return m_sections.back();
}

// Each header is closed once, so all of this together takes a step for each of them.
void VorBomKeptSections::closeDownTo(int level)
{
    while (!m_open.empty() && m_sections[m_open.back().section].level >= level)
    {
        Section& header = m_sections[m_open.back().section];
        header.end = m_sections.size();
        if (header.kind == kHeader)
            header.numRows = static_cast<int>(m_rows.size() - header.firstRow);
        m_open.pop_back();
    }
}

void VorBomKeptSections::addRow(const VorBomDataRow& row)
{
    m_rows.push_back(&row);
    if (m_nLastLine != kOpen)
        ++m_sections[m_nLastLine].numRows;
}

void VorBomKeptSections::countRowsOf(Section& footer, const Open& group) const
{
    footer.firstRow = group.section < m_sections.size() ? m_sections[group.section].firstRow : m_rows.size();
    footer.numRows = static_cast<int>(m_rows.size() - footer.firstRow);
    footer.numCounted = m_numCounted - group.numCountedBefore;
}

// The row that came last, and which counts here even where it is merged away next.
void VorBomKeptSections::countOwnRow(Section& footer, const VorBomCountedRows& rows) const
{
    const bool isCounted = rows.begin() != rows.end();
    footer.numRows = footer.numCounted = isCounted ? 1 : 0;
    footer.firstRow = m_rows.size() - static_cast<std::size_t>(footer.numRows);
}
