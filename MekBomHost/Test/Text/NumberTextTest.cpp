#include "NumberText.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ("1e+15", numberText(1e15));
    EXPECT_EQ("1.601846337396014e-08", numberText(1.601846337396014e-08));
    EXPECT_EQ("-1.7976931348623157e+308", numberText(-1.7976931348623157e308));
}

TEST(NumberTextTest, SinglePrecisionTakesFewerDigits)
{
    EXPECT_EQ("0.1", singleText(0.1F));
    EXPECT_EQ("0.00001", singleText(1e-5F));
    EXPECT_EQ("7.85e-06", singleText(0.00000785F));
    EXPECT_EQ("16777216", singleText(16777217.0F));
    EXPECT_EQ("-3.4028235e+38", singleText(-3.4028235e38F));
}
}
