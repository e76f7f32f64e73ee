#include "RowOptions.h"

#include "DataFile.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void RowOptions::declareOn(CLI::App& command, const std::string& whereHelp)
{
    m_input.declareOn(command);
    m_assemblies.declareOn(command, "List of the assemblies that parts name in their column Assembly, by its Handle");
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
    request.where = m_where;
    request.rowTotals = m_rowTotals.words();
}
}
