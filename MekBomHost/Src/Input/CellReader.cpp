// Most columns have a type before the first cell is read: the catalogue of tokens knows it, or the heading names a
// unit. What any other column holds is known only when all of its cells have been seen. Until then their rows hold
// zeros in the place of the values, and the texts are kept apart (UntypedCells), in the order of the rows:
//
//   rows read                    [%Grip:0]   (no cell)   [%Grip:0]           texts  "40", "12.5"
//   finish(): all are numbers    [%Grip:40]  (no cell)   [%Grip:12.5]
//
// So a column is of one type in all rows, and a parts list of a million rows is read once. Where the list sums such a
// column or computes with it, or the template says that it has numbers, a cell that is none is refused at once, when
// its place is still known.
#include "CellReader.h"

#include "FindingCodes.h"
#include "HeaderRow.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "MistakeCodes.h"
#include "NumberReader.h"
#include "Utf8.h"

#include "VorBomDataTuple.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace mekbom
{
namespace
{
template <class Predicate>
std::size_t indexOf(const std::vector<InputColumn>& columns, const Predicate& isMeant)
{
    return static_cast<std::size_t>(std::find_if(columns.begin(), columns.end(), isMeant) - columns.begin());
}

// Programs write "NaN", "nan" and "-NAN" for what is not a number.
bool isNotANumber(std::string_view text)
{
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    return text.size() == 3 && (text[0] | 0x20) == 'n' && (text[1] | 0x20) == 'a' && (text[2] | 0x20) == 'n';
}

bool isEmpty(const Record& record)
{
    return std::all_of(record.begin(), record.end(), [](const RecordCell& cell) { return cell.isNothing(); });
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

CellReader::CellReader(const std::vector<InputColumn>& columns, RecordSource& source)
    : m_columns(columns),
      m_source(source),
      m_untypedCells(columns.size()),
      m_notes(columns.size()),
      m_handleColumn(indexOf(columns, [](const InputColumn& column) { return column.isHandle; })),
      m_piecesColumn(indexOf(columns, [](const InputColumn& column) { return column.isPieces; }))
{
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        if (columns[i].isWanted || columns[i].isHandle)
            m_columnsToRead.push_back(i);
        if (!columns[i].whyNumbers.empty())
            m_untypedCells[i].takeNumbersAlone();
        m_dividesRowTotals = m_dividesRowTotals || (columns[i].isWanted && columns[i].isRowTotal);
    }
}

void CellReader::setNotation(const NumberNotation& notation)
{
    m_notation = notation;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].whyNumbers.empty())
            m_untypedCells[i].setNotation(notation);
}

bool CellReader::read(RowBatch& batch)
{
    batch.clear();
    m_pBatch = &batch;
    const Record* pRecord = nullptr;
    while (!batch.isFull() && (pRecord = m_source.next()) != nullptr)
        read(*pRecord);
    return pRecord != nullptr || batch.numRows() > 0;
}

// A record with a wrong cell makes a row all the same, of the cells that are right: reading goes on, so that one run
// tells all mistakes, and finish() throws before anybody sees such a row.
void CellReader::read(const Record& record)
{
    if (!checkNumCells(record))
        return;
    if (isEmpty(record)) // spreadsheets leave such rows behind their last one
    {
        ++m_numEmptyRows;
        return;
    }
    ++m_numRows;
    m_pBatch->beginRow();
    if (m_numberToken.isEmpty() == 0)
        addNumberAsHandle();
    if (m_dividesRowTotals)
        m_numPieces = piecesOf(record);
    for (const std::size_t column : m_columnsToRead)
        if (!record[column].isNothing())
            readCell(column, record[column]);
    if (m_piecesToken.isEmpty() == 0 && (m_piecesColumn == record.size() || record[m_piecesColumn].isNothing()))
        m_pBatch->add(m_piecesToken, 1);
    if (m_handleColumn != record.size())
        m_handles.add(textOf(record[m_handleColumn]));
}

PartsFacts CellReader::finish(VorBomData& data)
{
    addHandleFindings();
    m_findings.throwIfAnyError();
    fillOpenColumns(data);
    return facts();
}

