// The parser says what it missed before it says what it did not understand: "mekbom reprot" lacks a command, in its
// words, and "mekbom units convert 5 m --sparator minus" a unit. So the words that it could place nowhere are looked at
// first, from the program down:
//
//   mekbom --unts imperial report        "--unts" is left over in mekbom
//   mekbom report --dat parts.csv        "--dat" and "parts.csv" are left over in report; the first is told
//   mekbom units convrt 5 m ft           "convrt" is left over in units, which has commands: it was to be one of them
#include "Commands.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "NearestWord.h"

#include <CLI/CLI.hpp>

namespace mekbom::Commands
{
namespace
{
// All there are, called or not: that is what the parser gives to a filter that takes each.
std::vector<const CLI::App*> commandsOf(const CLI::App& command)
{
    return command.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<std::string> namesIn(const CLI::App& command)
{
    std::vector<std::string> names;
    for (const CLI::App* const pCommand : commandsOf(command))
        names.push_back(pCommand->get_name());
    return names;
}

// "--output" and "-o" as a user writes them; without what stands in its place alone, which has no name.
std::vector<std::string> optionsOf(const CLI::App& command)
{
    std::vector<std::string> options;
    for (const CLI::Option* const pOption : command.get_options())
    {
        for (const std::string& name : pOption->get_lnames())
            options.push_back("--" + name);
        for (const std::string& name : pOption->get_snames())
            options.push_back("-" + name);
    }
    return options;
}

// "units convert"; empty for the program.
std::string wordsOf(const CLI::App& command)
{
    if (command.get_parent() == nullptr)
        return std::string();
    const std::string parents = wordsOf(*command.get_parent());
    return parents + (parents.empty() ? "" : " ") + command.get_name();
}

// A single minus sign stands for standard input and is none.
bool isOption(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

Finding findingIn(const CLI::App& command, Finding finding)
{
    finding.source = wordsOf(command);
    return finding;
}

Finding noCommand(const CLI::App& parent, const std::string& found, const std::string& remedy)
{
    std::string expected;
    for (const std::string& name : namesIn(parent))
        expected += (expected.empty() ? "one of " : ", ") + name;
    Finding finding = Finding::of(FindingCodes::kWrongArguments, found, expected);
    finding.remedy = remedy;
    return findingIn(parent, finding);
}

Finding unknownCommand(const CLI::App& parent, const std::string& word)
{
    return noCommand(parent, inQuotes(word), NearestWord::question(word, namesIn(parent)));
}

// Of "--unts=imperial" the option is what stands before the equals sign.
Finding unknownOption(const CLI::App& command, const std::string& word)
{
    const std::string option = word.substr(0, word.find('='));
    Finding finding = Finding::of(FindingCodes::kWrongArguments, "unknown option " + inQuotes(option));
    finding.remedy = NearestWord::question(option, optionsOf(command));
    if (finding.remedy.empty())
        finding.remedy = lineOf(command) + " --help lists those there are";
    return findingIn(command, finding);
}

Finding unexpected(const CLI::App& command, const std::string& word)
{
    if (isOption(word))
        return unknownOption(command, word);
    if (!commandsOf(command).empty())
        return unknownCommand(command, word);
    Finding finding = Finding::of(FindingCodes::kWrongArguments, inQuotes(word), "no further word");
    finding.remedy = "see " + lineOf(command) + " --help";
    return findingIn(command, finding);
}
}

std::string lineOf(const CLI::App& command)
{
    const CLI::App* pProgram = &command;
    while (pProgram->get_parent() != nullptr)
        pProgram = pProgram->get_parent();
    const std::string words = wordsOf(command);
    return pProgram->get_name() + (words.empty() ? "" : " ") + words;
}

const CLI::App& find(const CLI::App& program, const std::vector<std::string>& words)
{
    const CLI::App* pFound = &program;
    for (const std::string& word : words)
    {
        const CLI::App* pNext = nullptr;
        for (const CLI::App* const pCommand : commandsOf(*pFound))
            if (pCommand->get_name() == word)
                pNext = pCommand;
        if (pNext == nullptr)
            throw Fault(kWrongUsage, unexpected(*pFound, word));
        pFound = pNext;
    }
    return *pFound;
}

// A command has one command below it that was called, or none: that is how the verbs declare theirs.
const CLI::App& calledIn(const CLI::App& program)
{
    const CLI::App* pCommand = &program;
    while (!pCommand->get_subcommands().empty())
        pCommand = pCommand->get_subcommands().front();
    return *pCommand;
}

// The formatter is asked, not the command: a program whose help verb was called would tell of that.
std::string helpOf(const CLI::App& command)
{
    return command.get_formatter()->make_help(&command, lineOf(command), CLI::AppFormatMode::Normal);
}

void checkCommandsIn(const CLI::App& program)
{
    const CLI::App& command = calledIn(program);
    for (const std::string& word : command.remaining())
        if (!commandsOf(command).empty() && !isOption(word))
            throw Fault(kWrongUsage, unknownCommand(command, word));
}

// A word that nobody took is told first, that of the outermost command before all others, then that no command was
// called. Only what is left is in the parser's own words: an option without its value, a word that is missing.
Finding explain(const CLI::App& program, const CLI::ParseError& error)
{
    const CLI::App& called = calledIn(program);
    for (const CLI::App* pCommand = &program; pCommand != nullptr;
         pCommand = pCommand == &called ? nullptr : pCommand->get_subcommands().front())
        if (const std::vector<std::string> words = pCommand->remaining(); !words.empty())
            return unexpected(*pCommand, words.front());
    if (&called == &program)
        return noCommand(program, "no command", "see " + lineOf(program) + " --help");
    Finding finding = Finding::stating(FindingCodes::kWrongArguments, error.what());
    finding.remedy = "see " + lineOf(called) + " --help";
    return findingIn(called, finding);
}
}
