// Reads a parts list to say what stands in it, whatever is odd about it.
//
//   PartsDescriber describer(source, HeadingChoices());
//   const PartsDescription description = describer.describe();
//
// Headings, units and cells are read as for a list; but where a list would be refused, for want of a unit or a heading
// in doubt, that is one of the oddities here. Takes time in proportion to the cells, and keeps none of them but
// different values, up to a bound for each column (DistinctValues), and handles.
#pragma once

#include "CellParser.h"
#include "ColumnTally.h"
#include "Finding.h"
#include "HandleCheck.h"
#include "HeadingChoices.h"
#include "InputColumn.h"
#include "OddCells.h"
#include "OddityLimit.h"
#include "PartsDescription.h"
#include "RecordSource.h"

#include <cstddef>
#include <string>
#include <vector>

namespace mekbom
{
class PartsDescriber
{
public:
    PartsDescriber(const PartsDescriber&) = delete;
    PartsDescriber& operator=(const PartsDescriber&) = delete;

    // Reads the header row. `source` is not owned and outlives this. Throws a Fault of status kInvalidInput when there
    // is no header row, and of kWrongUsage when a heading that must be there is not.
    PartsDescriber(RecordSource& source, const HeadingChoices& choices);

    // Reads all other records. To be called once. Throws what the source throws.
    PartsDescription describe();

    // How numbers are written, where that is not the plain way.
    const std::vector<Finding>& notes() const { return m_notes; }

private:
    void addColumns(std::vector<InputColumn> columns);
    void tellDoubts(const std::vector<InputColumn>& columns);
    void refuseUnit(std::size_t column, const std::string& heading, const Finding& finding);
    void tell(const Finding& finding);
    void tell(Finding finding, std::size_t column);
    void add(const Record& record);
    int piecesOf(const Record& record);
    bool hasPieces() const { return m_piecesColumn < m_columns.size() && m_arePiecesKnown; }

    RecordSource& m_source;
    CellParser m_parser;
    PartsDescription m_description;
    std::vector<Finding> m_notes;
    std::vector<ColumnTally> m_columns;
    OddityLimit m_limit;
    OddCells m_oddRows{ m_limit };
    HandleCheck m_handles;
    std::size_t m_handleColumn = 0; // that of the pieces as well: the number of columns where there is none
    std::size_t m_piecesColumn = 0;
    bool m_arePiecesKnown = true;
};
}
