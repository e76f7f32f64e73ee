#include "CellNumber.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace mekbom
{
namespace
{
std::optional<double> numberOf(const std::string& text)
{
    double value = -1;
    return CellNumber::parse(text, value) ? std::optional<double>(value) : std::nullopt;
}

std::optional<int> wholeOf(const std::string& text)
{
    int value = -1;
    return CellNumber::parse(text, value) ? std::optional<int>(value) : std::nullopt;
}
}

TEST(CellNumberTest, NumbersAreReadWithSignPointAndExponent)
{
    EXPECT_EQ(2.5, numberOf("2.5"));
    EXPECT_EQ(-2.5, numberOf("-2.5"));
    EXPECT_EQ(2.5, numberOf("+2.5"));
    EXPECT_EQ(0.5, numberOf(".5"));
    EXPECT_EQ(5.0, numberOf("5."));
    EXPECT_EQ(1.5e-3, numberOf("1.5E-3"));
    EXPECT_EQ(169.999999999999, numberOf("169.999999999999"));
    EXPECT_EQ(2.5, numberOf(" 2.5\t"));
}

TEST(CellNumberTest, WhatIsNoNumberIsNotRead)
{
    for (const char* const text : { "",  " ", "abc", "2,5",  "1 000", "2.5kg", "+-2",  "-+2",      "--2",   "+",
                                    "-", ".", "e5",  "0x10", "inf",   "nan",   "-INF", "infinity", "1e999", "2.5 3" })
        EXPECT_FALSE(numberOf(text)) << text;
}

TEST(CellNumberTest, WholeNumbersHaveThirtyTwoBits)
{
    EXPECT_EQ(2147483647, wholeOf("2147483647"));
    EXPECT_EQ(-2147483647 - 1, wholeOf("-2147483648"));
    EXPECT_EQ(7, wholeOf("+7"));
    EXPECT_EQ(7, wholeOf(" 007 "));
    for (const char* const text : { "2147483648", "-2147483649", "99999999999999999999", "2.0", "1e3", "", "a", "+" })
        EXPECT_FALSE(wholeOf(text)) << text;
}

TEST(CellNumberTest, WholeTextsMayBeLongerThanANumber)
{
    EXPECT_TRUE(CellNumber::isWhole("99999999999999999999"));
    EXPECT_TRUE(CellNumber::isWhole("-7 "));
    EXPECT_FALSE(CellNumber::isWhole("7.0"));
    EXPECT_FALSE(CellNumber::isWhole("-"));
    EXPECT_FALSE(CellNumber::isWhole(""));
}

TEST(CellNumberTest, LeadingZerosAreSeen)
{
    EXPECT_TRUE(CellNumber::hasLeadingZeros("007"));
    EXPECT_TRUE(CellNumber::hasLeadingZeros("-07"));
    EXPECT_TRUE(CellNumber::hasLeadingZeros("00"));
    EXPECT_FALSE(CellNumber::hasLeadingZeros("0"));
    EXPECT_FALSE(CellNumber::hasLeadingZeros("0.7"));
    EXPECT_FALSE(CellNumber::hasLeadingZeros("70"));
    EXPECT_FALSE(CellNumber::hasLeadingZeros(""));
}
}
