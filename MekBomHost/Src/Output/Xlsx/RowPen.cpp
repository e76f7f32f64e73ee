// The library has functions for cells. Each takes a cell apart, keeps it until its row is over and writes it by several
// fprintf(), which came to a third of all that a workbook took. So its rows are written here, in the very words that it
// uses, and it is told what it would have noted of them: the range of cells and the levels of the outline, which stand at
// the head of a sheet.
#include "RowPen.h"

#include "WorkbookFile.h"
#include "WorkbookLimits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace mekbom
{
namespace
{
const std::size_t kBlock = 1 << 16;    // bytes, handed over at a time
const std::size_t kLongestNumber = 32; // characters, of an integer or of a number with kNumDigits
const int kNumDigits = 16;             // a digit more than any program shows
const std::string_view kSpecial = "&<>";

std::string nameOfColumn(std::size_t column)
{
    std::array<char, LXW_MAX_COL_NAME_LENGTH> name = {};
    lxw_col_to_name(name.data(), static_cast<lxw_col_t>(column), 0);
    return name.data();
}

std::string_view escaped(char character)
{
    return character == '&' ? "&amp;" : (character == '<' ? "&lt;" : "&gt;");
}

void addEscaped(std::string& tags, std::string_view text)
{
    for (std::size_t at = text.find_first_of(kSpecial); at != std::string_view::npos; at = text.find_first_of(kSpecial))
    {
        tags.append(text.substr(0, at));
        tags.append(escaped(text[at]));
        text.remove_prefix(at + 1);
    }
    tags.append(text);
}

// Blanks at either end are lost unless the tag asks for them.
bool hasBlankAtEnd(std::string_view text)
{
    const std::string_view blanks = " \t\n";
    return !text.empty() &&
           (blanks.find(text.front()) != std::string_view::npos || blanks.find(text.back()) != std::string_view::npos);
}
}

RowPen::RowPen(lxw_worksheet& sheet, std::size_t numColumns) : m_sheet(sheet)
{
    for (std::size_t column = 0; column < numColumns; ++column)
        m_columnNames.push_back(nameOfColumn(column));
}

void RowPen::begin(std::uint8_t outlineLevel)
{
    if (m_numRows > 0)
        endRow();
    if (m_numRows == WorkbookLimits::kMostRows)
        WorkbookFile::require(LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE);
    ++m_numRows;
    m_rowAt = m_tags.size();
    m_tags += "<row r=\"";
    addInteger(m_numRows);
    if (outlineLevel > 0)
    {
        m_tags += "\" outlineLevel=\"";
        addInteger(outlineLevel);
    }
    m_tags += "\">";
    m_cellsAt = m_tags.size();
    m_sheet.outline_row_level = std::max(m_sheet.outline_row_level, outlineLevel);
}

void RowPen::addNumber(std::size_t column, double number, lxw_format& format)
{
    std::array<char, kLongestNumber> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): written next
    const std::to_chars_result end =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::general, kNumDigits);
    addPlace(column, format);
    m_tags += "><v>";
    m_tags.append(digits.data(), end.ptr);
    m_tags += "</v></c>";
}

void RowPen::addText(std::size_t column, std::string_view text, lxw_format& format)
{
    addPlace(column, format);
    m_tags += hasBlankAtEnd(text) ? " t=\"inlineStr\"><is><t xml:space=\"preserve\">" : " t=\"inlineStr\"><is><t>";
    addEscaped(m_tags, text);
    m_tags += "</t></is></c>";
}

void RowPen::addEmpty(std::size_t column, lxw_format& format)
{
    addPlace(column, format);
    m_tags += "/>";
}

void RowPen::finish()
{
    if (m_numRows == 0)
        return;
    endRow();
    handOver();
    m_sheet.dim_rowmin = 0;
    m_sheet.dim_rowmax = m_numRows - 1;
    m_sheet.dim_colmin = 0;
    m_sheet.dim_colmax = static_cast<lxw_col_t>(m_columnNames.size() - 1);
}

void RowPen::addPlace(std::size_t column, lxw_format& format)
{
    m_tags += "<c r=\"";
    m_tags += m_columnNames[column];
    addInteger(m_numRows);
    m_tags += "\" s=\"";
    addInteger(static_cast<std::uint32_t>(lxw_format_get_xf_index(&format)));
    m_tags += '"';
}

void RowPen::addInteger(std::uint32_t integer)
{
    std::array<char, kLongestNumber> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): written next
    m_tags.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), integer).ptr);
}

// A row without cells needs no tags.
void RowPen::endRow()
{
    if (m_tags.size() == m_cellsAt)
        m_tags.resize(m_rowAt);
    else
        m_tags += "</row>";
    if (m_tags.size() >= kBlock)
        handOver();
}

// Whether the file took it is asked of the file, once for all rows: WorkbookFile.
void RowPen::handOver()
{
    std::fwrite(m_tags.data(), 1, m_tags.size(), m_sheet.optimize_tmpfile);
    m_tags.clear();
}
}
