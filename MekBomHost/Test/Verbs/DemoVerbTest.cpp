#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(DemoVerbTest, TheShippedHallIsListed)
{
    const ProgramRun run = runHere({ "demo" });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ(runHere({ "report", "--data", "hall" }).output, run.output);
    EXPECT_EQ(0u, run.output.find("Cutting list\n"));
}

TEST(DemoVerbTest, OptionsAreThoseOfAReport)
{
    EXPECT_EQ(runHere({ "report", "--data", "hall", "--template", "bolt-list", "--units", "imperial" }).output,
              runHere({ "demo", "--template", "bolt-list", "--units", "imperial" }).output);
}

TEST(DemoVerbTest, DataAreNoneOfThem)
{
    EXPECT_EQ(kWrongUsage, runHere({ "demo", "--data", "parts.csv" }).status);
}
}
