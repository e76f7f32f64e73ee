#include "VorDecimalNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace
{
// The digits with a point among, before or behind them: ".000125", "12.5", "1200.".
std::string textOf(const VorDecimalNumber& number)
{
    std::string text;
    for (int i = 0; i < number.numDigits(); ++i)
        text += static_cast<char>('0' + number.digit(i));
    const int position = number.pointPosition();
    if (position < 0)
        return "." + std::string(static_cast<std::size_t>(-position), '0') + text;
    text.resize(std::max(text.size(), static_cast<std::size_t>(position)), '0');
    return text.insert(static_cast<std::size_t>(position), ".");
}

std::string rounded(double value, unsigned int numParts)
{
    VorRoundedNumber number;
    if (VorDecimalNumber(value).roundToParts(numParts, number) == 0)
        return "too large";
    return std::to_string(number.whole) + " " + std::to_string(number.part) + "/" + std::to_string(numParts);
}

TEST(VorDecimalNumberTest, ADoubleHasTheDigitsOfItsShortestTextAndNoSign)
{
    EXPECT_EQ("2.675", textOf(VorDecimalNumber(2.675)));
    EXPECT_EQ("12.5", textOf(VorDecimalNumber(-12.5)));
    EXPECT_EQ("1200.", textOf(VorDecimalNumber(1200)));
    EXPECT_EQ(".000125", textOf(VorDecimalNumber(0.000125)));
    EXPECT_EQ("0.", textOf(VorDecimalNumber(0.0)));
}

TEST(VorDecimalNumberTest, AHalfPoundIsAHalfPound)
{
    VorDecimalNumber number(0.680388555);
    number.multiply(100000000);
    number.divide(45359237);

    EXPECT_EQ("1.500000000", textOf(number));
    EXPECT_EQ(1.5, number.toDouble());
    EXPECT_NE(1.5, 0.680388555 / 0.45359237) << "which is why digits are computed with";
}

TEST(VorDecimalNumberTest, ProductsCarryInFront)
{
    VorDecimalNumber number(99.5);
    number.multiply(1000000000000000000);

    EXPECT_EQ("99500000000000000000.0", textOf(number));
}

TEST(VorDecimalNumberTest, QuotientsWithoutAnEndAreCutOffFarBehindWhatTellsDoublesApart)
{
    VorDecimalNumber number(1);
    number.divide(3);

    EXPECT_EQ("." + std::string(40, '3'), textOf(number));
    EXPECT_EQ(1.0 / 3.0, number.toDouble());
}

TEST(VorDecimalNumberTest, WhatWasMultipliedAndDividedIsTheSameDouble)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 2000; ++i)
    {
        const double value = std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 100) - 80);
        const std::uint64_t factor = 1 + random() % 1000000000000;
        VorDecimalNumber number(value);
        number.multiply(factor);
        number.divide(factor);

        EXPECT_EQ(value, number.toDouble()) << factor;
    }
}

TEST(VorDecimalNumberTest, RoundingToDigitsTakesHalvesUpAndCarries)
{
    const auto roundedTo = [](double value, int numDigits)
    {
        VorDecimalNumber number(value);
        number.roundToDigits(numDigits);
        return textOf(number);
    };

    EXPECT_EQ("2.68", roundedTo(2.675, 3));
    EXPECT_EQ("2.67", roundedTo(2.6749, 3));
    EXPECT_EQ("10.", roundedTo(9.996, 3));
    EXPECT_EQ("2.675", roundedTo(2.675, 4));
    EXPECT_EQ("1.", roundedTo(1.0004, 4)) << "without trailing zeros";
}

TEST(VorDecimalNumberTest, RoundingToPartsTakesHalvesUpAndCarries)
{
    EXPECT_EQ("2 68/100", rounded(2.675, 100));
    EXPECT_EQ("0 1/16", rounded(0.03125, 16));
    EXPECT_EQ("0 0/16", rounded(0.03124, 16));
    EXPECT_EQ("12 0/16", rounded(11.96875, 16));
    EXPECT_EQ("3 0/1", rounded(2.5, 1));
    EXPECT_EQ("0 0/10", rounded(0.0, 10));
    EXPECT_EQ("0 0/1000000000", rounded(1e-300, 1000000000));
}

TEST(VorDecimalNumberTest, UpToFifteenDigitsStandBeforeThePointOfARoundedNumber)
{
    EXPECT_EQ("999999999999999 0/10", rounded(999999999999999.0, 10));
    EXPECT_EQ("too large", rounded(1e15, 10));
    EXPECT_EQ("too large", rounded(999999999999999.9, 1)) << "sixteen once it is rounded";
    EXPECT_EQ("too large", rounded(1e300, 10));
}

TEST(VorDecimalNumberTest, NumbersTooLargeForADoubleAreInfiniteAndTooSmallOnesZero)
{
    VorDecimalNumber large(std::numeric_limits<double>::max());
    large.multiply(10);
    VorDecimalNumber small(std::numeric_limits<double>::denorm_min());
    small.divide(10);

    EXPECT_EQ(std::numeric_limits<double>::infinity(), large.toDouble());
    EXPECT_EQ(0.0, small.toDouble());
}
}
