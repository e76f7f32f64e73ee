#include "NumberReader.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>

namespace mekbom
{
namespace
{
std::optional<double> numberOf(const std::string& text)
{
    double value = -1;
    return NumberReader::read(text, value) ? std::optional<double>(value) : std::nullopt;
}

std::optional<int> wholeOf(const std::string& text)
{
    int value = -1;
    return NumberReader::read(text, value) ? std::optional<int>(value) : std::nullopt;
}
}

TEST(NumberReaderTest, NumbersAreReadWithSignPointAndExponent)
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

// Short numbers are read in another way than long ones: both must give the double next to the number.
TEST(NumberReaderTest, NumbersOfAnyLengthAreTheNearestDouble)
{
    const std::string digits = "9071992547409931";
    for (std::size_t length = 1; length <= digits.size(); ++length)
        for (std::size_t point = 0; point <= length; ++point)
        {
            const std::string text = digits.substr(0, point) + "." + digits.substr(point, length - point);
            ASSERT_EQ(std::strtod(text.c_str(), nullptr), numberOf(text)) << text;
        }
    for (const char* const text : { "0", "0.0", "000.100", "999999999999999", "99999999999999.9", "0.00000000000001",
                                    "1000000000000000", "0.30000000000000004" })
        EXPECT_EQ(std::strtod(text, nullptr), numberOf(text)) << text;
    EXPECT_TRUE(std::signbit(*numberOf("-0")));
}

TEST(NumberReaderTest, ShortTextsAreReadAsTheStandardLibraryReadsThem)
{
    std::mt19937 random(1);
    for (int i = 0; i < 500'000; ++i)
    {
        std::string text(1 + random() % 9, '0');
        for (char& character : text)
            character = "0123456789.0123456789/:-"[random() % (i % 8 == 0 ? 24 : 21)];
        double number = 0;
        const char* const pEnd = text.data() + text.size();
        const bool isNumber = std::from_chars(text.data(), pEnd, number).ptr == pEnd;
        ASSERT_EQ(isNumber ? std::optional<double>(number) : std::nullopt, numberOf(text)) << text;
        int whole = 0;
        const bool isWhole = std::from_chars(text.data(), pEnd, whole).ptr == pEnd;
        ASSERT_EQ(isWhole ? std::optional<int>(whole) : std::nullopt, wholeOf(text)) << text;
    }
}

TEST(NumberReaderTest, WhatIsNoNumberIsNotRead)
{
    for (const char* const text :
         { "",     " ",   "abc", "2,5",  "1 000",    "2.5kg", "+-2",   "-+2",   "--2",  "+",    "-",   ".",  "e5",
           "0x10", "inf", "nan", "-INF", "infinity", "1e999", "2.5 3", "1.2.3", "1..2", "1.-2", "1/2", "1:2" })
        EXPECT_FALSE(numberOf(text)) << text;
}

TEST(NumberReaderTest, WholeNumbersHaveThirtyTwoBits)
{
    EXPECT_EQ(2147483647, wholeOf("2147483647"));
    EXPECT_EQ(-2147483647 - 1, wholeOf("-2147483648"));
    EXPECT_EQ(7, wholeOf("+7"));
    EXPECT_EQ(7, wholeOf(" 007 "));
    for (const char* const text : { "2147483648", "-2147483649", "99999999999999999999", "2.0", "1e3", "", "a", "+" })
        EXPECT_FALSE(wholeOf(text)) << text;
}

TEST(NumberReaderTest, WholeTextsMayBeLongerThanANumber)
{
    EXPECT_TRUE(NumberReader::isWhole("99999999999999999999"));
    EXPECT_TRUE(NumberReader::isWhole("-7 "));
    EXPECT_FALSE(NumberReader::isWhole("7.0"));
    EXPECT_FALSE(NumberReader::isWhole("-"));
    EXPECT_FALSE(NumberReader::isWhole(""));
}

TEST(NumberReaderTest, DecimalsAreThoseThatAreWritten)
{
    const auto decimalsOf = [](const char* text)
    {
        double value = 0;
        int numDecimals = -1;
        EXPECT_TRUE(NumberReader::read(text, value, numDecimals)) << text;
        return numDecimals;
    };

    EXPECT_EQ(0, decimalsOf("12"));
    EXPECT_EQ(0, decimalsOf("12."));
    EXPECT_EQ(2, decimalsOf("12.50"));
    EXPECT_EQ(2, decimalsOf(" -12.50 "));
    EXPECT_EQ(14, decimalsOf("1.08799999999999"));
    EXPECT_EQ(15, decimalsOf("0.0321999999999998765"));
    EXPECT_EQ(4, decimalsOf("1.5e-3"));
    EXPECT_EQ(0, decimalsOf("1.5E+3"));
    EXPECT_EQ(15, decimalsOf("0e-2147483648"));
    EXPECT_EQ(0, decimalsOf("0e-99999999999"));
}

TEST(NumberReaderTest, DecimalsOfNoNumberStayUntouched)
{
    double value = 7;
    int numDecimals = 7;

    EXPECT_FALSE(NumberReader::read("1.2.3", value, numDecimals));
    EXPECT_FALSE(NumberReader::read("nan", value, numDecimals));

    EXPECT_EQ(7, value);
    EXPECT_EQ(7, numDecimals);
}

TEST(NumberReaderTest, ZerosBehindThePointOfAWholeNumberGo)
{
    EXPECT_EQ("4", NumberReader::withoutZeroDecimals("4"));
    EXPECT_EQ("4", NumberReader::withoutZeroDecimals("4.0"));
    EXPECT_EQ("-40", NumberReader::withoutZeroDecimals(" -40.000 "));
    for (const char* const text : { "4.01", "4.0.0", "4.0e1", "0.4", "4.0 kg" })
        EXPECT_EQ(text, NumberReader::withoutZeroDecimals(text));
}

TEST(NumberReaderTest, PlainNumbersCanBeWrittenAgainAsTheyWere)
{
    for (const char* const text : { "0", "7", "-70", "+7 ", "0.7", "-.7", "7.", "7.00", "340123450000018" })
        EXPECT_TRUE(NumberReader::isPlain(text)) << text;
    for (const char* const text : { "", " ", ".", "-", "007", "-07", "00", "1E5", "1e-3", "7,5", "7.5.1", "7 kg", "nan",
                                    "inf", "340123450000000018" })
        EXPECT_FALSE(NumberReader::isPlain(text)) << text;
}
}
