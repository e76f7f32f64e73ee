// What a column holds that the catalogue of tokens does not know is clear only in the end, so its cells are counted
// twice: all of them as texts, and those that are numbers as numbers.
//
//   cells                  12      0417    n/a
//   texts                  12      0417    n/a      three, from 12 to n/a
//   numbers                12                       one
//   in the end             texts: "0417" begins with a zero, and "12" is a number as "n/a" is not
//
// A column that lacks its unit is read all the same, its plain numbers as they stand.
#include "ColumnTally.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "NumberReader.h"
#include "NumberText.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "MekUnits/Src/VorUnitDefinition.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace mekbom
{
namespace
{
const int kMostShown = 24; // characters of a text; arbitrary: leaves room for the other columns

// What one piece has and lists add up, so that all pieces of a row have it as many times. That of widths or levels, or of
// the weight of an assembly that all its parts name, is nobody's.
const char* const kOfOnePiece[] = { "%Length", "%Weight", "%ExactWeight", "%Paint" };

// Digits of sums, and of numbers that were converted: beyond them stands what doubles make of decimals. A double has up
// to 17, and all of these are sure after a million additions.
const int kMostDigits = 12;
const int kAllDigits = 17;

// From here on decimals are as many as a cell is ever said to have, however many it has: 1e-20 is none of 15.
const int kMostDecimals = 15;

const int kFinestFraction = 1256; // of an inch or a second: VorUnitTransform

// The keys of oddities that have no code, as findings have.
const char* const kBlanks = "blanks";
const char* const kZeros = "zeros";
const char* const kMixed = "mixed";
const char* const kUnits = "units";
const char* const kGroups = "groups";

Finding stating(const std::string& statement)
{
    Finding finding;
    finding.statement = statement;
    return finding;
}

// Blanks, tabs and the blank that does not break, which spreadsheets take over from web pages.
bool hasBlanksAround(std::string_view text)
{
    const std::string_view unbreakable = "\xC2\xA0";
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    return isBlank(text.front()) || isBlank(text.back()) || text.substr(0, 2) == unbreakable ||
           (text.size() > 1 && text.substr(text.size() - 2) == unbreakable);
}

bool isDigitsBehindZero(std::string_view text)
{
    return text.size() > 1 && text.front() == '0' && NumberReader::isWhole(text);
}

// Nobody adds up angles, densities or weights per length.
bool isAddedUp(const UnitKind* pKind)
{
    using Systems = VorUnitsTransformArray;
    return pKind == nullptr || pKind->system == Systems::kDistance || pKind->system == Systems::kWeight ||
           pKind->system == Systems::kArea;
}

bool isOfOnePiece(const std::string& token)
{
    return std::find(std::begin(kOfOnePiece), std::end(kOfOnePiece), token) != std::end(kOfOnePiece);
}

// How many decimals leave that many digits: 8 of 12 for 7411.585137327837.
int decimalsFor(double number, int numDigits)
{
    const int numBefore = number == 0 ? 1 : static_cast<int>(std::floor(std::log10(std::fabs(number)))) + 1;
    return std::max(numDigits - numBefore, 0);
}

std::string symbolOfModel(const UnitKind& kind)
{
    return Utf8::toBytes(VorUnitsTransformArray::findUnitOfModel(kind.system)->symbol);
}
}

ColumnTally::ColumnTally(const InputColumn& column, std::size_t index, VorBomTemplateUnits::eTokenUnitType kind,
                         const RecordSource& source, CellParser& parser, const NumberNotation& notation,
                         OddityLimit& limit)
    : m_column(column),
      m_index(index),
      m_kind(kind),
      m_pKind(column.type == VorBomDataValue::kDoubleData ? UnitKinds::find(kind) : nullptr),
      m_source(source),
      m_parser(parser),
      m_odd(limit)
{
    m_typeOfCells.setNotation(notation);
}

void ColumnTally::add(const RecordCell& cell, int numPieces)
{
    ++m_numFilled;
    if (cell.isRefused())
        return noteRefusal(cell.refusal());
    if (m_areNumbersRefused)
        return m_texts.add(m_parser.textOf(cell));
    switch (m_column.type)
    {
        case VorBomDataValue::kIntData: addWhole(cell, numPieces); break;
        case VorBomDataValue::kDoubleData: addQuantity(cell, numPieces); break;
        case VorBomDataValue::kStringData: addText(m_parser.textOf(cell)); break;
        default: addUntyped(m_parser.textOf(cell), numPieces); break;
    }
}

void ColumnTally::addWhole(const RecordCell& cell, int numPieces)
{
    int value = 0;
    if (!m_parser.readWhole(cell, value))
        return noteRefusal(m_parser.refusal());
    noteGroups();
    CellNumber number;
    number.value = value;
    number.isPlain = true;
    addNumber(number, numPieces);
}

void ColumnTally::addQuantity(const RecordCell& cell, int numPieces)
{
    CellNumber number;
    if (!readQuantity(cell, number))
        return noteRefusal(m_parser.refusal());
    noteGroups();
    noteUnit(cell, number.namesUnit);
    addNumber(number, numPieces);
}

// The first cell that differs from those above it is odd, be it the one with a unit or the one without.
void ColumnTally::noteUnit(const RecordCell& cell, bool namesUnit)
{
    const bool wereMixed = mixesUnits();
    const std::size_t numAlike = namesUnit ? m_numWithUnit : m_numbers.count() - m_numWithUnit;
    if (!wereMixed && m_numbers.count() > 0 && numAlike == 0)
        note(kUnits,
             [&]
             {
                 return stating(inQuotes(m_parser.textOf(cell)) + (namesUnit ? " names a unit" : " names no unit") +
                                ", unlike those above it");
             });
    m_numWithUnit += namesUnit ? 1 : 0;
}

// One heading mends all cells that lack their unit, so the first is told, and the others are taken as they stand.
bool ColumnTally::readQuantity(const RecordCell& cell, CellNumber& number)
{
    if (m_parser.readNumber(m_column, cell, number))
        return true;
    if (m_parser.refusal().code != FindingCodes::kUnitLacking.name)
        return false;
    noteRefusal(m_parser.refusal());
    m_lacksUnit = true;
    m_column.lackingUnit.clear();
    return m_parser.readNumber(m_column, cell, number);
}

void ColumnTally::addNumber(const CellNumber& number, int numPieces)
{
    m_allArePlain = m_allArePlain && number.isPlain;
    m_numbers.add(number.value, number.numDecimals, numPieces);
    m_distinctNumbers.add(number.value);
}

void ColumnTally::addText(std::string_view text)
{
    m_texts.add(text);
    if (hasBlanksAround(text))
        note(kBlanks, [text] { return stating(inQuotes(text) + " has blanks around it, which make it another text"); });
    else if (isDigitsBehindZero(text))
        note(kZeros, [text] { return stating(inQuotes(text) + " begins with a zero, and is a text"); });
}

// The first cell that differs from those above it is odd, be it a number or a text.
void ColumnTally::addUntyped(std::string_view text, int numPieces)
{
    addText(text);
    m_typeOfCells.add(text);
    const std::string_view plain = m_typeOfCells.numberIn(text);
    CellNumber number;
    number.isPlain = NumberReader::isPlain(plain) && NumberReader::read(plain, number.value, number.numDecimals);
    const bool isText = !number.isPlain && !hasBlanksAround(text) && !isDigitsBehindZero(text);
    if (number.isPlain && m_numbers.count() == 0 && m_hasTexts)
        note(kMixed, [text] { return stating(inQuotes(text) + " is a number, and a text as those above it"); });
    if (isText && m_numbers.count() > 0 && !m_hasTexts)
        note(kMixed, [text] { return stating(inQuotes(text) + " is no number, and makes texts of those above it"); });
    m_hasTexts = m_hasTexts || isText;
    if (number.isPlain)
        addNumber(number, numPieces);
}

void ColumnTally::noteGroups()
{
    if (m_parser.hadGroups())
        note(kGroups, [this] { return m_parser.noteOfGroups(); });
}

void ColumnTally::noteRefusal(const Finding& refusal)
{
    note(refusal.code, [&refusal] { return refusal; });
}

template <class Make>
void ColumnTally::note(const std::string& key, const Make& make)
{
    m_odd.note(key, [this, &make] { return placed(make()); });
}

Finding ColumnTally::placed(Finding finding) const
{
    m_source.placeCell(m_index, finding);
    finding.field = m_column.name;
    return finding;
}

VorBomDataValue::eBomDataValueType ColumnTally::type() const
{
    return m_column.type == VorBomDataValue::kUnknownData && m_numFilled > 0 ? m_typeOfCells.type() : m_column.type;
}

// Whether what is known of numbers may be shown: not where some are in a unit that nobody names.
bool ColumnTally::hasNumbers() const
{
    const bool isText = type() == VorBomDataValue::kStringData;
    return m_numbers.count() > 0 && !isText && !(m_lacksUnit && mixesUnits());
}

bool ColumnTally::mixesUnits() const
{
    return m_numWithUnit > 0 && m_numWithUnit < m_numbers.count();
}

ColumnDescription ColumnTally::description(std::size_t numRows, bool hasPieces) const
{
    ColumnDescription description;
    description.heading = m_column.name;
    description.token = m_column.token;
    description.kind = kindText();
    description.unit = unitText();
    description.numFilled = m_numFilled;
    const bool isText = type() == VorBomDataValue::kStringData;
    description.numDistinct = (isText || m_areNumbersRefused ? m_texts.distinct() : m_distinctNumbers).countText();
    if (hasNumbers())
        describeNumbers(description);
    if (hasNumbers() && hasPieces)
        description.sumOfPieces = sumOfPieces(numRows);
    if (isText)
    {
        description.smallest = harmless(m_texts.first(), kMostShown);
        description.largest = harmless(m_texts.last(), kMostShown);
    }
    return description;
}

void ColumnTally::describeNumbers(ColumnDescription& description) const
{
    description.smallest = shown(m_numbers.smallest());
    description.largest = shown(m_numbers.largest());
    if (isAddedUp(m_pKind))
        description.sumOfRows = shownSum(m_numbers.sum());
}

// A row that does not say its pieces is one.
std::string ColumnTally::sumOfPieces(std::size_t numRows) const
{
    if (m_column.isPieces)
        return shownSum(m_numbers.sum() + static_cast<double>(numRows - m_numFilled));
    if (m_column.isRowTotal)
        return shownSum(m_numbers.sum());
    return isOfOnePiece(m_column.token) ? shownSum(m_numbers.sumOfPieces()) : std::string();
}

std::string ColumnTally::kindText() const
{
    switch (type())
    {
        case VorBomDataValue::kStringData: return "text";
        case VorBomDataValue::kIntData: return "whole number";
        case VorBomDataValue::kDoubleData:
            return (m_pKind == nullptr ? "number" : m_pKind->name) +
                   std::string(m_column.isRowTotal ? " of all pieces" : "");
        default: return "nothing";
    }
}

std::string ColumnTally::unitText() const
{
    if (m_areNumbersRefused || m_lacksUnit)
        return "?";
    if (m_pKind == nullptr || !m_column.unitSymbol.empty())
        return m_column.unitSymbol;
    if (!m_column.lackingUnit.empty())
        return m_column.lackingUnit;
    const bool isAssumed = m_numWithUnit == 0 || mixesUnits();
    return symbolOfModel(*m_pKind) + (isAssumed ? " (assumed)" : "");
}

// Nothing where numbers are shown as they are kept.
std::optional<MEKUnit> ColumnTally::shownUnit() const
{
    return m_column.unit ? m_column.unit : InputUnits::find(m_column.lackingUnit, m_kind);
}

std::string ColumnTally::shown(double value) const
{
    return shownWith(value, m_allArePlain ? kAllDigits : kMostDigits);
}

std::string ColumnTally::shownSum(double value) const
{
    return shownWith(value, kMostDigits);
}

// Plain numbers have the decimals that they are written with, and so has their sum.
std::string ColumnTally::shownWith(double value, int mostDigits) const
{
    const std::optional<MEKUnit> unit = shownUnit();
    if (!m_column.takesPlainNumbers)
    {
        const VorUnitTransform finest(unit->unit(), kFinestFraction);
        return Utf8::toBytes(finest.formatValue(value, 1, 0, 1, 1, L' '));
    }
    const double number = unit ? unit->getVorUnitTransform().toDisplayUnits(value) : value;
    if (!std::isfinite(number))
        return "too large";
    NumberStyle style;
    style.decimals = decimalsFor(number, mostDigits);
    if (m_allArePlain)
        style.decimals = std::min(style.decimals, m_numbers.numDecimals());
    return style.decimals < kMostDecimals ? listedText(number, style) : numberText(number);
}
}
