#include "HeadingTable.h"
#include "TokenTable.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(TokensVerbTest, TheCatalogueIsListedWhole)
{
    EXPECT_EQ(TokenTable::textOf(""), runHere({ "tokens" }).output);
}

TEST(TokensVerbTest, AWordChoosesAmongTheTokens)
{
    const ProgramRun run = runHere({ "tokens", "PAINT" });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ(TokenTable::textOf("paint"), run.output);
}

TEST(TokensVerbTest, HeadingsAreListedWholeOrByAWord)
{
    EXPECT_EQ(HeadingTable::textOf(""), runHere({ "tokens", "--headings" }).output);
    EXPECT_EQ(HeadingTable::textOf("WERKSTOFF"), runHere({ "tokens", "--headings", "werkstoff" }).output);
    EXPECT_EQ("mekbom: tokens: found \"Werkstofff\", expected a part of a heading or a token's name: did you mean "
              "\"Werkstoff\"?\n",
              runHere({ "tokens", "--headings", "Werkstofff" }).errors);
}

TEST(TokensVerbTest, AWordThatNoTokenHoldsIsWrongUsage)
{
    const ProgramRun run = runHere({ "tokens", "%Wieght" });

    EXPECT_EQ(kWrongUsage, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_EQ("mekbom: tokens: found \"%Wieght\", expected a part of a token's name: did you mean \"%Weight\"?\n",
              run.errors);
    EXPECT_EQ("mekbom: tokens: found \"xyzzy\", expected a part of a token's name\n",
              runHere({ "tokens", "xyzzy" }).errors);
}
}
