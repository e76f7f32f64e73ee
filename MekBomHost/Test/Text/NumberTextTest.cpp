#include "NumberText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace mekbom
{
TEST(NumberTextTest, NumbersOfAnOrdinarySizeHaveNoExponent)
{
    EXPECT_EQ("2298.7", numberText(2298.7));
    EXPECT_EQ("1000000", numberText(1e6));
    EXPECT_EQ("0", numberText(0.0));
    EXPECT_EQ("-0.5", numberText(-0.5));
    EXPECT_EQ("0.00001", numberText(1e-5));
    EXPECT_EQ("999999999999999.9", numberText(999999999999999.9));
    EXPECT_EQ("-0.0000123", numberText(-1.23e-5));
}

TEST(NumberTextTest, LargeAndSmallNumbersHaveOne)
{
    EXPECT_EQ("9.007199254740994e+15", numberText(9007199254740994.0));
    EXPECT_EQ("1.601846337396014e-08", numberText(1.601846337396014e-08));
    EXPECT_EQ("-1.7976931348623157e+308", numberText(-1.7976931348623157e308));
}

// They printed as 1e+15 and 9.007199254740991e+15.
TEST(NumberTextTest, WholeNumbersAreInFullAsFarAsADoubleHasThemAll)
{
    EXPECT_EQ("1000000000000000", numberText(1e15));
    EXPECT_EQ("9007199254740991", listedText(9007199254740991.0, NumberStyle()));
    EXPECT_EQ("9 007 199 254 740 992", listedText(9007199254740992.0, { NumberStyle::kAllDecimals, false, true }));
    EXPECT_EQ("-9007199254740992.00", listedText(-9007199254740992.0, { 2, true, false }));
    EXPECT_EQ("9007199254740992", singleText(9007199254740992.0F));
}

TEST(NumberTextTest, SinglePrecisionTakesFewerDigits)
{
    EXPECT_EQ("0.1", singleText(0.1F));
    EXPECT_EQ("0.00001", singleText(1e-5F));
    EXPECT_EQ("7.85e-06", singleText(0.00000785F));
    EXPECT_EQ("16777216", singleText(16777217.0F));
    EXPECT_EQ("-3.4028235e+38", singleText(-3.4028235e38F));
}

TEST(NumberTextTest, ListsShowNumbersInFull)
{
    const NumberStyle plain;
    EXPECT_EQ("1234567.89", listedText(1234567.89, plain));
    EXPECT_EQ("100000000000000.5", listedText(100000000000000.5, plain));
    EXPECT_EQ("0.00000785", listedText(0.00000785, plain));
    EXPECT_EQ("4", listedText(4.0, plain));
    EXPECT_EQ("0", listedText(-0.0, plain));
    EXPECT_EQ("9.007199254740994e+15", listedText(9007199254740994.0, plain));
    EXPECT_EQ("-1.5e+20", listedText(-1.5e20, plain));
    EXPECT_EQ(std::string::npos, listedText(std::numeric_limits<double>::denorm_min(), plain).find('e'));
}

TEST(NumberTextTest, WhatIsNoNumberShowsPlainly)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const NumberStyle style : { NumberStyle(), NumberStyle{ 2, true, true } })
    {
        EXPECT_EQ("inf", listedText(infinity, style));
        EXPECT_EQ("-inf", listedText(-infinity, style));
        EXPECT_EQ("nan", listedText(std::numeric_limits<double>::quiet_NaN(), style));
        EXPECT_EQ("nan", listedText(-std::numeric_limits<double>::quiet_NaN(), style));
    }
}

TEST(NumberTextTest, ListsRoundAsOneWouldOnPaper)
{
    struct RoundingCase
    {
        double number;
        int decimals;
        const char* trimmed;
        const char* padded;
    };
    const RoundingCase kCases[] = {
        { 0.1 + 0.2, 1, "0.3", "0.3" },
        { 2.675, 2, "2.68", "2.68" },
        { -2.675, 2, "-2.68", "-2.68" },
        { 9.996, 2, "10", "10.00" },
        { -9.996, 2, "-10", "-10.00" },
        { 999.5, 0, "1000", "1000" },
        { 0.5, 0, "1", "1" },
        { 0.4999, 0, "0", "0" },
        { -0.001, 2, "0", "0.00" },
        { 12.0, 2, "12", "12.00" },
        { 12.5, 2, "12.5", "12.50" },
        { 1.05, 1, "1.1", "1.1" },
        { 48637.94, 6, "48637.94", "48637.940000" },
        { 120.0, 0, "120", "120" },
    };
    for (const RoundingCase& test : kCases)
    {
        EXPECT_EQ(test.trimmed, listedText(test.number, { test.decimals, false, false })) << test.number;
        EXPECT_EQ(test.padded, listedText(test.number, { test.decimals, true, false })) << test.number;
    }
}

TEST(NumberTextTest, ThousandsAreGroupedFromThePointToTheLeft)
{
    const auto grouped = [](std::string text)
    {
        groupThousands(text);
        return text;
    };
    EXPECT_EQ("999", grouped("999"));
    EXPECT_EQ("1 000", grouped("1000"));
    EXPECT_EQ("-12 345.6789", grouped("-12345.6789"));
    EXPECT_EQ("1 234 567.89", grouped("1234567.89"));
    EXPECT_EQ("1 234'-6\"", grouped("1234'-6\""));
    EXPECT_EQ("1.5e+20", grouped("1.5e+20"));
    EXPECT_EQ("", grouped(""));
    EXPECT_EQ("inf", grouped("inf"));
    EXPECT_EQ("48 637.90", listedText(48637.9, { 2, true, true }));
}

TEST(NumberTextTest, DecimalsAreThoseOfTheShortestText)
{
    EXPECT_EQ(2, numDecimals(12.35));
    EXPECT_EQ(0, numDecimals(-4.0));
    EXPECT_EQ(8, numDecimals(0.00000785));
    EXPECT_EQ(0, numDecimals(1e20));
    EXPECT_EQ(0, numDecimals(std::numeric_limits<double>::quiet_NaN()));
}
}
