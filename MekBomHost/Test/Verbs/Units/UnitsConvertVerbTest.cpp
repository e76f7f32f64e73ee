#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The verb as the program runs it: what it prints, and how it refuses.

namespace mekbom
{
namespace
{
std::string converted(const std::string& value, const std::string& from, const std::string& to,
                      const std::vector<std::string>& options = {})
{
    std::vector<std::string> arguments = { "units", "convert", value, from, to };
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ProgramRun run = runHere(arguments);
    EXPECT_EQ(run.status == kDone ? "" : run.errors, run.errors);
    return run.status == kDone ? run.output : std::to_string(run.status) + " " + run.errors;
}
}

TEST(UnitsConvertVerbTest, AQuantityIsPrintedInAnotherUnit)
{
    EXPECT_EQ("7' 6\"\n", converted("2286", "mm", "ft-in/16"));
    EXPECT_EQ("7.5\n", converted("2286", "mm", "ft"));
    EXPECT_EQ("2298.7\n", converted("7'-6 1/2\"", "ft-in", "mm"));
    EXPECT_EQ("2286\n", converted("7.5", "feet", "mm"));
    EXPECT_EQ("220.5\n", converted("100", "kg", "lb/1"));
    EXPECT_EQ("12°30'\n", converted("12.5", "deg", "dms"));
    EXPECT_EQ("-7' 6\"\n", converted("-2286", "mm", "ft-in/16"));
    EXPECT_EQ("-1/2\"\n", converted("-12.7", "mm", "ft-in/16"));
}

TEST(UnitsConvertVerbTest, TheLayoutIsTheEnginesUnlessSaidOtherwise)
{
    EXPECT_EQ("0\"\n", converted("0", "mm", "ft-in/16"));
    EXPECT_EQ("0'\n", converted("0", "mm", "ft-in/16", { "--suppress-zero-feet", "0" }));
    EXPECT_EQ("0' 0\"\n", converted("0", "mm", "ft-in/16", { "--suppress-zero-feet=0", "--suppress-zero-inch=0" }));
    EXPECT_EQ("0'-0\"\n", converted("0", "mm", "ft-in/16",
                                    { "--suppress-zero-feet=0", "--suppress-zero-inch=0", "--separator", "minus" }));
    EXPECT_EQ("7'-6\"\n", converted("2286", "mm", "ft-in/16", { "--separator=minus" }));
    EXPECT_EQ("7' 6\"\n", converted("2286", "mm", "ft-in/16", { "--separator=blank" }));
    EXPECT_EQ("7' 0\"\n", converted("2133.6", "mm", "ft-in/16", { "--suppress-zero-inch=0" }));
    EXPECT_EQ("7.5\n", converted("7.5", "mm", "mm/2"));
    EXPECT_EQ("7.50\n", converted("7.5", "mm", "mm/2", { "--suppress-zeros", "0" }));
}

TEST(UnitsConvertVerbTest, WhatIsNoQuantityOfTheUnitIsRefused)
{
    EXPECT_EQ("2 mekbom: found \"abc\", expected a quantity in mm\n", converted("abc", "mm", "ft"));
    EXPECT_EQ("2 mekbom: found \"90\", expected a quantity in ft-in: every number needs its mark\n",
              converted("90", "ft-in", "mm"));
}

TEST(UnitsConvertVerbTest, WordsThatAreNoUnitsAreRefused)
{
    EXPECT_EQ("2 mekbom: found \"mn\", expected a unit such as mm, ft-in or lb; mekbom units lists them all\n",
              converted("1", "mn", "ft"));
    EXPECT_EQ("2 mekbom: found \"ft/99\", expected a unit, and after a slash a precision if need be, such as mm, lb/1 "
              "or ft-in/16\n",
              converted("1", "mm", "ft/99"));
    EXPECT_EQ("2 mekbom: found \"mm\", expected a unit of weight such as kg or lb, as kg is\n",
              converted("1", "kg", "mm"));
}

TEST(UnitsConvertVerbTest, WrongUsageIsStatusTwo)
{
    EXPECT_EQ("2 ", converted("1", "mm", "ft", { "--separator", "dash" }).substr(0, 2));
    EXPECT_EQ("2 ", converted("1", "mm", "ft", { "--suppress-zeros", "2" }).substr(0, 2));
    EXPECT_EQ(kWrongUsage, runHere({ "units", "convert", "1", "mm" }).status);
}
}
