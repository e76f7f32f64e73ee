#include "SheetNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace mekbom
{
namespace
{
// "8.5744 as 0.00", or "text".
std::string cellOf(const std::string& text, double value)
{
    const std::optional<SheetNumber> cell = SheetNumber::of(text, value);
    if (!cell)
        return "text";
    std::string number = std::to_string(cell->number);
    number.resize(number.find_last_not_of('0') + 1);
    return number + " as " + cell->format();
}
}

TEST(SheetNumberTest, TheFormatShowsAsManyDecimalsAsTheList)
{
    EXPECT_EQ("2.5 as 0.0", cellOf("2.5", 2.5));
    EXPECT_EQ("2.5 as 0.00", cellOf("2.50", 2.5));
    EXPECT_EQ("3. as 0", cellOf("3", 3));
    EXPECT_EQ("3. as 0.00", cellOf("3.00", 3));
    EXPECT_EQ("0.05 as 0.00", cellOf("0.05", 0.05));
    EXPECT_EQ("-12.5 as 0.0", cellOf("-12.5", -12.5));
    EXPECT_EQ("0. as 0", cellOf("0", 0));
}

TEST(SheetNumberTest, ACellHoldsMoreThanItShows)
{
    EXPECT_EQ("8.5744 as 0.00", cellOf("8.57", 8.5744));
    EXPECT_EQ("1199.6 as 0", cellOf("1200", 1199.6));
    EXPECT_EQ("0.001 as 0", cellOf("0", 0.001));
}

// Spreadsheets round as lists do: away from zero, and the digits, not the double, which is a little below 2.675.
TEST(SheetNumberTest, TheMiddleBetweenTwoNumbersIsStored)
{
    EXPECT_EQ("2.675 as 0.00", cellOf("2.68", 2.675));
    EXPECT_EQ("15.965 as 0.00", cellOf("15.97", 15.965));
    EXPECT_EQ("-15.965 as 0.00", cellOf("-15.97", -15.965));
    EXPECT_EQ("0.5 as 0", cellOf("1", 0.5));
    EXPECT_EQ("-0.5 as 0", cellOf("-1", -0.5));
}

TEST(SheetNumberTest, TheMiddleIsStoredOnlyWhereItIsShownAsPrinted)
{
    EXPECT_EQ("2.67 as 0.00", cellOf("2.67", 2.675));
    EXPECT_EQ("0. as 0", cellOf("0", 0.5));
    EXPECT_EQ(0.0, SheetNumber::of("0", -0.5)->number);
}

// Programs that keep fifteen digits take it for the middle, and lists do not.
TEST(SheetNumberTest, WhatIsNextToTheMiddleIsStoredAsPrinted)
{
    EXPECT_EQ(1.0, SheetNumber::of("1.00", std::nextafter(1.005, 1))->number);
    EXPECT_EQ(1.01, SheetNumber::of("1.01", std::nextafter(1.005, 2))->number);
    EXPECT_EQ(12345678901234.5, SheetNumber::of("12345678901234.5", 12345678901234.45)->number);
}

TEST(SheetNumberTest, AValueThatWouldShowAnotherTextIsNotStored)
{
    EXPECT_EQ("2.5 as 0.0", cellOf("2.5", 2500));
    EXPECT_EQ("2.5 as 0.0", cellOf("2.5", -2.5));
    EXPECT_EQ("2.5 as 0.0", cellOf("2.5", std::nan("")));
    EXPECT_EQ("2.5 as 0.0", cellOf("2.5", std::numeric_limits<double>::infinity()));
}

TEST(SheetNumberTest, WhatRoundsToZeroHasNoSign)
{
    const std::optional<SheetNumber> cell = SheetNumber::of("0", -0.001);

    ASSERT_TRUE(cell.has_value());
    EXPECT_EQ(0, cell->number);
    EXPECT_FALSE(std::signbit(cell->number));
    EXPECT_EQ("text", cellOf("-0", -0.001));
    EXPECT_EQ("text", cellOf("-0.00", -0.001));
}

TEST(SheetNumberTest, BlanksBetweenThousandsAreShown)
{
    EXPECT_EQ("1234.5 as #\\ ##0.0", cellOf("1 234.5", 1234.5));
    EXPECT_EQ("-1234. as #\\ ##0", cellOf("-1 234", -1234));
    EXPECT_EQ("1234567.89 as #\\ ###\\ ##0.00", cellOf("1 234 567.89", 1234567.89));
    EXPECT_EQ("999. as 0", cellOf("999", 999));
}

TEST(SheetNumberTest, MoreDigitsThanSpreadsheetsShowAreText)
{
    EXPECT_EQ("123456789012345. as 0", cellOf("123456789012345", 123456789012345.0));
    EXPECT_EQ("text", cellOf("1234567890123456", 1234567890123456.0));
    EXPECT_EQ("text", cellOf("9007199254740993", 9007199254740992.0));
    EXPECT_EQ("text", cellOf("0.1234567890123456", 0.1234567890123456));
}

TEST(SheetNumberTest, ZerosAtEitherEndAreNoDigits)
{
    EXPECT_EQ("123456789012345. as 0.000", cellOf("123456789012345.000", 123456789012345.0));
    EXPECT_EQ("1200000000000000. as 0", cellOf("1200000000000000", 1.2e15));
    EXPECT_TRUE(SheetNumber::of("0.00000123456789012345", 0.00000123456789012345).has_value());
}

TEST(SheetNumberTest, AnythingElseIsText)
{
    for (const char* const text : { "",
                                    "-",
                                    ".",
                                    "5.",
                                    ".5",
                                    "--5",
                                    "+5",
                                    " 5",
                                    "5 ",
                                    "1 1/2",
                                    "7' 6\"",
                                    "12 30",
                                    "1 2345",
                                    "1  234",
                                    "1 234 5",
                                    "1 234.5 6",
                                    "1.5e+20",
                                    "1,5",
                                    "inf",
                                    "-inf",
                                    "nan",
                                    "12 kg",
                                    "48 637.90 EUR",
                                    "12°30'",
                                    "0x10",
                                    "1.2.3" })
        EXPECT_EQ("text", cellOf(text, 5)) << text;
    EXPECT_EQ("text", cellOf(std::string(1000, '1'), 5));
}
}
