// Handles and iterators are numbers of sections and rows; what they answer stands in VorBomKeptSections. Told on a
// header with two lines and a footer, the sections 0 to 3:
//   begin()         0, and on by one
//   children()      0, then where the sections under it end: 3
//   its children    1, then 2; they end where those under the header do: before 3
#include "VorBomReport.h"

#include "VorBomKeptSections.h"

namespace
{
using Kept = VorBomKeptSections;

VorBomTypedValue valueOf(const Kept::Cell& cell)
{
    VorBomTypedValue value;
    value.type = static_cast<VorBomDataValue::eBomDataValueType>(cell.type);
    value.unitType = cell.unitType;
    value.isWhole = cell.isWhole;
    value.whole = cell.isWhole ? cell.whole : 0;
    value.number = cell.isWhole ? static_cast<double>(cell.whole) : cell.number;
    return value;
}
}

VorBomReport::VorBomReport(int requests)
    : VorBomSectionSink(requests | kTypedValues), m_pKept(std::make_unique<VorBomKeptSections>())
{
}

VorBomReport::~VorBomReport() = default;

int VorBomReport::isComplete() const
{
    return m_pKept->isComplete() ? 1 : 0;
}

std::size_t VorBomReport::numSections() const
{
    return m_pKept->size();
}

VorBomReport::Section VorBomReport::section(std::size_t index) const
{
    return Section(*m_pKept, index);
}

VorBomReport::SectionIterator VorBomReport::begin() const
{
    return Sections(*m_pKept, 0, m_pKept->size(), false).begin();
}

VorBomReport::SectionIterator VorBomReport::end() const
{
    return Sections(*m_pKept, 0, m_pKept->size(), false).end();
}

VorBomReport::Sections VorBomReport::children() const
{
    return Sections(*m_pKept, 0, m_pKept->size(), true);
}

void VorBomReport::takeHeader(const VorBomReportSection& header)
{
    m_pKept->addHeader(header);
}

void VorBomReport::takeFooter(const VorBomReportSection& footer)
{
    m_pKept->addFooter(footer);
}

void VorBomReport::takeMergedRow(const VorBomDataRow& row)
{
    m_pKept->addMergedRow(row);
}

int VorBomReport::takeProgress(int numRowsDone)
{
    if (numRowsDone == 0)
        m_pKept->clear();
    m_pKept->settleRow();
    return 1;
}

void VorBomReport::takeEnd()
{
    m_pKept->setComplete();
}

VorBomReport::SectionIterator VorBomReport::Sections::begin() const
{
    return SectionIterator(*m_pKept, m_nFirst, m_areChildren);
}

VorBomReport::SectionIterator VorBomReport::Sections::end() const
{
    return SectionIterator(*m_pKept, m_nEnd, m_areChildren);
}

VorBomReport::SectionIterator& VorBomReport::SectionIterator::operator++()
{
    m_nIndex = m_areChildren ? m_pKept->endOf(m_pKept->section(m_nIndex)) : m_nIndex + 1;
    return *this;
}

VorBomReport::RowIterator VorBomReport::Rows::begin() const
{
    return RowIterator(*m_pKept, m_nFirst, m_nEnd, m_areCounted);
}

VorBomReport::RowIterator VorBomReport::Rows::end() const
{
    return RowIterator(*m_pKept, m_nEnd, m_nEnd, m_areCounted);
}

VorBomReport::RowIterator::RowIterator(const VorBomKeptSections& kept, std::size_t row, std::size_t end,
                                       bool areCounted)
    : m_pKept(&kept), m_nRow(row), m_nEnd(end), m_areCounted(areCounted)
{
    skip();
}

const VorBomDataRow& VorBomReport::RowIterator::operator*() const
{
    return m_pKept->row(m_nRow);
}

VorBomReport::RowIterator& VorBomReport::RowIterator::operator++()
{
    ++m_nRow;
    skip();
    return *this;
}

void VorBomReport::RowIterator::skip()
{
    while (m_areCounted && m_nRow != m_nEnd && !m_pKept->isCounted(m_nRow))
        ++m_nRow;
}

int VorBomReport::Section::level() const
{
    return m_pKept->section(m_nIndex).level;
}

bool VorBomReport::Section::isHeader() const
{
    return m_pKept->section(m_nIndex).kind == Kept::kHeader;
}

bool VorBomReport::Section::isLine() const
{
    return m_pKept->section(m_nIndex).kind == Kept::kLine;
}

bool VorBomReport::Section::isFooter() const
{
    return !isHeader() && !isLine();
}

const VorBomTemplateItem& VorBomReport::Section::templateSection() const
{
    return *m_pKept->section(m_nIndex).pTemplateSection;
}

int VorBomReport::Section::numTuples() const
{
    return m_pKept->numTuples(m_nIndex);
}

VorString VorBomReport::Section::text(int tuple) const
{
    const Kept::Cell* const pCell = m_pKept->cell(m_nIndex, tuple);
    return pCell == nullptr ? VorString() : pCell->text;
}

VorBomTypedValue VorBomReport::Section::value(int tuple) const
{
    const Kept::Cell* const pCell = m_pKept->cell(m_nIndex, tuple);
    return pCell == nullptr ? VorBomTypedValue() : valueOf(*pCell);
}

int VorBomReport::Section::numRowsWithDatum(int tuple) const
{
    return m_pKept->numRowsWithDatum(m_nIndex, tuple);
}

// A header whose group was stopped before its first line was complete has none.
const VorBomDataRow* VorBomReport::Section::row() const
{
    const Kept::Section& section = m_pKept->section(m_nIndex);
    const bool hasRow = !isFooter() && section.firstRow != m_pKept->endOfRows(section);
    return hasRow ? &m_pKept->row(section.firstRow) : nullptr;
}

VorBomReport::Rows VorBomReport::Section::rows() const
{
    const Kept::Section& section = m_pKept->section(m_nIndex);
    const std::size_t end = m_pKept->endOfRows(section);
    const bool areCounted = section.kind == Kept::kFooter;
    const int count = areCounted ? section.numCounted : static_cast<int>(end - section.firstRow);
    return Rows(*m_pKept, section.firstRow, end, count, areCounted);
}

VorBomReport::Sections VorBomReport::Section::children() const
{
    const Kept::Section& section = m_pKept->section(m_nIndex);
    return Sections(*m_pKept, m_nIndex + 1, m_pKept->endOf(section), true);
}
