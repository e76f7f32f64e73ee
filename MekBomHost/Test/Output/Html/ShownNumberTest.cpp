#include "ShownNumber.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(ShownNumberTest, DecimalsStandBehindThePoint)
{
    EXPECT_EQ(0, ShownNumber::numDecimals("12"));
    EXPECT_EQ(2, ShownNumber::numDecimals("-0.25"));
    EXPECT_EQ(1, ShownNumber::numDecimals("1 693.5"));
}

TEST(ShownNumberTest, WhatIsNoDecimalNumberHasNone)
{
    for (const char* const text : { "", "-", ".", "5.", ".5", "--1", "1e+20", "7' 6\"", "12.5 kg", "12\xC2\xB0", "1,5",
                                    "1.2.3", "inf", "nan", " 1", "1 ", "+1" })
        EXPECT_EQ(ShownNumber::kNoDecimal, ShownNumber::numDecimals(text)) << text;
}

TEST(ShownNumberTest, PlainNumbersHaveNoBlanks)
{
    EXPECT_TRUE(ShownNumber::isPlain("-1693.5"));
    EXPECT_FALSE(ShownNumber::isPlain("1 693.5"));
    EXPECT_FALSE(ShownNumber::isPlain("7'"));
}

TEST(ShownNumberTest, NumbersAreFilledUpToTheDecimalsOfOthers)
{
    EXPECT_EQ(".00", ShownNumber::fill("12", 2));
    EXPECT_EQ("0", ShownNumber::fill("-1 693.5", 2));
    EXPECT_EQ("", ShownNumber::fill("12.50", 2));
    EXPECT_EQ("", ShownNumber::fill("12.505", 2));
    EXPECT_EQ("", ShownNumber::fill("12", 0));
    EXPECT_EQ("", ShownNumber::fill("7' 6\"", 2));
}
}