// The columns whose type was open are filled in last: `takeNext` gives their cells in the order of the rows.
// A row has a tuple of such a column exactly where a text of it was kept, so the next tuple met always belongs to the
// next text. That holds only if no row with these tokens was in the data before the first record.
void CellReader::fillOpenColumns(VorBomData& data)
{
    std::vector<std::size_t> openColumns;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].isWanted && m_columns[i].type == VorBomDataValue::kUnknownData)
            openColumns.push_back(i);
    if (openColumns.empty())
        return;
    for (VorBomItemBase* pRow = data.child(); pRow != nullptr; pRow = pRow->next())
        for (const std::size_t column : openColumns)
            if (VorBomDataTuple* pTuple = pRow->getTupleAt(m_columns[column].tupleToken))
                pTuple->value() = m_untypedCells[column].takeNext();
}

PartsFacts CellReader::facts() const
{
    PartsFacts facts;
    facts.numRows = m_numRows;
    facts.numEmptyRows = m_numEmptyRows;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        const InputColumn& column = m_columns[i];
        const bool isOpen = column.type == VorBomDataValue::kUnknownData;
        const UntypedCells& untyped = m_untypedCells[i];
        if (column.isWanted)
            facts.columns.push_back({ column.token, column.name, isOpen ? untyped.type() : column.type,
                                      m_notes[i].numFilled, isOpen ? untyped.numDecimals() : m_notes[i].numDecimals });
    }
    return facts;
}

// A comma too many or too few shifts all cells behind it, so none of the record is looked at: they would all be wrong,
// and the first is what is.
bool CellReader::checkNumCells(const Record& record)
{
    if (record.size() == m_columns.size())
        return true;
    Finding finding = HeaderRow::wrongNumberOfFields(record.size(), m_columns.size());
    m_source.placeRecord(finding);
    m_findings.add(std::move(finding));
    return false;
}

// 1 as well for a cell that is no whole number: readWhole() says so.
int CellReader::piecesOf(const Record& record)
{
    int numPieces = 1;
    bool isRead = false;
    const auto read = [&numPieces](std::string_view plain) { return readWholeNumber(plain, numPieces); };
    if (m_piecesColumn != record.size() && !record[m_piecesColumn].isNothing())
        readWithNotation(m_piecesColumn, record[m_piecesColumn], record[m_piecesColumn].asText(), read, isRead);
    return numPieces;
}

// A column whose type is still open is read as one of texts.
void CellReader::readCell(std::size_t column, const RecordCell& cell)
{
    ++m_notes[column].numFilled;
    if (cell.isRefused())
        return addFinding(cell.refusal(), column);
    switch (m_columns[column].type)
    {
        case VorBomDataValue::kIntData: readWhole(column, cell); break;
        case VorBomDataValue::kDoubleData: readNumber(column, cell); break;
        default: readText(column, cell); break;
    }
}

// The text of a number lies in `m_numberText`: it is good until the next cell that is no text.
std::string_view CellReader::textOf(const RecordCell& cell)
{
    if (cell.isText())
        return cell.text();
    m_numberText = cell.asText();
    return m_numberText;
}

// Nearly all numbers are written the plain way, and then nothing else is tried. Gives what the notation makes of the
// text; `isRead` says whether `read` took it, as it stands or as the notation reads it.
template <class Read>
NumberNotation::eReading CellReader::readWithNotation(std::size_t column, const RecordCell& cell, std::string_view text,
                                                      const Read& read, bool& isRead)
{
    isRead = (m_notation.isPlain() || cell.isNumber()) && read(text);
    if (isRead || cell.isNumber())
        return NumberNotation::kReadable;
    const NumberNotation::eReading reading = m_notation.toPlain(text, m_plainText);
    isRead = reading == NumberNotation::kReadable && read(std::string_view(m_plainText));
    if (isRead && m_plainText.size() < text.size())
        noteGroups(column, text);
    return reading;
}

