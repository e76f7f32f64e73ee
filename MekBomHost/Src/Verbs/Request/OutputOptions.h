// The options with which verbs say where lists go, in which formats, and how these are written.
//
//   OutputOptions outputs;
//   outputs.declareOn(report);
//   app.parse(numArguments, arguments);                 "mekbom report -o list.txt -o list.csv --values plain"
//   outputs.wanted()              ->  { "list.txt", "text" } and { "list.csv", "csv" }
//   outputs.choicesOver(OutputChoices())   ->  those of --values
#pragma once

#include "FileOption.h"
#include "Finding.h"
#include "OutputChoices.h"

#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace mekbom
{
// One place that a list goes to.
struct WantedOutput
{
    bool isStandardOutput() const { return fileName == "-"; }

    std::string fileName; // "-" for standard output
    std::string format;   // a name of ReportFormats
};

class OutputOptions
{
public:
    // Adds the options to `command`. Parsing fills this object, which outlives it.
    void declareOn(CLI::App& command);

    // What was asked for, in its order; the standard output alone where nothing was. The name of a file tells its
    // format, and --to that of all whose names tell none. Throws a Fault of status kWrongUsage when two go to the same
    // place, when a name promises what no list is written in, when no output is left for the format of --to, and when
    // no output understands one of the choices.
    std::vector<WantedOutput> wanted() const;

    // What was chosen, over what configuration files choose.
    OutputChoices choicesOver(const OutputChoices& configured) const;

    // Throws a Fault of status kWrongUsage when an output would take the place of one of these files. Names that are
    // empty, and such as "hall" that are no files, do not matter.
    void refuseInputs(const std::vector<std::string>& inputs) const;

private:
    void declareTextOptionsOn(CLI::App& command);
    void declareCsvOptionsOn(CLI::App& command);
    void addFlag(CLI::App& command, const std::string& name, const std::string& help, OutputChoices::eChoice choice,
                 bool& flag);
    std::vector<std::string> fileNames() const;
    WantedOutput outputNamed(const std::string& fileName) const;
    void refuseSamePlaces() const;
    void refuseContradiction(const std::vector<WantedOutput>& outputs) const;
    void refuseIdleChoices(const std::vector<WantedOutput>& outputs) const;
    [[noreturn]] void failAt(const std::string& fileName, Finding finding) const;

    FileOption m_files{ "-o,--output", "FILE" };
    std::string m_format; // of --to; empty without
    OutputChoices m_choices;
};
}
