#include "PartsRows.h"

#include "CellNumber.h"
#include "InputUnits.h"
#include "MessageText.h"
#include "Utf8.h"

#include "VorBomDataTuple.h"

#include <cmath>

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
    : m_columns(columns), m_data(data), m_rows(data, columns.size()), m_contentColumns(columns.size())
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
    m_rows.beginRow();
    if (m_numberToken.isEmpty() == 0)
        addNumberAsHandle();
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        const std::string_view text = reader.field(i);
        if (!text.empty())
            readCell(reader, i, text);
    }
    if (m_rows.isFull())
        m_rows.build();
}

// The columns whose type was open are filled in last: `takeNext` gives their cells in the order of the rows.
void PartsRows::finish()
{
    m_faults.throwIfAny();
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

void PartsRows::readCell(const CsvReader& reader, std::size_t column, std::string_view text)
{
    switch (m_columns[column].type)
    {
        case VorBomDataValue::kIntData: readWhole(reader, column, text); break;
        case VorBomDataValue::kDoubleData: readNumber(reader, column, text); break;
        default: readText(column, text); break;
    }
}

void PartsRows::readWhole(const CsvReader& reader, std::size_t column, std::string_view text)
{
    int value = 0;
    if (!CellNumber::parse(text, value))
        addFault(reader, column,
                 CellNumber::isWhole(text) ? "a whole number from -2147483648 to 2147483647" : "a whole number");
    else if (m_columns[column].isWanted)
        m_rows.add(m_columns[column].tupleToken, value);
}

void PartsRows::readNumber(const CsvReader& reader, std::size_t column, std::string_view text)
{
    const PartsColumn& properties = m_columns[column];
    double value = 0;
    if (!properties.takesPlainNumbers || !CellNumber::parse(text, value))
    {
        if (!readQuantity(reader, column, value))
            return;
    }
    else if (!properties.isInModelUnit)
        value = properties.unit->getVorUnitTransform().toInternalUnits(value);
    if (!std::isfinite(value))
        addFault(reader, column, "a smaller number");
    else if (properties.isWanted)
        m_rows.add(properties.tupleToken, value);
}

void PartsRows::readText(std::size_t column, std::string_view text)
{
    const PartsColumn& properties = m_columns[column];
    if (properties.isHandle)
        return readHandle(column, text);
    if (!properties.isWanted)
        return;
    if (properties.type == VorBomDataValue::kStringData)
        return m_rows.addText(properties.tupleToken, column, text);
    m_contentColumns[column].add(text);
    m_rows.add(properties.tupleToken, 0); // a place for the value that finish() sets
}

void PartsRows::readHandle(std::size_t column, std::string_view text)
{
    m_rows.setHandle(text);
    if (m_columns[column].isWanted)
        m_rows.addHandle(m_columns[column].tupleToken);
}

// A cell that is more than a number.
bool PartsRows::readQuantity(const CsvReader& reader, std::size_t column, double& value)
{
    const PartsColumn& properties = m_columns[column];
    const VorString text = Utf8::toWide(reader.field(column));
    if (properties.quantities && properties.quantities->read(text, value) == 1)
        return true;
    const std::string hint = properties.quantities ? Utf8::toBytes(properties.quantities->explain(text)) : "";
    addFault(reader, column,
             (properties.unit ? InputUnits::cellExpectation(*properties.unit) : "a number") +
                 (hint.empty() ? "" : ": " + hint));
    return false;
}

void PartsRows::addFault(const CsvReader& reader, std::size_t column, const std::string& expected)
{
    m_faults.add(reader.sourceName() + ":" + std::to_string(reader.lineOfField(column)) + ": column " +
                 inQuotes(m_columns[column].name) + ": found " + inQuotes(reader.field(column)) + ", expected " +
                 expected);
}
void PartsRows::addNumberAsHandle()
{
    ++m_numRows;
    m_rows.setHandle(std::to_string(m_numRows));
    m_rows.addHandle(m_numberToken);
}
}
