// What a cell holds depends on its type t, its style s and on what stands in it:
//
//   <c r="A2" t="s"><v>17</v></c>                        the text 17 of the workbook
//   <c r="B2" t="inlineStr"><is><t>S355</t></is></c>     its own text
//   <c r="C2"><v>134.4</v></c>                           a number
//   <c r="D2" s="3"><v>45356</v></c>                     a number that style 3 shows as a date: refused
//   <c r="E2"><f>C2*4</f><v>537.6</v></c>                what the formula gave when the workbook was stored
//   <c r="F2"><f>C2*4</f></c>                            a formula that nobody has computed: refused
//   <c r="G2" t="str"><f>A2&amp;"x"</f><v>B1x</v></c>    the text that a formula gave
//   <c r="XFD2" s="1"/>                                  nothing
//
// Who reads the rows need not want a column, so a refused cell is no mistake until somebody asks for its value. Rows and
// cells may leave out their names; then they follow the one before.
#include "SheetRows.h"

#include "CellText.h"
#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "NumberReader.h"
#include "NumberText.h"
#include "Utf8.h"
#include "XlsxLimits.h"
#include "XmlNames.h"

#include <utility>

namespace mekbom
{
namespace
{
const char* const kPlainRemedy = "give the cell a plain number format";

Finding refusal(const FindingCode& code, const std::string& found, const std::string& expected,
                const std::string& remedy)
{
    Finding finding = Finding::of(code, found, expected);
    finding.remedy = remedy;
    return finding;
}

// "3-5" typed into a cell becomes the third of May, so a text may be meant.
Finding dateRefusal()
{
    return refusal(FindingCodes::kCellShownOtherwise, "a date", "a number or a text",
                   "give the cell the number format of texts and type it anew");
}

Finding percentRefusal(double number)
{
    return refusal(FindingCodes::kCellShownOtherwise,
                   numberText(number) + ", shown as " + listedText(100 * number, { 9, false, false }) + "%",
                   "the number that is shown", kPlainRemedy);
}

Finding scaledRefusal(double number)
{
    return refusal(FindingCodes::kCellShownOtherwise, numberText(number) + ", shown in thousands",
                   "the number that is shown", kPlainRemedy);
}

Finding errorRefusal(std::string_view error)
{
    return refusal(FindingCodes::kCellWithoutValue, "the error " + inQuotes(error), "a value",
                   "mend the formula, or leave the cell empty");
}

Finding formulaRefusal()
{
    return refusal(FindingCodes::kCellWithoutValue, "a formula whose value is not stored", "a value",
                   "open the workbook in a spreadsheet program and save it");
}
}

// What is in a cell, as far as it counts. The texts are those of the element.
struct SheetRows::CellParts
{
    explicit CellParts(const pugi::xml_node& cell)
    {
        for (const pugi::xml_attribute& attribute : cell.attributes())
            take(XmlNames::withoutPrefix(attribute.name()), attribute.value());
        for (const pugi::xml_node& child : cell.children())
            take(XmlNames::withoutPrefix(child.name()), child);
    }

    bool hasFormulaAlone() const { return hasFormula && (!value || (!value.first_child() && type != "str")); }

    std::string_view name;
    std::string_view type;
    std::string_view style;
    bool hasFormula = false;
    pugi::xml_node value;
    pugi::xml_node ownText;

private:
    void take(std::string_view attribute, std::string_view text)
    {
        if (attribute == "r")
            name = text;
        else if (attribute == "t")
            type = text;
        else if (attribute == "s")
            style = text;
    }

