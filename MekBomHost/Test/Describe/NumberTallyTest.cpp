#include "NumberTally.h"

#include <gtest/gtest.h>

#include <cmath>

namespace mekbom
{
TEST(NumberTallyTest, RowsAndPiecesAreAddedUpApart)
{
    NumberTally lengths;
    lengths.add(3185, 0, 4);
    lengths.add(240.5, 1, 16);

    EXPECT_EQ(2u, lengths.count());
    EXPECT_EQ(240.5, lengths.smallest());
    EXPECT_EQ(3185, lengths.largest());
    EXPECT_EQ(3425.5, lengths.sum());
    EXPECT_EQ(16588, lengths.sumOfPieces());
    EXPECT_EQ(1, lengths.numDecimals());
}

TEST(NumberTallyTest, AMillionNumbersAddUpWithoutARest)
{
    NumberTally weights;
    for (int i = 0; i < 1000000; ++i)
        weights.add(0.1, 1, 3);

    EXPECT_EQ(100000.0, std::round(weights.sum() * 1e9) / 1e9);
    EXPECT_EQ(300000.0, std::round(weights.sumOfPieces() * 1e9) / 1e9);
}

TEST(NumberTallyTest, NegativeNumbersAreSmall)
{
    NumberTally levels;
    levels.add(-3000, 0, 1);

    EXPECT_EQ(-3000, levels.smallest());
    EXPECT_EQ(-3000, levels.largest());
}

TEST(NumberTallyTest, ASumMayBeInfinite)
{
    NumberTally numbers;
    numbers.add(1e308, 0, 20);
    numbers.add(-1e308, 0, 1);

    EXPECT_EQ(0, numbers.sum());
    EXPECT_TRUE(std::isinf(numbers.sumOfPieces()));
}
}
