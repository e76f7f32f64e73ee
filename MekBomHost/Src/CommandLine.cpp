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
  unit are in mm, kg, rad and what follows from them (mm2, kg/mm ...). Empty cells are no
  data. Handle is the identity of the object.

Template
  Without --template the shipped template is taken that finds the greatest part of its
  data among the columns; of equals the first of cutting-list, assembly-list, bolt-list,
  parts-list. The sample data go with the default template.

Examples
  mekbom report
  mekbom report --data parts.csv
  mekbom report --data parts.csv --template list.json --units imperial -o list.txt
  mekbom report --data frame.csv --input-unit %Paint=m2
  sed 1d export.csv | mekbom report --data -
  mekbom report --data sample --template default

Exit status
   0  done
   2  wrong usage
   3  input unreadable or invalid
   4  output not written; what stood there before still does
  70  internal fault)";

// TOKEN=UNIT, the token with or without its '%'.
std::pair<std::string, std::string> parseInputUnit(const std::string& argument)
{
    const std::size_t equals = argument.find('=');
    if (equals == std::string::npos || equals == 0 || equals + 1 == argument.size())
        throw Fault(kWrongUsage,
                    "--input-unit: found " + inQuotes(argument) + ", expected TOKEN=UNIT such as %Paint=m2");
    return { ColumnName::tokenOf(argument.substr(0, equals)), argument.substr(equals + 1) };
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
    ReportOptions& options = outcome.options;
    std::string units = "metric";
    std::vector<std::string> inputUnits;

    CLI::App app("Bills of materials from the parts lists of steel structures", "mekbom");
    app.set_version_flag("--version", kVersion);
    app.require_subcommand(1);
    app.footer(kNotes);
    CLI::App* const pReport = app.add_subcommand("report", "Print a list from a parts list and a template");
    pReport->footer(kNotes);
    pReport
        ->add_option("--data", options.data,
                     "Parts list; - reads standard input, sample takes built-in rows [the shipped hall]")
        ->type_name("FILE");
    pReport
        ->add_option("--template", options.templateName,
                     "Template file, or default for the built-in one [a shipped one that suits the data]")
        ->type_name("FILE");
    pReport->add_option("--units", units, "Units to print in: metric or imperial [metric]")
        ->check(CLI::IsMember({ "metric", "imperial" }));
    pReport->add_option("-o,--output", options.output, "File to write, - for standard output [-]")->type_name("FILE");
    pReport->add_option("--input-unit", inputUnits, "Unit of a column whose header names none; may be repeated")
        ->type_name("TOKEN=UNIT")
        ->allow_extra_args(false);

    outcome.text = mekbom::parse(app, numArguments, arguments);
    outcome.isReport = outcome.text.empty();
    options.isImperial = units == "imperial";
    for (const std::string& inputUnit : inputUnits)
        options.inputUnits.push_back(parseInputUnit(inputUnit));
    return outcome;
}
}