// Spreadsheets write 4 as "4.0" once another cell of the column had decimals.
// Two mistakes, two expectations: "4.5" is not whole, "3000000000" is, but has no room in 32 bits.
void CellReader::readWhole(std::size_t column, const RecordCell& cell)
{
    const std::string_view text = textOf(cell);
    int value = 0;
    bool isRead = false;
    const auto read = [&value](std::string_view plain) { return readWholeNumber(plain, value); };
    const NumberNotation::eReading reading = readWithNotation(column, cell, text, read, isRead);
    if (isRead)
        return m_pBatch->add(m_columns[column].tupleToken, value);
    if (refuseNotation(column, text, reading))
        return;
    const bool isWhole = NumberReader::isWhole(NumberReader::withoutZeroDecimals(text));
    addFinding(codeOf(text, FindingCodes::kCellIsNotWhole), column, text,
               isWhole ? "a whole number from -2147483648 to 2147483647" : "a whole number");
}

// A quantity comes from its reader in the model's unit; a plain number is still in the column's, 7.5 ft say, and
// becomes 2286 mm here. Whether the value is finite is asked after that: 1e308 is a number, but as feet it is none in
// mm. A column that is not in the model's unit always has a unit (PartsList::resolveUnit). In a column of feet and
// inches "7" is no plain number: it goes to the reader of quantities, which knows what the layout takes.
void CellReader::readNumber(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    const std::string_view text = textOf(cell);
    double value = 0;
    int numDecimals = 0;
    bool isNumber = false; // rather than a quantity
    bool isRead = false;
    const auto read = [&](std::string_view plain)
    {
        isNumber = properties.takesPlainNumbers && NumberReader::read(plain, value, numDecimals);
        return isNumber || readQuantity(column, plain, value);
    };
    const NumberNotation::eReading reading = readWithNotation(column, cell, text, read, isRead);
    if (!isRead)
    {
        if (!refuseNotation(column, text, reading))
            refuseNumber(column, text);
        return;
    }
    if (isNumber && !properties.lackingUnit.empty())
        return refuseForWantOfUnit(column, text);
    if (isNumber && !properties.isInModelUnit)
        value = properties.unit->getVorUnitTransform().toInternalUnits(value);
    if (!std::isfinite(value))
        return addFinding(FindingCodes::kCellIsTooLarge, column, text, "a smaller number");
    if (properties.isRowTotal && !divideByPieces(value))
        return addFinding(FindingCodes::kTotalOfNoPieces, column, text, "0 in a row of 0 pieces");
    int& mostDecimals = m_notes[column].numDecimals;
    mostDecimals = std::max(mostDecimals, numDecimals);
    m_pBatch->add(properties.tupleToken, value);
}

// False when there are no pieces to divide by.
bool CellReader::divideByPieces(double& value) const
{
    if (m_numPieces == 0)
        return value == 0;
    value /= m_numPieces;
    return true;
}

void CellReader::readText(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    if (properties.isHandle)
        readHandle(column, textOf(cell));
    else if (properties.type == VorBomDataValue::kStringData)
        m_pBatch->addText(properties.tupleToken, column, textOf(cell));
    else
        readUntyped(column, cell);
}

void CellReader::readUntyped(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    const std::string_view text = textOf(cell);
    std::string_view kept = text;
    if (!properties.whyNumbers.empty())
    {
        bool isRead = false;
        double value = 0;
        const auto read = [&](std::string_view plain) { return NumberReader::read(kept = plain, value); };
        const NumberNotation::eReading reading = readWithNotation(column, cell, text, read, isRead);
        if (!isRead && refuseNotation(column, text, reading))
            return;
        if (!isRead)
            return addFinding(codeOf(text, MistakeCodes::kKindsMixed), column, text, "a number", properties.whyNumbers);
    }
    m_untypedCells[column].add(kept);
    m_pBatch->add(properties.tupleToken, 0); // a place for the value that finish() sets
}

void CellReader::readHandle(std::size_t column, std::string_view text)
{
    m_pBatch->setHandle(text);
    if (m_columns[column].isWanted)
        m_pBatch->addHandle(m_columns[column].tupleToken);
}

// A cell that is more than a number.
bool CellReader::readQuantity(std::size_t column, std::string_view text, double& value) const
{
    const InputColumn& properties = m_columns[column];
    return properties.quantities && properties.quantities->read(Utf8::toWide(text), value) == 1;
}

