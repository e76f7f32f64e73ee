// A template says of tokens that the catalogue does not know whether they are numbers or texts, so that it can be
// checked without data. A column's cells tell, all of them:
//
//   Gap          Bolt       Slot [in]
//   4            4          a quantity, whatever stands below it
//   12.5         M16
//   a number     a text
//
// So the whole file is read, although the template has nothing of its rows.
#include "NewListVerb.h"

#include "ColumnNotes.h"
#include "ColumnsTemplate.h"
#include "DataFile.h"
#include "FindingList.h"
#include "PartsFormats.h"
#include "PartsList.h"
#include "StandardOutput.h"
#include "TypeOfCells.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>

namespace mekbom
{
CLI::App& NewListVerb::declareOn(CLI::App& parent)
{
    CLI::App& newList = *parent.add_subcommand("new-list", "Write a template with all columns of a parts list");
    newList.add_option("data", m_data, "Parts list; - reads standard input, hall takes the shipped one")
        ->required()
        ->type_name("FILE");
    m_input.declareOn(newList);
    newList.footer("Examples\n"
                   "  mekbom new-list parts.csv > list.json\n"
                   "  mekbom report --data parts.csv --template list.json");
    return newList;
}

ExitStatus NewListVerb::run(FindingList& findings)
{
    const std::unique_ptr<ByteSource> pFile = DataFile::open(m_data);
    const InputChoices input = m_input.choices();
    const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(*pFile, input, findings);
    const std::vector<InputColumn> columns = columnsOf(*pRecords, { input.headings, {} });
    StandardOutput::print(ColumnsTemplate::textOf(columns));
    for (const InputColumn& column : columns)
        if (column.doubt)
            findings.add(ColumnNotes::inDoubt(column, pRecords->name()));
    return kDone;
}

// Columns with a unit are numbers whatever their cells hold; a report tells those that are none. A record may have
// fewer cells than the header row, and what it has beyond those belongs to no column.
std::vector<InputColumn> NewListVerb::columnsOf(RecordSource& records, const HeadingChoices& choices)
{
    const PartsList parts(records, choices);
    std::vector<InputColumn> columns = parts.columns();
    std::vector<TypeOfCells> cells(columns.size());
    const NumberNotation notation = parts.notation(VorBomTemplateUnits());
    for (TypeOfCells& cellsOfColumn : cells)
        cellsOfColumn.setNotation(notation);
    while (const Record* const pRecord = records.next())
        for (std::size_t i = 0; i < std::min(pRecord->size(), columns.size()); ++i)
            if (!(*pRecord)[i].isNothing())
                cells[i].add((*pRecord)[i].asText());
    for (std::size_t i = 0; i < columns.size(); ++i)
        columns[i].type = columns[i].unitSymbol.empty() ? cells[i].type() : VorBomDataValue::kDoubleData;
    return columns;
}
}
