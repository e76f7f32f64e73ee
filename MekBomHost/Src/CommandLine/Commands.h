// What the parser of the command line knows of its commands, as texts for users and as findings.
//
//   Commands::helpOf(Commands::find(app, { "units", "convert" }))   ->  what mekbom units convert --help prints
//
// and for what is wrong with the words of a command line:
//
//   mekbom reprot           found "reprot", expected one of report, units, help: did you mean "report"?
//   mekbom report --dat x   report: found unknown option "--dat": did you mean "--data"?
#pragma once

#include "Finding.h"

#include <string>
#include <vector>

namespace CLI
{
class App;
class ParseError;
}

namespace mekbom::Commands
{
// The words that call a command: "mekbom units convert".
std::string lineOf(const CLI::App& command);

// The command that these words call: `program` itself without any. Throws a Fault of status kWrongUsage for a word that
// names no command.
const CLI::App& find(const CLI::App& program, const std::vector<std::string>& words);

// The innermost command that `program` was called with when it parsed its arguments: convert of "mekbom units convert";
// `program` itself where no command was called. The parser owns it.
const CLI::App& calledIn(const CLI::App& program);

// The help of a command, be it one within another: that of convert begins with "Usage: mekbom units convert".
std::string helpOf(const CLI::App& command);

// Throws a Fault of status kWrongUsage when a word stands where a command is expected, and names none: "mekbom reprot
// --help" would print the program's help otherwise.
void checkCommandsIn(const CLI::App& program);

// What is wrong with the arguments that `program` threw `error` over: an error whose source is the words of the
// command, empty for the program itself.
Finding explain(const CLI::App& program, const CLI::ParseError& error);
}
