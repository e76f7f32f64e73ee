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

#include "VorBomDataTuple.h"

#include <algorithm>
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
    m_parser.setNotation(notation);
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
    if (isEmpty(record))
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
        m_handles.add(m_parser.textOf(record[m_handleColumn]));
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
    const bool isGiven = m_piecesColumn != record.size() && !record[m_piecesColumn].isNothing();
    return isGiven && m_parser.readWhole(record[m_piecesColumn], numPieces) ? numPieces : 1;
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

void CellReader::readWhole(std::size_t column, const RecordCell& cell)
{
    int value = 0;
    if (!m_parser.readWhole(cell, value))
        return addRefusal(column);
    noteGroups(column);
    m_pBatch->add(m_columns[column].tupleToken, value);
}

void CellReader::readNumber(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    CellNumber number;
    if (!m_parser.readNumber(properties, cell, number))
        return addRefusal(column);
    noteGroups(column);
    if (properties.isRowTotal && !divideByPieces(number.value))
        return addTotalOfNoPieces(column, cell);
    int& mostDecimals = m_notes[column].numDecimals;
    mostDecimals = std::max(mostDecimals, number.numDecimals);
    m_pBatch->add(properties.tupleToken, number.value);
}

// False when there are no pieces to divide by.
bool CellReader::divideByPieces(double& value) const
{
    if (m_numPieces == 0)
        return value == 0;
    value /= m_numPieces;
    return true;
}

void CellReader::addTotalOfNoPieces(std::size_t column, const RecordCell& cell)
{
    addFinding(Finding::of(FindingCodes::kTotalOfNoPieces, inQuotes(m_parser.textOf(cell)), "0 in a row of 0 pieces"),
               column);
}

void CellReader::readText(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    if (properties.isHandle)
        readHandle(column, m_parser.textOf(cell));
    else if (properties.type == VorBomDataValue::kStringData)
        m_pBatch->addText(properties.tupleToken, column, m_parser.textOf(cell));
    else
        readUntyped(column, cell);
}

void CellReader::readUntyped(std::size_t column, const RecordCell& cell)
{
    const InputColumn& properties = m_columns[column];
    std::string_view text = m_parser.textOf(cell);
    if (!properties.whyNumbers.empty())
    {
        if (!m_parser.readPlainText(properties, cell, text))
            return addRefusal(column);
        noteGroups(column);
    }
    m_untypedCells[column].add(text);
    m_pBatch->add(properties.tupleToken, 0); // a place for the value that finish() sets
}

void CellReader::readHandle(std::size_t column, std::string_view text)
{
    m_pBatch->setHandle(text);
    if (m_columns[column].isWanted)
        m_pBatch->addHandle(m_columns[column].tupleToken);
}

// One option mends all numbers that are unclear, and one heading all that lack a unit, so only the first of a column is
// named.
void CellReader::addRefusal(std::size_t column)
{
    const Finding& refusal = m_parser.refusal();
    Notes& notes = m_notes[column];
    if (refusal.code == FindingCodes::kNumberUnclear.name && std::exchange(notes.isUnclear, true))
        return;
    if (refusal.code == FindingCodes::kUnitLacking.name && std::exchange(notes.isWithoutUnit, true))
        return;
    addFinding(refusal, column);
}

void CellReader::noteGroups(std::size_t column)
{
    if (m_parser.hadGroups() && !std::exchange(m_hasGroups, true))
        addFinding(m_parser.noteOfGroups(), column);
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
