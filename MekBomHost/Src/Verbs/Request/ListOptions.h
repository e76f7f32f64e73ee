// The options with which verbs say how a list is made of its rows: in which units, by which settings, of which rows, and
// what of its mistakes is excused.
//
//   ListOptions list;
//   list.declareOn(diff);
//   app.parse(numArguments, arguments);             "mekbom diff old.csv new.csv --units imperial --flatten"
//   list.fillIn(request);
#pragma once

#include "FileOption.h"
#include "ListOption.h"
#include "PairOption.h"
#include "ReportRequest.h"
#include "RowOptions.h"

#include <string>
#include <vector>

namespace mekbom
{
class ListOptions
{
public:
    // Adds the options to `command`. Parsing fills this object, which outlives it.
    void declareOn(CLI::App& command);

    // Sets what was given in `request`, but no parts list and no template. Throws a Fault of status kWrongUsage for what
    // cannot be understood.
    void fillIn(ReportRequest& request) const;

    // The files that are read on account of the options; those that were not given are empty.
    std::vector<std::string> inputNames() const;

private:
    std::string m_units = "metric"; // as UnitsFile takes them
    PairOption m_unitChoices{ "--unit", "KIND=UNIT", "length=ft-in/16" };
    FileOption m_settingsFile{ "--settings", "FILE" };
    PairOption m_settings{ "--setting", "NAME=NUMBER", "C40_SuppressZeroFeet=0" };
    RowOptions m_rows;
    ListOption m_allowed{ "--allow", "CODE,..." };
};
}