void CellReader::refuseNumber(std::size_t column, std::string_view text)
{
    const InputColumn& properties = m_columns[column];
    const std::string hint =
        properties.quantities ? Utf8::toBytes(properties.quantities->explain(Utf8::toWide(text))) : "";
    addFinding(codeOf(text, FindingCodes::kCellIsNoNumber), column, text,
               properties.unit ? InputUnits::cellExpectation(*properties.unit) : "a number", hint);
}

// Refuses what is a number, but not surely this one; false for anything else.
bool CellReader::refuseNotation(std::size_t column, std::string_view text, NumberNotation::eReading reading)
{
    const bool isUnclear = reading == NumberNotation::kUnclear;
    const bool hasOtherSign = reading == NumberNotation::kOtherSign &&
                              NumberNotation::shownBy(text) == NumberNotation::otherThan(m_notation.sign());
    if (isUnclear)
        refuseUnclear(column, text);
    else if (hasOtherSign)
        refuseOtherSign(column, text);
    return isUnclear || hasOtherSign;
}

// One option mends all cells, so only the first of a column is named.
void CellReader::refuseUnclear(std::size_t column, std::string_view text)
{
    if (std::exchange(m_notes[column].isUnclear, true))
        return;
    Finding finding = Finding::stating(
        FindingCodes::kNumberUnclear,
        inQuotes(text) + " is " + harmless(NumberNotation::readWith(NumberNotation::kPoint, text)) +
            " with a decimal point and " + harmless(NumberNotation::readWith(NumberNotation::kComma, text)) +
            " with a decimal comma, and nothing tells which is meant");
    finding.remedy = "give --decimal . or --decimal ,";
    addFinding(std::move(finding), column);
}

void CellReader::refuseOtherSign(std::size_t column, std::string_view text)
{
    const NumberNotation::eSign other = NumberNotation::otherThan(m_notation.sign());
    Finding finding = Finding::of(FindingCodes::kOtherDecimalSign,
                                  inQuotes(text) + ", which is " + harmless(NumberNotation::readWith(other, text)) +
                                      " with a " + NumberNotation::nameOf(other) + " and no number with a " +
                                      NumberNotation::nameOf(m_notation.sign()),
                                  "a " + NumberNotation::nameOf(m_notation.sign()) +
                                      (m_notation.reason().empty() ? "" : ", " + m_notation.reason()));
    finding.remedy = std::string("mend the cell, or give --decimal ") + (other == NumberNotation::kComma ? "," : ".") +
                     " if all numbers are written so";
    addFinding(std::move(finding), column);
}

void CellReader::noteGroups(std::size_t column, std::string_view text)
{
    if (!std::exchange(m_hasGroups, true))
        addFinding(Finding::stating(FindingCodes::kGroupedDigits, inQuotes(text) + " is read as " + m_plainText),
                   column);
}

// One heading mends all cells, so only the first is named.
void CellReader::refuseForWantOfUnit(std::size_t column, std::string_view text)
{
    const InputColumn& properties = m_columns[column];
    if (std::exchange(m_notes[column].isRefused, true))
        return;
    addFinding(FindingCodes::kUnitLacking, column, text, "a number with its unit",
               "write the heading " + inQuotes(properties.name + " [" + properties.lackingUnit + "]") +
                   ", or give --input-unit " + properties.token + "=" + properties.lackingUnit);
}

void CellReader::addFinding(const FindingCode& code, std::size_t column, std::string_view text,
                            const std::string& expected, const std::string& remedy)
{
    Finding finding = Finding::of(code, inQuotes(text), expected);
    finding.remedy = remedy.empty() && &code == &MistakeCodes::kNotANumber ? "leave the cell empty" : remedy;
    addFinding(std::move(finding), column);
}

void CellReader::addFinding(Finding finding, std::size_t column)
{
    m_source.placeCell(column, finding);
    finding.field = m_columns[column].name;
    m_findings.add(std::move(finding));
}

// The number is that of the row in the list, from 1; empty rows have none, so that it is one less behind each of them.
void CellReader::addNumberAsHandle()
{
    m_pBatch->setHandle(std::to_string(m_numRows));
    m_pBatch->addHandle(m_numberToken);
}

void CellReader::addHandleFindings()
{
    for (Finding& finding : m_handles.findings())
    {
        finding.source = m_source.name();
        m_findings.add(std::move(finding));
    }
}
}
