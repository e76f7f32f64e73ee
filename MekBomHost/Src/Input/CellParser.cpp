// A cell goes through up to three hands. In a column of feet whose file has decimal commas:
//
//   cell       NumberNotation    NumberReader    VorQuantityReader
//   7,5        7.5               7.5             not asked: 7.5 ft are 2286 mm
//   2286 mm    2286 mm           no number       2286 mm
//   n/a        n/a               no number       no quantity, so the cell is refused
//
// Texts in the plain notation, and numbers of formats that have numbers, do not go through the first.
#include "CellParser.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "MistakeCodes.h"
#include "NumberReader.h"
#include "Utf8.h"

#include <cmath>

namespace mekbom
{
namespace
{
// Programs write "NaN", "nan" and "-NAN" for what is not a number.
bool isNotANumber(std::string_view text)
{
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    return text.size() == 3 && (text[0] | 0x20) == 'n' && (text[1] | 0x20) == 'a' && (text[2] | 0x20) == 'n';
}

bool readWholeNumber(std::string_view text, int& value)
{
    return NumberReader::read(text, value) || NumberReader::read(NumberReader::withoutZeroDecimals(text), value);
}

const FindingCode& codeOf(std::string_view text, const FindingCode& otherwise)
{
    return isNotANumber(text) ? MistakeCodes::kNotANumber : otherwise;
}
}

// The text of a number lies in `m_numberText`: it is good until the next cell that is no text.
std::string_view CellParser::textOf(const RecordCell& cell)
{
    if (cell.isText())
        return cell.text();
    m_numberText = cell.asText();
    return m_numberText;
}

// Nearly all numbers are written the plain way, and then nothing else is tried. Gives what the notation makes of the
// text; `isRead` says whether `read` took it, as it stands or as the notation reads it.
template <class Read>
NumberNotation::eReading CellParser::readWithNotation(const RecordCell& cell, std::string_view text, const Read& read,
                                                      bool& isRead)
{
    m_groupedText = std::string_view();
    isRead = (m_notation.isPlain() || cell.isNumber()) && read(text);
    if (isRead || cell.isNumber())
        return NumberNotation::kReadable;
    const NumberNotation::eReading reading = m_notation.toPlain(text, m_plainText);
    isRead = reading == NumberNotation::kReadable && read(std::string_view(m_plainText));
    if (isRead && m_plainText.size() < text.size())
        m_groupedText = text;
    return reading;
}

// Spreadsheets write 4 as "4.0" once another cell of the column had decimals.
// Two mistakes, two expectations: "4.5" is not whole, "3000000000" is, but has no room in 32 bits.
bool CellParser::readWhole(const RecordCell& cell, int& value)
{
    const std::string_view text = textOf(cell);
    bool isRead = false;
    const auto read = [&value](std::string_view plain) { return readWholeNumber(plain, value); };
    const NumberNotation::eReading reading = readWithNotation(cell, text, read, isRead);
    if (isRead)
        return true;
    if (refuseNotation(text, reading))
        return false;
    const bool isWhole = NumberReader::isWhole(NumberReader::withoutZeroDecimals(text));
    return refuse(codeOf(text, FindingCodes::kCellIsNotWhole), text,
                  isWhole ? "a whole number from -2147483648 to 2147483647" : "a whole number");
}

// A quantity comes from its reader in the model's unit; a plain number is still in the column's, 7.5 ft say, and
// becomes 2286 mm here. Whether the value is finite is asked after that: 1e308 is a number, but as feet it is none in
// mm. A column that is not in the model's unit always has a unit (ColumnTypes::resolve). In a column of feet and
// inches "7" is no plain number: it goes to the reader of quantities, which knows what the layout takes.
bool CellParser::readNumber(const InputColumn& column, const RecordCell& cell, CellNumber& number)
{
    const std::string_view text = textOf(cell);
    number = CellNumber();
    bool isRead = false;
    const auto read = [&](std::string_view plain)
    {
        number.isPlain = column.takesPlainNumbers && NumberReader::read(plain, number.value, number.numDecimals);
        return number.isPlain || readQuantity(column, plain, number);
    };
    const NumberNotation::eReading reading = readWithNotation(cell, text, read, isRead);
    if (!isRead)
        return !refuseNotation(text, reading) && refuseNumber(column, text);
    if (!number.namesUnit && !column.lackingUnit.empty())
        return refuseForWantOfUnit(column, text);
    if (number.isPlain && !column.isInModelUnit)
        number.value = column.unit->getVorUnitTransform().toInternalUnits(number.value);
    return std::isfinite(number.value) || refuse(FindingCodes::kCellIsTooLarge, text, "a smaller number");
}

bool CellParser::readPlainText(const InputColumn& column, const RecordCell& cell, std::string_view& plain)
{
    const std::string_view text = textOf(cell);
    bool isRead = false;
    double value = 0;
    const auto read = [&](std::string_view written) { return NumberReader::read(plain = written, value); };
    const NumberNotation::eReading reading = readWithNotation(cell, text, read, isRead);
    return isRead || (!refuseNotation(text, reading) &&
                      refuse(codeOf(text, MistakeCodes::kKindsMixed), text, "a number", column.whyNumbers));
}

// A cell that is more than a number. "1 1/2" takes the unit of its column as "1.5" does, and lacks it with it.
bool CellParser::readQuantity(const InputColumn& column, std::string_view text, CellNumber& number)
{
    int namesUnit = 0;
    if (!column.quantities || column.quantities->read(Utf8::toWide(text), number.value, namesUnit) == 0)
        return false;
    number.namesUnit = namesUnit == 1;
    return true;
}

// These answer false, as whoever reads a number does then.
bool CellParser::refuse(const FindingCode& code, std::string_view text, const std::string& expected,
                        const std::string& remedy)
{
    m_refusal = Finding::of(code, inQuotes(text), expected);
    m_refusal.remedy = remedy.empty() && &code == &MistakeCodes::kNotANumber ? "leave the cell empty" : remedy;
    return false;
}

bool CellParser::refuseNumber(const InputColumn& column, std::string_view text)
{
    const std::string hint = column.quantities ? Utf8::toBytes(column.quantities->explain(Utf8::toWide(text))) : "";
    return refuse(codeOf(text, FindingCodes::kCellIsNoNumber), text,
                  column.unit ? InputUnits::cellExpectation(*column.unit) : "a number", hint);
}

bool CellParser::refuseForWantOfUnit(const InputColumn& column, std::string_view text)
{
    return refuse(FindingCodes::kUnitLacking, text, "a number with its unit",
                  "write the heading " + inQuotes(column.name + " [" + column.lackingUnit + "]") +
                      ", or give --input-unit " + column.token + "=" + column.lackingUnit);
}

// Refuses what is a number, but not surely this one; false, with nothing refused, for anything else.
bool CellParser::refuseNotation(std::string_view text, NumberNotation::eReading reading)
{
    const bool isUnclear = reading == NumberNotation::kUnclear;
    const bool hasOtherSign = reading == NumberNotation::kOtherSign &&
                              NumberNotation::shownBy(text) == NumberNotation::otherThan(m_notation.sign());
    if (isUnclear)
        refuseUnclear(text);
    else if (hasOtherSign)
        refuseOtherSign(text);
    return isUnclear || hasOtherSign;
}

void CellParser::refuseUnclear(std::string_view text)
{
    m_refusal = Finding::stating(
        FindingCodes::kNumberUnclear,
        inQuotes(text) + " is " + harmless(NumberNotation::readWith(NumberNotation::kPoint, text)) +
            " with a decimal point and " + harmless(NumberNotation::readWith(NumberNotation::kComma, text)) +
            " with a decimal comma, and nothing tells which is meant");
    m_refusal.remedy = "give --decimal . or --decimal ,";
}

void CellParser::refuseOtherSign(std::string_view text)
{
    const NumberNotation::eSign other = NumberNotation::otherThan(m_notation.sign());
    m_refusal = Finding::of(FindingCodes::kOtherDecimalSign,
                            inQuotes(text) + ", which is " + harmless(NumberNotation::readWith(other, text)) +
                                " with a " + NumberNotation::nameOf(other) + " and no number with a " +
                                NumberNotation::nameOf(m_notation.sign()),
                            "a " + NumberNotation::nameOf(m_notation.sign()) +
                                (m_notation.reason().empty() ? "" : ", " + m_notation.reason()));
    m_refusal.remedy = std::string("mend the cell, or give --decimal ") +
                       (other == NumberNotation::kComma ? "," : ".") + " if all numbers are written so";
}

Finding CellParser::noteOfGroups() const
{
    return Finding::stating(FindingCodes::kGroupedDigits, inQuotes(m_groupedText) + " is read as " + m_plainText);
}
}
