#include "RowOptions.h"

#include "DataFile.h"

#include <CLI/CLI.hpp>

#include <limits>

namespace mekbom
{
void RowOptions::declareOn(CLI::App& command, const std::string& whereHelp)
{
    m_input.declareOn(command);
    m_assemblies.declareOn(command, "List of the assemblies that parts name in their column Assembly, by its Handle");
    command.add_flag("--flatten", m_pieces.isFlattened,
                     "Multiply the pieces of parts along their parents, which they name in their column Parent");
    command.add_option("--sets", m_pieces.numSets, "How often all of it is made [1]")
        ->type_name("N")
        ->check(CLI::Range(1, std::numeric_limits<int>::max()));
    m_inputUnits.declareOn(command, "Unit of a column whose header names none");
    command.add_option("--where", m_where, whereHelp)->type_name("CONDITION");
    m_rowTotals.declareOn(command, "Columns whose values are those of all pieces of a row");
}

void RowOptions::fillIn(ReportRequest& request) const
{
    request.input = m_input.choices();
    if (!assemblies().empty())
        request.pAssemblies = DataFile::open(assemblies());
    request.inputUnits = m_inputUnits.pairs();
    request.pieces = m_pieces;
    request.where = m_where;
    request.rowTotals = m_rowTotals.words();
}
}
