// The options with which verbs say how the rows of a parts list are read, and which of them a list is about.
//
//   RowOptions rows;
//   rows.declareOn(report, "Which rows to list");
//   app.parse(numArguments, arguments);                 "mekbom report --where '%Length > 6 m' --row-totals %Weight"
//   rows.fillIn(request);
//
// All verbs that make a list have them, and a list that is checked or explained must be given those it is printed with.
#pragma once

#include "FileOption.h"
#include "InputOptions.h"
#include "ListOption.h"
#include "PairOption.h"
#include "ReportRequest.h"

#include <string>

namespace mekbom
{
class RowOptions
{
public:
    // Adds those of InputOptions, --assemblies, --flatten, --sets, --input-unit, --where and --row-totals to `command`;
    // `whereHelp` is what help says of --where. Parsing fills this object, which outlives it.
    void declareOn(CLI::App& command, const std::string& whereHelp);

    // Sets what was given in `request`. Throws a Fault of status kWrongUsage for an --input-unit that is no pair; what
    // units, conditions and columns are worth is for the job to say.
    void fillIn(ReportRequest& request) const;

    // The list of assemblies as it was named; empty where there is none.
    std::string assemblies() const { return m_assemblies.name(); }

private:
    InputOptions m_input;
    FileOption m_assemblies{ "--assemblies", "FILE" };
    PairOption m_inputUnits{ "--input-unit", "TOKEN=UNIT", "%Paint=m2" };
    std::string m_where;
    PieceChoices m_pieces;
    ListOption m_rowTotals{ "--row-totals", "TOKEN,..." };
};
}
