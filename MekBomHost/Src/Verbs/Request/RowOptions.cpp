#include "RowOptions.h"

#include <CLI/CLI.hpp>

namespace mekbom
{
void RowOptions::declareOn(CLI::App& command, const std::string& whereHelp)
{
    m_input.declareOn(command);
    m_inputUnits.declareOn(command, "Unit of a column whose header names none");
    command.add_option("--where", m_where, whereHelp)->type_name("CONDITION");
    m_rowTotals.declareOn(command, "Columns whose values are those of all pieces of a row");
}

void RowOptions::fillIn(ReportRequest& request) const
{
    request.input = m_input.choices();
    request.inputUnits = m_inputUnits.pairs();
    request.where = m_where;
    request.rowTotals = m_rowTotals.words();
}
}
