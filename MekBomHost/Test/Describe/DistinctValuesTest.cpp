#include "DistinctValues.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(DistinctValuesTest, EachTextIsCountedOnce)
{
    DistinctValues values;

    EXPECT_EQ("0", values.countText());
    EXPECT_TRUE(values.add("HEA200"));
    EXPECT_TRUE(values.add("a text of more than a few bytes"));
    EXPECT_FALSE(values.add("HEA200"));
    EXPECT_FALSE(values.add("a text of more than a few bytes"));
    EXPECT_TRUE(values.add("HEA200 "));
    EXPECT_EQ("3", values.countText());
}

TEST(DistinctValuesTest, NumbersAreCountedByTheirValues)
{
    DistinctValues values;

    for (const double number : { 0.0, -0.0, 1.5, 1.5, -1.5 })
        values.add(number);

    EXPECT_EQ("3", values.countText());
}

TEST(DistinctValuesTest, TheNumberIsExactUpToItsBoundAndSaidToBeMoreBeyond)
{
    DistinctValues values;
    for (std::size_t i = 0; i < 2 * DistinctValues::kMostValues; ++i)
        values.add("P" + std::to_string(i / 2));
    EXPECT_EQ("100000", values.countText());

    EXPECT_TRUE(values.add("another"));
    EXPECT_EQ("more than 100000", values.countText());
    EXPECT_TRUE(values.add("P0"));
    EXPECT_EQ("more than 100000", values.countText());
}

TEST(DistinctValuesTest, LongTextsDoNotFillTheMemory)
{
    DistinctValues values;
    for (char last = 'a'; last <= 'z'; ++last)
        values.add(std::string(DistinctValues::kMostBytes / 8, 'x') + last);

    EXPECT_EQ("more than 7", values.countText());
}
}
