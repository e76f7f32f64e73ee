#include "PairOption.h"

#include "Support/HostTestSupport.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs pairsIn(const std::string& commandLine)
{
    CLI::App app;
    PairOption option("--unit", "KIND=UNIT", "length=ft-in/16");
    option.declareOn(app, "Unit of one kind");
    app.parse(commandLine);
    return option.pairs();
}
}

TEST(PairOptionTest, PairsAreGivenInTheirOrder)
{
    EXPECT_EQ((Pairs{ { "weight", "lb/1" }, { "length", "ft-in/16" } }),
              pairsIn("--unit weight=lb/1 --unit=length=ft-in/16"));
    EXPECT_EQ(Pairs(), pairsIn(""));
}

TEST(PairOptionTest, TheFirstEqualsSignSeparates)
{
    EXPECT_EQ((Pairs{ { "a", "b=c" } }), pairsIn("--unit a=b=c"));
}

TEST(PairOptionTest, ATextThatIsNoPairIsNamed)
{
    for (const char* const text : { "length", "=mm", "length=", "=" })
        EXPECT_EQ("2 --unit: found \"" + std::string(text) + "\", expected KIND=UNIT such as length=ft-in/16\n",
                  faultOf([text] { pairsIn(std::string("--unit ") + text); }));
}

TEST(PairOptionTest, TheNextWordBelongsToNoOption)
{
    EXPECT_THROW(pairsIn("--unit length=mm weight=lb"), CLI::ParseError);
}

TEST(PairOptionTest, HelpShowsTheForm)
{
    CLI::App app;
    PairOption option("--unit", "KIND=UNIT", "length=ft-in/16");

    option.declareOn(app, "Unit of one kind");

    EXPECT_NE(std::string::npos, app.help().find("--unit KIND=UNIT")) << app.help();
    EXPECT_NE(std::string::npos, app.help().find("Unit of one kind; may be repeated")) << app.help();
}
}
