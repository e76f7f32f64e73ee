#include "CommandLine.h"

#include "ColumnName.h"
#include "Fault.h"
#include "MessageText.h"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <vector>

namespace mekbom
{
namespace
{
const char* const kVersion = "mekbom " MEK_VERSION;

const char* const kNotes = R"(Data
  A parts list is comma-separated text in UTF-8. Its header row names tokens, with or
  without the leading %, and may give a unit in brackets: Length [ft]. Numbers without a
  unit are in mm, kg, rad and what follows from them (mm2, kg/mm ...). A cell may carry
  a unit of its own: 7'-6 1/2", 7.5 ft. Empty cells are no data. Handle is the identity of
  the object.

Template
  Without --template the shipped template is taken that finds the greatest part of its
  data among the columns; of equals the first of cutting-list, assembly-list, bolt-list,
  parts-list. The sample data go with the default template.

Units
  KIND is length, angle, weight, area, weight-per-length, area-per-length or density. UNIT
  is a symbol with a precision behind a slash: decimals (lb/1, kg/m/2), or for ft-in the
  finest fraction of an inch (ft-in/16). ft-in/.2 shows decimals of an inch, in/1/16
  fractions. A file of units has lines such as length = ft-in/16, and base = imperial or
  metric for what it does not name. mekbom units lists the catalogue.

Settings
  C0_BOMSuppressLastZeros          0 keeps trailing zeros: 2.50
  C40_SuppressZeroFeet             0 shows 0' 6" instead of 6"
  C40_SuppressZeroInch             0 shows 7' 0" instead of 7'
  C40_ShowMinusBetweenFeetAndInch  1 shows 7'-6" instead of 7' 6"
  Environment variables of these names count too; a settings file, whose lines are such as
  C40_SuppressZeroFeet = 0, comes over them, and --setting over both.

Examples
  mekbom report
  mekbom report --data parts.csv
  mekbom report --data parts.csv --template list.json --units imperial -o list.txt
  mekbom report --unit length=ft-in/32 --setting C40_ShowMinusBetweenFeetAndInch=1
  mekbom report --data frame.csv --input-unit %Paint=m2
  sed 1d export.csv | mekbom report --data -
  mekbom report --data sample --template default

Exit status
   0  done
   2  wrong usage
   3  input unreadable or invalid
   4  output not written; what stood there before still does
  70  internal fault)";

// The two sides of an equals sign, neither of them empty.
std::pair<std::string, std::string> parsePair(const std::string& argument, const std::string& option,
                                              const std::string& expected)
{
    const std::size_t equals = argument.find('=');
    if (equals == std::string::npos || equals == 0 || equals + 1 == argument.size())
        throw Fault(kWrongUsage, option + ": found " + inQuotes(argument) + ", expected " + expected);
    return { argument.substr(0, equals), argument.substr(equals + 1) };
}

// TOKEN=UNIT, the token with or without its '%'.
std::pair<std::string, std::string> parseInputUnit(const std::string& argument)
{
    const auto [token, unit] = parsePair(argument, "--input-unit", "TOKEN=UNIT such as %Paint=m2");
    return { ColumnName::tokenOf(token), unit };
}

// Options of `mekbom report` that come in pairs, as they are written.
struct ReportPairs
{
    std::vector<std::string> inputUnits;
    std::vector<std::string> unitChoices;
    std::vector<std::string> settings;
};

void addFile(CLI::App& command, const std::string& name, std::string& file, const std::string& help)
{
    command.add_option(name, file, help)->type_name("FILE");
}

void addPairs(CLI::App& command, const std::string& name, std::vector<std::string>& pairs, const std::string& type,
              const std::string& help)
{
    command.add_option(name, pairs, help + "; may be repeated")->type_name(type)->allow_extra_args(false);
}

void addReport(CLI::App& app, ReportOptions& options, ReportPairs& pairs)
{
    CLI::App& report = *app.add_subcommand("report", "Print a list from a parts list and a template");
    report.footer(kNotes);
    addFile(report, "--data", options.data,
            "Parts list; - reads standard input, sample takes built-in rows [the shipped hall]");
    addFile(report, "--template", options.templateName,
            "Template file, or default for the built-in one [a shipped one that suits the data]");
    report.add_option("--units", options.units, "Units to print in: metric, imperial or a file of units [metric]")
        ->type_name("UNITS");
    addPairs(report, "--unit", pairs.unitChoices, "KIND=UNIT",
             "Unit and precision of one kind, such as length=ft-in/16");
    addFile(report, "--settings", options.settingsFile, "INI file that says how numbers are shown");
    addPairs(report, "--setting", pairs.settings, "NAME=NUMBER", "One of the settings below");
    addFile(report, "-o,--output", options.output, "File to write, - for standard output [-]");
    addPairs(report, "--input-unit", pairs.inputUnits, "TOKEN=UNIT", "Unit of a column whose header names none");
}

void takePairs(const ReportPairs& pairs, ReportOptions& options)
{
    for (const std::string& pair : pairs.inputUnits)
        options.inputUnits.push_back(parseInputUnit(pair));
    for (const std::string& pair : pairs.unitChoices)
        options.unitChoices.push_back(parsePair(pair, "--unit", "KIND=UNIT such as length=ft-in/16"));
    for (const std::string& pair : pairs.settings)
        options.settings.push_back(parsePair(pair, "--setting", "NAME=NUMBER such as C40_SuppressZeroFeet=0"));
}

// Parses and gives the text to print instead of a report, if that is what was asked for.
std::string parse(CLI::App& app, int numArguments, const char* const* arguments)
{
    try
    {
        app.parse(numArguments, arguments);
    }
    catch (const CLI::CallForHelp&)
    {
        const std::vector<CLI::App*> commands = app.get_subcommands();
        return commands.empty() ? app.help() : commands.front()->help("mekbom");
    }
    catch (const CLI::CallForVersion& version)
    {
        return version.what() + std::string("\n");
    }
    catch (const CLI::ParseError& error)
    {
        throw Fault(kWrongUsage, error.what() + std::string("; see mekbom --help"));
    }
    return std::string();
}
}

CommandLine::Outcome CommandLine::parse(int numArguments, const char* const* arguments)
{
    Outcome outcome;
    ReportPairs pairs;

    CLI::App app("Bills of materials from the parts lists of steel structures", "mekbom");
    app.set_version_flag("--version", kVersion);
    app.require_subcommand(1);
    app.footer(kNotes);
    addReport(app, outcome.options, pairs);

    outcome.text = mekbom::parse(app, numArguments, arguments);
    outcome.isReport = outcome.text.empty();
    takePairs(pairs, outcome.options);
    return outcome;
}
}
