#include "PlainNumber.h"

#include "Utf8.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(PlainNumberTest, WholeAndBrokenNumbersAreWrittenInOneStyle)
{
    const PlainNumber price({ 2, true, true });

    EXPECT_EQ("48 637.90", Utf8::toBytes(price.textOf(48637.9)));
    EXPECT_EQ("12.00", Utf8::toBytes(price.textOf(12)));
    EXPECT_EQ("-2 147 483 648.00", Utf8::toBytes(price.textOf(-2147483647 - 1)));
}

TEST(PlainNumberTest, ANameStandsBehindTheNumberWhereThereIsOne)
{
    EXPECT_EQ("1.5", Utf8::toBytes(PlainNumber(NumberStyle()).textOf(1.5)));
    EXPECT_EQ("1.5 €", Utf8::toBytes(PlainNumber(NumberStyle(), "€").textOf(1.5)));
}
}
