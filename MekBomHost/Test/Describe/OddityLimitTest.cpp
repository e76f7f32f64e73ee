#include "OddityLimit.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(OddityLimitTest, OneMoreThanAreToldExceedsIt)
{
    OddityLimit limit;
    for (std::size_t i = 0; i < OddityLimit::kMostTold; ++i)
        EXPECT_TRUE(limit.takeOne());

    EXPECT_FALSE(limit.isExceeded());
    EXPECT_FALSE(limit.takeOne());
    EXPECT_FALSE(limit.takeOne());
    EXPECT_TRUE(limit.isExceeded());
}
}
