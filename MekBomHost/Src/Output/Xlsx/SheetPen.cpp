#include "SheetPen.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "SheetText.h"
#include "Utf8.h"
#include "WordWrap.h"
#include "WorkbookLimits.h"

#include <algorithm>

namespace mekbom
{
namespace
{
// Widths are counted in digits, than which the letters of most texts, and all bold ones, are a little wider.
const double kRoomPerCharacter = 1.1;
const double kRoomAtEnds = 1;
const int kIndent = 2; // characters, about as wide as an indent
const std::size_t kLongestCellName = 16;

const char* const kAllCells = "A1:XFD1048576"; // of which programs would mark each text of digits as a mistake

std::string cellName(lxw_row_t row, std::size_t column)
{
    char name[kLongestCellName] = {};
    lxw_rowcol_to_cell(name, row, static_cast<lxw_col_t>(column));
    return name;
}

// The widest line of the text.
int widthOf(std::string_view text)
{
    if (SheetText::isPlain(text))
        return static_cast<int>(text.size());
    int widest = 0;
    for (const std::string& line : WordWrap::wrap(text, 0))
        widest = std::max(widest, Utf8::displayWidth(line));
    return widest;
}

bool hasLines(std::string_view text)
{
    return text.find('\n') != std::string_view::npos;
}
}

SheetPen::SheetPen(WorkbookFile& file, CellFormats& formats, const std::string& name, std::size_t numColumns)
    : m_formats(formats), m_name(name), m_sheet(file.addSheet(name)), m_rows(m_sheet, numColumns), m_widths(numColumns)
{
    worksheet_fit_to_pages(&m_sheet, 1, 0);
    WorkbookFile::require(worksheet_ignore_errors(&m_sheet, LXW_IGNORE_NUMBER_STORED_AS_TEXT, kAllCells));
}

void SheetPen::writeText(std::size_t column, std::string_view text, CellLook look, int limit)
{
    if (text.empty())
        return writeEmpty(column, look);
    SheetText::inCell(text, m_text);
    requireLength(column, text);
    const int width = widthOf(text);
    look.wraps = width > limit || hasLines(m_text);
    makeRoom(column, std::min(width, limit) + (look.isIndented ? kIndent : 0));
    const bool isLong = m_text.size() > CellFormats::kLongestTyped;
    m_rows.addText(column, m_text, *(isLong ? m_formats.ofLongText(look) : m_formats.ofText(look)));
}

void SheetPen::writeNumber(std::size_t column, const SheetNumber& number, int width, const CellLook& look)
{
    makeRoom(column, width);
    m_rows.addNumber(column, number.number, *m_formats.of(look, number));
}

void SheetPen::writeEmpty(std::size_t column, const CellLook& look)
{
    m_rows.addEmpty(column, *m_formats.ofText(look));
}

void SheetPen::writeAcross(std::string_view text, CellLook::eRole role)
{
    for (const std::string& line : WordWrap::wrap(text, 0))
    {
        beginRow();
        SheetText::inCell(line, m_text);
        requireLength(0, line);
        if (!line.empty())
            m_rows.addText(0, m_text, *m_formats.ofText({ role }));
    }
}

double SheetPen::finish()
{
    m_rows.finish();
    double sum = 0;
    for (std::size_t column = 0; column < m_widths.size(); ++column)
    {
        const double width = m_widths[column] * kRoomPerCharacter + kRoomAtEnds;
        const auto index = static_cast<lxw_col_t>(column);
        WorkbookFile::require(worksheet_set_column(&m_sheet, index, index, width, nullptr));
        sum += width;
    }
    return sum;
}

// A cell with half a text would be worse than no workbook.
void SheetPen::requireLength(std::size_t column, std::string_view text) const
{
    const std::size_t most = WorkbookLimits::kLongestText;
    if (text.size() <= most && m_text.size() <= most)
        return;
    const std::size_t length = std::max(SheetText::length(text), SheetText::length(m_text));
    if (length <= most)
        return;
    Finding finding =
        Finding::of(FindingCodes::kOutputNotWritten, "a text of " + std::to_string(length) + " characters",
                    "at most " + std::to_string(most) + ", which a cell of a workbook holds");
    finding.path = m_name + "!" + cellName(m_rows.count() - 1, column);
    finding.remedy = "shorten it, or write the list in another format";
    throw Fault(kOutputNotWritten, finding);
}

void SheetPen::makeRoom(std::size_t column, int width)
{
    m_widths[column] = std::max(m_widths[column], width);
}
}
