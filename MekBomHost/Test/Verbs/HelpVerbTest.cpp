#include "AllVerbs.h"
#include "Commands.h"
#include "Roff.h"

#include "Support/ProgramRun.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// "-o,--output" of a line "  -o,--output FILE  File to write", as it stands above the notes.
std::vector<std::string> optionsIn(const std::string& help)
{
    std::vector<std::string> options;
    const std::size_t begin = help.find("\nOptions:\n");
    std::istringstream lines(help.substr(begin, help.find("\n\n", begin) - begin));
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("  -", 0) == 0)
            options.push_back(line.substr(2, line.find(' ', 2) - 2));
    return options;
}

// The part of the page about that command, "mekbom report", from its heading to the next one.
std::string partAbout(const std::string& line, const std::string& page)
{
    const std::size_t begin = page.find(".SS \"" + Roff::escaped(line) + " [");
    if (begin == std::string::npos)
        return std::string();
    return page.substr(begin, page.find("\n.S", begin) - begin);
}
}

TEST(HelpVerbTest, TellsWhatTheHelpOptionTells)
{
    for (const std::vector<std::string>& words :
         { std::vector<std::string>{}, { "report" }, { "units" }, { "units", "convert" }, { "help" } })
    {
        std::vector<std::string> verb = { "help" };
        verb.insert(verb.end(), words.begin(), words.end());
        std::vector<std::string> option = words;
        option.push_back("--help");

        const ProgramRun run = runHere(verb);

        EXPECT_EQ(kDone, run.status);
        EXPECT_EQ(runHere(option).output, run.output);
        EXPECT_NE("", run.output);
    }
}

TEST(HelpVerbTest, CommandsThatThereAreNotAreRefused)
{
    const ProgramRun run = runHere({ "help", "reprot" });

    EXPECT_EQ(kWrongUsage, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_NE(std::string::npos, run.errors.find(": did you mean \"report\"?\n"));
    EXPECT_EQ(run.errors, runHere({ "reprot", "--help" }).errors);
    EXPECT_EQ("mekbom: units: found \"convrt\", expected one of convert, read: did you mean \"convert\"?\n",
              runHere({ "help", "units", "convrt" }).errors);
}

TEST(HelpVerbTest, EveryVerbAndEveryOptionStandsOnTheManualPage)
{
    CLI::App program("", "mekbom");
    VerbList verbs = allVerbs();
    verbs.declareOn(program);
    const std::string page = runHere({ "help", "--man" }).output;

    const CLI::App& declared = program;
    std::vector<const CLI::App*> commands = declared.get_subcommands({});
    for (std::size_t i = 0; i < commands.size(); ++i)
    {
        const std::string line = Commands::lineOf(*commands[i]);
        const std::string part = partAbout(line, page);
        EXPECT_NE("", part) << line;
        for (const std::string& option : optionsIn(Commands::helpOf(*commands[i])))
            EXPECT_NE(std::string::npos, part.find("\\fB" + Roff::escaped(option) + "\\fR")) << line << " " << option;
        for (const CLI::App* const pBelow : commands[i]->get_subcommands({}))
            commands.push_back(pBelow);
    }
    EXPECT_EQ(13u, commands.size());
}

// What help says below its options are sections of the page.
TEST(HelpVerbTest, TheManualPageHasTheSectionsOfTheNotes)
{
    const std::string page = runHere({ "help", "--man" }).output;

    for (const char* const section :
         { "NAME", "SYNOPSIS", "OPTIONS", "COMMANDS", "SETTINGS", "EXAMPLES", "EXIT STATUS" })
        EXPECT_NE(std::string::npos, page.find(std::string("\n.SH ") + section + "\n")) << section;
    EXPECT_NE(std::string::npos, page.find("\n.TP\n\\fB70\\fR\ninternal fault\n"));
}

TEST(HelpVerbTest, TheManualPageIsAboutAllCommands)
{
    const ProgramRun run = runHere({ "help", "--man", "report" });

    EXPECT_EQ(kWrongUsage, run.status);
    EXPECT_EQ("mekbom: --man: the manual page is about all commands: leave out the option, or the words behind help\n",
              run.errors);
}
TEST(HelpVerbTest, CompletionIsAboutAllCommands)
{
    EXPECT_EQ("mekbom: --completion: it completes all commands: leave out the option, or the words behind help\n",
              runHere({ "help", "--completion", "bash", "report" }).errors);
    EXPECT_EQ(kWrongUsage, runHere({ "help", "--completion", "tcsh" }).status);
    for (const char* const shell : { "bash", "zsh", "fish" })
        EXPECT_NE(std::string::npos, runHere({ "help", "--completion", shell }).output.find("check-totals")) << shell;
}
}
