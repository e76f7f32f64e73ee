#include "VorBits.h"

#include <gtest/gtest.h>

TEST(VorBitsTest, LowestBitIsFoundBelowAllOthers)
{
    constexpr std::uint64_t kHighest = std::uint64_t{ 1 } << 63;
    for (int bit = 0; bit < 64; ++bit)
    {
        const std::uint64_t alone = std::uint64_t{ 1 } << bit;

        EXPECT_EQ(bit, VorBits::lowestBit(alone));
        EXPECT_EQ(bit, VorBits::lowestBit(alone | kHighest));
        EXPECT_EQ(bit, VorBits::lowestBit(~(alone - 1)));
    }
}

TEST(VorBitsTest, HighestBitIsFoundAboveAllOthers)
{
    for (int bit = 0; bit < 64; ++bit)
    {
        const std::uint64_t alone = std::uint64_t{ 1 } << bit;

        EXPECT_EQ(bit, VorBits::highestBit(alone));
        EXPECT_EQ(bit, VorBits::highestBit(alone | 1));
        EXPECT_EQ(bit, VorBits::highestBit(alone | (alone - 1)));
    }
}
