// Most columns have a type before the first cell is read: the catalogue of tokens knows it, or the heading names a
// unit. What any other column holds is known only when all of its cells have been seen. Until then their rows hold
// zeros in the place of the values, and the texts are kept apart (UntypedCells), in the order of the rows:
//
//   rows read                    [%Grip:0]   (no cell)   [%Grip:0]           texts  "40", "12.5"
//   finish(): all are numbers    [%Grip:40]  (no cell)   [%Grip:12.5]
//
// So a column is of one type in all rows, and a parts list of a million rows is read once.
#include "CellReader.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputUnits.h"
#include "NumberReader.h"
#include "Utf8.h"

#include "VorBomDataTuple.h"

#include <cmath>
#include <utility>

namespace mekbom
{
namespace
{
std::string fieldCount(std::size_t numFields)
{
    return std::to_string(numFields) + (numFields == 1 ? " field" : " fields");
}
}

CellReader::CellReader(const std::vector<InputColumn>& columns, const RecordSource& source, VorBomData& data)
    : m_columns(columns), m_source(source), m_data(data), m_rows(data, columns.size()), m_untypedCells(columns.size())
{
}

void CellReader::numberRows(const VorString& handleToken)
{
    m_numberToken = handleToken;
}

// A record with a wrong cell makes a row all the same, of the cells that are right: reading goes on, so that one run
// tells all mistakes, and finish() throws before anybody sees such a row.
void CellReader::read(const Record& record)
{
    if (!checkNumCells(record))
        return;
    m_rows.beginRow();
    if (m_numberToken.isEmpty() == 0)
        addNumberAsHandle();
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!record[i].isNothing())
            readCell(i, record[i]);
    if (m_rows.isFull())
        m_rows.build();
}

// The columns whose type was open are filled in last: `takeNext` gives their cells in the order of the rows.
// A row has a tuple of such a column exactly where a text of it was kept, so the next tuple met always belongs to the
// next text. That holds only if no row with these tokens was in the data before the first record.
void CellReader::finish()
{
    m_findings.throwIfAnyError();
    m_rows.build();
    std::vector<std::size_t> openColumns;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].isWanted && m_columns[i].type == VorBomDataValue::kUnknownData)
            openColumns.push_back(i);
    if (openColumns.empty())
        return;
    for (VorBomItemBase* pRow = m_data.child(); pRow != nullptr; pRow = pRow->next())
        for (const std::size_t column : openColumns)
            if (VorBomDataTuple* pTuple = pRow->getTupleAt(m_columns[column].tupleToken))
                pTuple->value() = m_untypedCells[column].takeNext();
}

bool CellReader::checkNumCells(const Record& record)
{
    if (record.size() == m_columns.size())
        return true;
    Finding finding = Finding::of(FindingCodes::kWrongNumberOfFields, fieldCount(record.size()),
                                  std::to_string(m_columns.size()) + " as in the header row");
    m_source.placeRecord(finding);
    m_findings.add(std::move(finding));
    return false;
}

// A column whose type is still open is read as one of texts.
void CellReader::readCell(std::size_t column, const RecordCell& cell)
{
    switch (m_columns[column].type)
    {
        case VorBomDataValue::kIntData: readWhole(column, textOf(cell)); break;
        case VorBomDataValue::kDoubleData: readNumber(column, cell); break;
        default: readText(column, textOf(cell)); break;
    }
}

// The text of a number lies in `m_numberText`: it is good until the next cell that is a number.
std::string_view CellReader::textOf(const RecordCell& cell)
{
    if (!cell.isNumber())
        return cell.text();
    m_numberText = cell.asText();
    return m_numberText;
}

// Two mistakes, two expectations: "4.5" is not whole, "3000000000" is, but has no room in 32 bits.
void CellReader::readWhole(std::size_t column, std::string_view text)
{
    int value = 0;
    if (!NumberReader::read(text, value))
        addFinding(FindingCodes::kCellIsNotWhole, column, text,
                   NumberReader::isWhole(text) ? "a whole number from -2147483648 to 2147483647" : "a whole number");
    else if (m_columns[column].isWanted)
        m_rows.add(m_columns[column].tupleToken, value);
}

// A quantity comes from its reader in the model's unit; a plain number is still in the column's, 7.5 ft say, and
// becomes 2286 mm here. Whether the value is finite is asked after that: 1e308 is a number, but as feet it is none in
// mm. A column that is not in the model's unit always has a unit (PartsList::resolveUnit).
void CellReader::readNumber(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    double value = 0;
    if (!readPlainNumber(column, cell, value))
    {
        if (!readQuantity(column, textOf(cell), value))
            return;
    }
    else if (!properties.isInModelUnit)
        value = properties.unit->getVorUnitTransform().toInternalUnits(value);
    if (!std::isfinite(value))
        addFinding(FindingCodes::kCellIsTooLarge, column, textOf(cell), "a smaller number");
    else if (properties.isWanted)
        m_rows.add(properties.tupleToken, value);
}

// In a column of feet and inches "7" is no plain number: it goes to the reader of quantities, which knows what the
// layout takes.
bool CellReader::readPlainNumber(std::size_t column, const RecordCell& cell, double& value) const
{
    if (!m_columns[column].takesPlainNumbers)
        return false;
    if (!cell.isNumber())
        return NumberReader::read(cell.text(), value);
    value = cell.number();
    return true;
}

void CellReader::readText(std::size_t column, std::string_view text)
{
    const InputColumn& properties = m_columns[column];
    if (properties.isHandle)
        return readHandle(column, text);
    if (!properties.isWanted)
        return;
    if (properties.type == VorBomDataValue::kStringData)
        return m_rows.addText(properties.tupleToken, column, text);
    m_untypedCells[column].add(text);
    m_rows.add(properties.tupleToken, 0); // a place for the value that finish() sets
}

void CellReader::readHandle(std::size_t column, std::string_view text)
{
    m_rows.setHandle(text);
    if (m_columns[column].isWanted)
        m_rows.addHandle(m_columns[column].tupleToken);
}

// A cell that is more than a number.
bool CellReader::readQuantity(std::size_t column, std::string_view text, double& value)
{
    const InputColumn& properties = m_columns[column];
    const VorString wideText = Utf8::toWide(text);
    if (properties.quantities && properties.quantities->read(wideText, value) == 1)
        return true;
    const std::string hint = properties.quantities ? Utf8::toBytes(properties.quantities->explain(wideText)) : "";
    addFinding(FindingCodes::kCellIsNoNumber, column, text,
               properties.unit ? InputUnits::cellExpectation(*properties.unit) : "a number", hint);
    return false;
}

void CellReader::addFinding(const FindingCode& code, std::size_t column, std::string_view text,
                            const std::string& expected, const std::string& remedy)
{
    Finding finding = Finding::of(code, inQuotes(text), expected);
    m_source.placeCell(column, finding);
    finding.field = m_columns[column].name;
    finding.remedy = remedy;
    m_findings.add(std::move(finding));
}

void CellReader::addNumberAsHandle()
{
    ++m_numRows;
    m_rows.setHandle(std::to_string(m_numRows));
    m_rows.addHandle(m_numberToken);
}
}
