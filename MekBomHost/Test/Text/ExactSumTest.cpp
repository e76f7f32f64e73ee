#include "ExactSum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mekbom
{
TEST(ExactSumTest, WhatRoundingTakesAwayIsKept)
{
    ExactSum sum;
    for (int i = 0; i < 3000; ++i)
        for (const double number : { 1e25, 0.001, -1e25 })
            sum.add(number);

    EXPECT_EQ(3.0, static_cast<double>(sum.value()));
    EXPECT_NEAR(6e28, static_cast<double>(sum.size()), 1e13);
}

TEST(ExactSumTest, ASumMayHaveAStart)
{
    ExactSum sum(100);
    sum.add(-0.5);

    EXPECT_EQ(99.5, static_cast<double>(sum.value()));
    EXPECT_EQ(100.5, static_cast<double>(sum.size()));
}

TEST(ExactSumTest, AnInfiniteSumIsInfiniteAndNotUndefined)
{
    ExactSum sum;
    sum.add(std::numeric_limits<double>::infinity());
    sum.add(1);

    EXPECT_TRUE(std::isinf(sum.value()));
}
}
