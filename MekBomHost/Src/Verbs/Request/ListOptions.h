// The options with which verbs say how a list is made of its rows: in which units, by which settings, of which rows, and
// what of its mistakes is excused.
//
//   ListOptions list;
//   list.declareOn(diff);
//   app.parse(numArguments, arguments);             "mekbom diff old.csv new.csv --units imperial --flatten"
//   const Configuration configuration = list.configurationFor("list.json");
//   list.fillIn(request, configuration);
#pragma once

#include "Configuration.h"
#include "FileOption.h"
#include "ListOption.h"
#include "PairOption.h"
#include "ReportRequest.h"
#include "RowOptions.h"

#include <optional>
#include <string>
#include <vector>

namespace mekbom
{
class ListOptions
{
public:
    // Adds the options to `command`. Parsing fills this object, which outlives it.
    void declareOn(CLI::App& command);

    // What the configuration files say that go with a template as the command line names it; nothing when they are not
    // to be read. Throws as ConfigurationFiles does.
    Configuration configurationFor(const std::string& templateName) const;

    // Sets what was given in `request`, over what is configured, but no parts list and no template. Throws a Fault of
    // status kWrongUsage for what cannot be understood.
    void fillIn(ReportRequest& request, const Configuration& configuration) const;

    // Tells which files the units of the list come from, if it is not the command line alone that says.
    std::optional<Finding> noteOfUnits(const Configuration& configuration) const;

    // The files that are read on account of the options; those that were not given are empty.
    std::vector<std::string> inputNames() const;

private:
    std::string m_units; // as UnitsFile takes them; empty for those of the configuration
    PairOption m_unitChoices{ "--unit", "KIND=UNIT", "length=ft-in/16" };
    FileOption m_settingsFile{ "--settings", "FILE" };
    PairOption m_settings{ "--setting", "NAME=NUMBER", "C40_SuppressZeroFeet=0" };
    RowOptions m_rows;
    bool m_hasNoConfiguration = false;
    ListOption m_allowed{ "--allow", "CODE,..." };
};
}
