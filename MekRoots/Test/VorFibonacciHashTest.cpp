#include "VorFibonacciHash.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
// How many of 256 places 128 keys find, each `step` after the one before.
std::size_t numPlaces(std::uint64_t step)
{
    std::set<std::size_t> places;
    for (std::uint64_t i = 1; i <= 128; ++i)
        places.insert(VorFibonacciHash::placeOf(i * step, 8));
    return places.size();
}
}

TEST(VorFibonacciHashTest, PlacesAreWithinTheTable)
{
    for (const std::uint64_t key : { std::uint64_t{ 0 }, std::uint64_t{ 1 }, ~std::uint64_t{ 0 } })
    {
        EXPECT_LT(VorFibonacciHash::placeOf(key, 1), 2u);
        EXPECT_LT(VorFibonacciHash::placeOf(key, 8), 256u);
    }
}

TEST(VorFibonacciHashTest, KeysThatDifferInFewBitsSpread)
{
    EXPECT_GT(numPlaces(1), 100u);
    EXPECT_GT(numPlaces(16), 100u) << "addresses";
    EXPECT_GT(numPlaces(std::uint64_t{ 1 } << 32), 100u) << "single bits in the middle";
    EXPECT_GT(numPlaces(std::uint64_t{ 1 } << 52), 60u) << "doubles of small whole numbers";
}
