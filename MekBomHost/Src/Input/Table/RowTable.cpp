#include "RowTable.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "TextCheck.h"

#include <algorithm>
#include <cmath>

namespace mekbom
{
namespace
{
// Room for so many elements more; twice as much as there was, so that rows may come one by one.
template <class Elements>
void makeRoom(Elements& elements, std::size_t numMore)
{
    if (elements.capacity() - elements.size() < numMore)
        elements.reserve(std::max(2 * elements.capacity(), elements.size() + numMore));
}
}

void RowTable::add(const Record& row)
{
    for (std::size_t column = 0; column < row.size(); ++column)
        require(row[column], column);
    std::size_t numBytes = 0;
    for (const RecordCell& cell : row)
        numBytes += cell.isNumber() ? 0 : cell.text().size();
    makeRoom(m_cells, row.size());
    makeRoom(m_texts, numBytes);
    for (const RecordCell& cell : row)
        append(cell);
}

// There is room for it: half a row would move all cells behind it into other columns.
void RowTable::append(const RecordCell& given)
{
    Cell cell; // NOLINT(cppcoreguidelines-pro-type-member-init): one of the two members is set next
    if (given.isNumber())
    {
        cell.number = given.number();
        cell.size = Cell::kIsNumber;
    }
    else
    {
        cell.begin = m_texts.size();
        cell.size = given.text().size();
        m_texts.append(given.text());
    }
    m_cells.push_back(cell);
}

RecordCell RowTable::cell(std::size_t row, std::size_t column) const
{
    const Cell& cell = m_cells[row * m_headings.size() + column];
    if (cell.size == Cell::kIsNumber)
        return RecordCell(cell.number);
    return RecordCell(std::string_view(m_texts).substr(cell.begin, cell.size));
}

void RowTable::require(const RecordCell& cell, std::size_t column) const
{
    const std::string row = "row " + std::to_string(numRows() + 1);
    if (!cell.isNumber())
        return requireText(cell.text(), m_name + " " + row);
    if (std::isfinite(cell.number()))
        return;
    Finding finding = Finding::of(FindingCodes::kCellIsTooLarge, numberText(cell.number()), "a finite number");
    finding.source = m_name;
    finding.path = row;
    finding.field = m_headings[column];
    throw Fault(kInvalidInput, finding);
}
}