    void take(std::string_view element, const pugi::xml_node& child)
    {
        if (element == "v")
            value = child;
        else if (element == "is")
            ownText = child;
        else if (element == "f")
            hasFormula = true;
    }
};

SheetRows::SheetRows(ByteSource& part, const Workbook& workbook, std::string sheet)
    : m_elements(part, workbook.name(), { "sheetData/row", "mergeCells/mergeCell" }),
      m_workbook(workbook),
      m_part{ workbook.name(), part.name() },
      m_sheet(std::move(sheet))
{
}

bool SheetRows::next()
{
    while (const pugi::xml_node element = m_elements.next())
    {
        if (XmlNames::isNamed(element, "mergeCell"))
        {
            takeMerged(element);
            continue;
        }
        readRow(element);
        if (!m_cells.empty())
            return true;
    }
    return false;
}

void SheetRows::readRow(const pugi::xml_node& row)
{
    beginRow(row);
    for (const pugi::xml_node& cell : row.children())
        if (XmlNames::isNamed(cell, "c"))
        {
            const CellParts parts(cell);
            moveTo(parts.name);
            const RecordCell value = valueOf(parts);
            if (!value.isNothing())
                m_cells.push_back({ m_column, value });
        }
}

void SheetRows::beginRow(const pugi::xml_node& row)
{
    m_cells.clear();
    m_texts.clear();
    m_refusals.clear();
    m_column = -1;
    const int lastRow = m_row++;
    const std::string_view number = XmlNames::attribute(row, "r");
    if (!number.empty() && (!NumberReader::read(number, m_row) || m_row <= lastRow))
        failInSheet("row " + inQuotes(number) + " behind row " + std::to_string(lastRow), "rows in order");
    if (m_row > XlsxLimits::kMostRows)
        failInSheet("row " + std::to_string(m_row), std::to_string(XlsxLimits::kMostRows) + " rows at most");
}

void SheetRows::moveTo(std::string_view name)
{
    const int lastColumn = m_column++;
    if (!name.empty())
    {
        const auto place = CellName::parse(name);
        if (!place || place->row != m_row || place->column <= lastColumn)
            failInSheet("cell " + inQuotes(name) + " in row " + std::to_string(m_row),
                        "the cells of the row in order, up to " +
                            CellName::of({ m_row, XlsxLimits::kMostColumns - 1 }));
        m_column = place->column;
    }
    if (m_column >= XlsxLimits::kMostColumns)
        failInSheet("more cells in row " + std::to_string(m_row),
                    std::to_string(XlsxLimits::kMostColumns) + " columns at most");
}

// A formula that gives an empty text has an empty value, and one of numbers none.
RecordCell SheetRows::valueOf(const CellParts& parts)
{
    if (parts.hasFormulaAlone())
        return refused(formulaRefusal());
    if (parts.type == "inlineStr")
        return parts.ownText ? checked(CellText::textOf(parts.ownText, newText())) : RecordCell();
    if (!parts.value || !parts.value.first_child())
        return RecordCell();
    const std::string_view text = CellText::charactersOf(parts.value, m_buffer);
    if (parts.type.empty() || parts.type == "n")
        return numberIn(text, parts.style);
    if (parts.type == "s")
        return sharedText(text);
    if (parts.type == "str")
        return checked(CellText::appendUnescaped(text, newText()));
    if (parts.type == "b")
        return RecordCell(std::string_view(text == "0" ? "FALSE" : "TRUE"));
    if (parts.type == "e")
        return refused(errorRefusal(text));
    if (parts.type == "d")
        return refused(dateRefusal());
    failInCell("type " + inQuotes(parts.type), "one that is known");
}

RecordCell SheetRows::sharedText(std::string_view number) const
{
    int index = -1;
    const bool isNumber = NumberReader::read(number, index) && index >= 0;
    const auto text = isNumber ? m_workbook.texts().find(static_cast<std::size_t>(index)) : std::nullopt;
    if (!text)
        failInCell("text " + inQuotes(number) + ", which the workbook has not", "one that it has");
    return RecordCell(*text);
}

RecordCell SheetRows::numberIn(std::string_view text, std::string_view style)
{
    double number = 0;
    if (!NumberReader::read(text, number))
        failInCell(inQuotes(text), "a number");
    int index = 0;
    NumberReader::read(style, index); // a cell without a style has the first
    return formatted(number, m_workbook.styles().formatOf(static_cast<std::size_t>(index)));
}

RecordCell SheetRows::formatted(double number, const NumberFormat& format)
{
    switch (format.kind)
    {
        case NumberFormat::kPlain: break;
        case NumberFormat::kDate: return refused(dateRefusal());
        case NumberFormat::kPercent: return refused(percentRefusal(number));
        case NumberFormat::kScaled: return refused(scaledRefusal(number));
        case NumberFormat::kWithUnit:
            return RecordCell(std::string_view(newText() = numberText(number) + " " + format.unit));
    }
    return RecordCell(number);
}

RecordCell SheetRows::checked(std::string_view text) const
{
    if (Utf8::findInvalid(text) != text.size())
        failInCell("bytes that are no UTF-8", "text in UTF-8");
    return RecordCell(text);
}

RecordCell SheetRows::refused(Finding finding)
{
    return RecordCell(m_refusals.emplace_back(std::move(finding)));
}

// "A2:A5"; cells that are merged within a row are no more than a wide one.
void SheetRows::takeMerged(const pugi::xml_node& merged)
{
    const std::string_view range = XmlNames::attribute(merged, "ref");
    const std::size_t colon = range.find(':');
    const auto first = CellName::parse(range.substr(0, colon));
    const auto last = colon == std::string_view::npos ? first : CellName::parse(range.substr(colon + 1));
    if (!first || !last)
        failInSheet("merged cells " + inQuotes(range), "the names of two cells");
    if (first->row == last->row)
        return;
    if (m_mergedBlocks.size() == XlsxLimits::kMostMergedBlocks)
        failInSheet("more merged cells", std::to_string(XlsxLimits::kMostMergedBlocks) + " blocks of them at most");
    m_mergedBlocks.push_back({ *first, *last });
}

void SheetRows::failInCell(const std::string& found, const std::string& expected) const
{
    WorkbookFault::inPart({ m_part.workbook, placeOf(m_column) }, found, expected);
}

void SheetRows::failInSheet(const std::string& found, const std::string& expected) const
{
    WorkbookFault::inPart(m_part, found, expected);
}
}
