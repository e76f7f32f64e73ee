#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
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
}
