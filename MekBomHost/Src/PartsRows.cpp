#include "PartsRows.h"

#include "CellNumber.h"
#include "InputUnits.h"
#include "MessageText.h"
#include "Utf8.h"

#include "VorBomDataRow.h"
#include "VorBomDataTuple.h"

#include <cmath>
#include <memory>
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

PartsRows::PartsRows(const std::vector<PartsColumn>& columns, VorBomData& data)
    : m_columns(columns),
      m_data(data),
      m_cells(columns.size()),
      m_texts(columns.size()),
      m_contentColumns(columns.size())
{
}

void PartsRows::numberRows(const VorString& handleToken)
{
    m_numberToken = handleToken;
}

void PartsRows::add(const CsvReader& reader)
{
    if (!checkNumFields(reader))
        return;
    int numTuples = m_numberToken.isEmpty() == 1 ? 0 : 1;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        if (reader.field(i).empty())
            continue;
        checkCell(reader, i);
        numTuples += m_columns[i].isWanted ? 1 : 0;
    }
    if (m_faults.isEmpty())
        buildRow(reader, numTuples);
}

// The columns whose type was open are filled in last: `takeNext` gives their cells in the order of the rows.
void PartsRows::finish()
{
    m_faults.throwIfAny();
    std::vector<std::size_t> openColumns;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].isWanted && m_columns[i].type == VorBomDataValue::kUnknownData)
            openColumns.push_back(i);
    if (openColumns.empty())
        return;
    for (VorBomItemBase* pRow = m_data.child(); pRow != nullptr; pRow = pRow->next())
        for (const std::size_t column : openColumns)
            if (VorBomDataTuple* pTuple = pRow->getTupleAt(m_columns[column].tupleToken))
                pTuple->value() = m_contentColumns[column].takeNext();
}

bool PartsRows::checkNumFields(const CsvReader& reader)
{
    if (reader.numFields() == m_columns.size())
        return true;
    m_faults.add(reader.sourceName() + ":" + std::to_string(reader.line()) + ": found " +
                 fieldCount(reader.numFields()) + ", expected " + std::to_string(m_columns.size()) +
                 " as in the header row");
    return false;
}

void PartsRows::checkCell(const CsvReader& reader, std::size_t column)
{
    const std::string_view text = reader.field(column);
    const PartsColumn& properties = m_columns[column];
    Cell& cell = m_cells[column];
    if (properties.type == VorBomDataValue::kIntData && !CellNumber::parse(text, cell.whole))
        addFault(reader, column,
                 CellNumber::isWhole(text) ? "a whole number from -2147483648 to 2147483647" : "a whole number");
    if (properties.type != VorBomDataValue::kDoubleData)
        return;
    if (!properties.takesPlainNumbers || !CellNumber::parse(text, cell.number))
        return checkQuantity(reader, column);
    if (properties.unit)
        cell.number = properties.unit->getVorUnitTransform().toInternalUnits(cell.number);
    if (!std::isfinite(cell.number))
        addFault(reader, column, "a smaller number");
}

// A cell that is more than a number.
void PartsRows::checkQuantity(const CsvReader& reader, std::size_t column)
{
    const PartsColumn& properties = m_columns[column];
    const VorString text = Utf8::toWide(reader.field(column));
    if (properties.quantities && properties.quantities->read(text, m_cells[column].number) == 1)
        return;
    const std::string hint = properties.quantities ? Utf8::toBytes(properties.quantities->explain(text)) : "";
    addFault(reader, column,
             (properties.unit ? InputUnits::cellExpectation(*properties.unit) : "a number") +
                 (hint.empty() ? "" : ": " + hint));
}

void PartsRows::addFault(const CsvReader& reader, std::size_t column, const std::string& expected)
{
    m_faults.add(reader.sourceName() + ":" + std::to_string(reader.lineOfField(column)) + ": column " +
                 inQuotes(m_columns[column].name) + ": found " + inQuotes(reader.field(column)) + ", expected " +
                 expected);
}

void PartsRows::buildRow(const CsvReader& reader, int numTuples)
{
    auto pRow = std::make_unique<VorBomDataRow>();
    pRow->getData().setPhysicalLength(numTuples + m_numReserved); // a row of a large model holds no more than it needs
    ++m_numRows;
    if (m_numberToken.isEmpty() == 0)
        addNumberAsHandle(*pRow);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (!reader.field(i).empty())
            addDatum(*pRow, reader.field(i), i);
    m_data.addChild(pRow.release());
}

void PartsRows::addDatum(VorBomDataRow& row, std::string_view text, std::size_t column)
{
    const PartsColumn& properties = m_columns[column];
    if (properties.isHandle)
        return addHandle(row, text, column);
    if (!properties.isWanted)
        return;
    switch (properties.type)
    {
        case VorBomDataValue::kIntData: row.getData().emplace(properties.tupleToken, m_cells[column].whole); break;
        case VorBomDataValue::kDoubleData: row.getData().emplace(properties.tupleToken, m_cells[column].number); break;
        case VorBomDataValue::kStringData:
            row.getData().emplace(properties.tupleToken, m_texts[column].textOf(text));
            break;
        default:
            m_contentColumns[column].add(text);
            row.getData().emplace(properties.tupleToken, 0); // a place for the value that finish() sets
            break;
    }
}

void PartsRows::addHandle(VorBomDataRow& row, std::string_view text, std::size_t column)
{
    const VorString handle = Utf8::toWide(text);
    row.setObjectHandle(handle);
    if (m_columns[column].isWanted)
        row.getData().emplace(m_columns[column].tupleToken, handle);
}

void PartsRows::addNumberAsHandle(VorBomDataRow& row)
{
    const VorString handle = Utf8::toWide(std::to_string(m_numRows));
    row.setObjectHandle(handle);
    row.getData().emplace(m_numberToken, handle);
}
}
