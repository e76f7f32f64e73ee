#include "Commands.h"

#include "Support/HostTestSupport.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// A program with commands "print", which takes a file and --units, and "units", which has "convert" below it.
class CommandsTest : public testing::Test
{
protected:
    CommandsTest()
    {
        m_app.require_subcommand(1);
        CLI::App& print = *m_app.add_subcommand("print", "Print a file");
        print.add_option("file", m_file)->required();
        print.add_option("-u,--units", m_units);
        CLI::App& units = *m_app.add_subcommand("units", "List units");
        units.add_subcommand("convert", "Convert a quantity")->add_option("value", m_file);
    }

    // What is wrong with the command line, as a message; empty when nothing is.
    std::string explained(const std::string& words)
    {
        try
        {
            m_app.parse(words);
        }
        catch (const CLI::ParseError& error)
        {
            return messageOf(Commands::explain(m_app, error));
        }
        return std::string();
    }

    CLI::App m_app{ "A program", "steel" };
    std::string m_file;
    std::string m_units;
};
}

TEST_F(CommandsTest, CommandsAreFoundByTheirWords)
{
    EXPECT_EQ(&m_app, &Commands::find(m_app, {}));
    EXPECT_EQ("print", Commands::find(m_app, { "print" }).get_name());
    EXPECT_EQ("convert", Commands::find(m_app, { "units", "convert" }).get_name());
    EXPECT_EQ("2 units: found \"convrt\", expected one of convert: did you mean \"convert\"?\n",
              faultOf(
                  [this] {
                      Commands::find(m_app, { "units", "convrt" });
                  }));
    EXPECT_EQ("2 found \"all\", expected one of print, units\n", faultOf([this] { Commands::find(m_app, { "all" }); }));
}

TEST_F(CommandsTest, TheCommandThatWasCalledIsTheInnermost)
{
    EXPECT_EQ(&m_app, &Commands::calledIn(m_app));
    m_app.parse("units convert 5");
    EXPECT_EQ("convert", Commands::calledIn(m_app).get_name());
}

TEST_F(CommandsTest, HelpBeginsWithTheWordsOfTheCommand)
{
    m_app.parse("units convert 5");

    EXPECT_EQ(0u, Commands::helpOf(Commands::calledIn(m_app)).find("Convert a quantity\nUsage: steel units convert "));
    EXPECT_EQ(0u, Commands::helpOf(m_app).find("A program\nUsage: steel ")); // not that of the command called
}

TEST_F(CommandsTest, UnknownCommandsAreTold)
{
    EXPECT_EQ("found \"prnit\", expected one of print, units: did you mean \"print\"?", explained("prnit a.txt"));
    EXPECT_EQ("units: found \"list\", expected one of convert", explained("units list"));
    EXPECT_EQ("found no command, expected one of print, units: see steel --help", explained(""));
}

TEST_F(CommandsTest, UnknownOptionsAreTold)
{
    EXPECT_EQ("print: found unknown option \"--unts\": did you mean \"--units\"?", explained("print a.txt --unts m"));
    EXPECT_EQ("print: found unknown option \"--unit\": did you mean \"--units\"?", explained("print --unit=m a.txt"));
    EXPECT_EQ("print: found unknown option \"--colour\": steel print --help lists those there are",
              explained("print a.txt --colour red"));
    EXPECT_EQ("found unknown option \"--hlp\": did you mean \"--help\"?", explained("--hlp print a.txt"));
}

// What the parser misses, in its own words, is told only when it understood every word.
TEST_F(CommandsTest, AWordThatIsNotUnderstoodComesBeforeOneThatIsMissing)
{
    EXPECT_EQ("print: found unknown option \"--unts\": did you mean \"--units\"?", explained("print --unts"));
    EXPECT_EQ("print: file is required: see steel print --help", explained("print"));
}

TEST_F(CommandsTest, FurtherWordsAreTold)
{
    EXPECT_EQ("print: found \"b.txt\", expected no further word: see steel print --help",
              explained("print a.txt b.txt"));
}

TEST_F(CommandsTest, AWordInThePlaceOfACommandIsCheckedEvenWhenHelpIsAskedFor)
{
    EXPECT_THROW(m_app.parse("prnit --help"), CLI::CallForHelp);
    EXPECT_EQ("2 found \"prnit\", expected one of print, units: did you mean \"print\"?\n",
              faultOf([this] { Commands::checkCommandsIn(m_app); }));
    EXPECT_THROW(m_app.parse("print --unts --help"), CLI::CallForHelp);
    EXPECT_EQ("", faultOf([this] { Commands::checkCommandsIn(m_app); }));
}
}
