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
  mekbom units convert 2286 mm ft-in/16

Exit status
   0  done
   2  wrong usage
   3  input unreadable or invalid
   4  output not written; what stood there before still does
  70  internal fault)";

const char* const kUnitsNotes = R"(Examples
  mekbom units
  mekbom units convert 2286 mm ft-in/16
  mekbom units convert "7'-6 1/2\"" ft-in mm --suppress-zeros 0
  mekbom units read "7'-6 1/2\"")";

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

CLI::App& addTask(CLI::App& units, UnitsOptions& options, UnitsOptions::eTask task, const std::string& name,
                  const std::string& help)
{
    CLI::App& command = *units.add_subcommand(name, help);
    command.callback([&options, task] { options.task = task; });
    return command;
}

void addUnits(CLI::App& app, UnitsOptions& options)
{
    CLI::App& units = *app.add_subcommand("units", "List the units, or convert a quantity");
    units.require_subcommand(0, 1);
    units.footer(kUnitsNotes);
    CLI::App& convert = addTask(units, options, UnitsOptions::kConvert, "convert", "Print a quantity in another unit");
    convert.footer(kUnitsNotes);
    convert.add_option("value", options.value, "A number, or a quantity with its unit or marks")->required();
    convert.add_option("from", options.from, "Unit of the number")->required();
    convert.add_option("to", options.to, "Unit to print in, with a precision if need be")->required();
    const std::pair<const char*, int*> flags[] = { { "--suppress-zeros", &options.suppressLastZeros },
                                                   { "--suppress-zero-feet", &options.suppressZeroFeet },
                                                   { "--suppress-zero-inch", &options.suppressZeroInch } };
    for (const auto& [name, pFlag] : flags)
        convert.add_option(name, *pFlag, "0 or 1 [1]")->check(CLI::IsMember({ 0, 1 }))->type_name("FLAG");
    convert.add_option("--separator", options.separator, "Between feet and inches: blank or minus [blank]")
        ->check(CLI::IsMember({ UnitsOptions::kBlank, UnitsOptions::kMinus }))
        ->type_name("WORD");
    CLI::App& read = addTask(units, options, UnitsOptions::kRead, "read", "Print a quantity in mm, kg, rad ...");
    read.footer(kUnitsNotes);
    read.add_option("value", options.value, "A quantity; a length where it says no kind")->required();
}

// The help of the command that was asked for, be it one within another.
std::string helpOf(const CLI::App& app)
{
    const CLI::App* pCommand = &app;
    std::string parents;
    while (!pCommand->get_subcommands().empty())
    {
        parents += (parents.empty() ? "" : " ") + pCommand->get_name();
        pCommand = pCommand->get_subcommands().front();
    }
    return pCommand->help(parents);
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
        return helpOf(app);
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
    addUnits(app, outcome.units);

    outcome.text = mekbom::parse(app, numArguments, arguments);
    outcome.isReport = outcome.text.empty() && app.got_subcommand("report");
    outcome.isAboutUnits = outcome.text.empty() && !outcome.isReport;
    takePairs(pairs, outcome.options);
    return outcome;
}
}
