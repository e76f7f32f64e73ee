#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>

// The verb as the program runs it: what it prints, and how it refuses.

namespace mekbom
{
namespace
{
std::string read(const std::string& value)
{
    const ProgramRun run = runHere({ "units", "read", value });
    return run.status == kDone ? run.output : std::to_string(run.status) + " " + run.errors;
}
}

TEST(UnitsReadVerbTest, AQuantityIsReadInTheModelsUnitOfItsKind)
{
    EXPECT_EQ("2298.7\n", read("7'-6 1/2\""));
    EXPECT_EQ("2286\n", read("2286"));
    EXPECT_EQ("2286\n", read("7.5 ft"));
    EXPECT_EQ("45.359237\n", read("100 lb"));
    EXPECT_EQ("1000000\n", read("1 m²"));
    EXPECT_EQ("1.5707963267948966\n", read("90°"));
    EXPECT_EQ("9144\n", read("30'")); // feet, without a degree sign before it
}

TEST(UnitsReadVerbTest, WhatIsNoQuantityIsRefused)
{
    const std::string expected = "expected a quantity such as 2286, 7.5 ft, 7'-6 1/2\" or 12°30'";
    EXPECT_EQ("2 mekbom: found \"1,234.5\", " + expected +
                  ": digits are not grouped, and the decimal sign is a point\n",
              read("1,234.5"));
    EXPECT_EQ("2 mekbom: found \"12°60'\", " + expected +
                  ": inches after feet stay below 12, minutes and seconds below 60\n",
              read("12°60'"));
    EXPECT_EQ("2 mekbom: found \"abc\", " + expected + "\n", read("abc"));
}
}
