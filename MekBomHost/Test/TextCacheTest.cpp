#include "TextCache.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(TextCacheTest, EqualTextsShareTheirCharacters)
{
    TextCache cache;
    const VorString first = cache.textOf("S355J2");
    cache.textOf("S235JR");

    const VorString second = cache.textOf(std::string("S355") + "J2");

    EXPECT_EQ(VorString(L"S355J2"), second);
    EXPECT_TRUE(first.sharesTextWith(second));
}

TEST(TextCacheTest, EveryTextIsRightHoweverManyThereAre)
{
    TextCache cache;
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 10'000; ++i)
            ASSERT_EQ(std::to_string(i), toUtf8(cache.textOf(std::to_string(i))));
}

TEST(TextCacheTest, UniqueTextsAreNotLookedForButTextsThatComeBackLaterAre)
{
    TextCache cache;
    for (int i = 0; i < 5'000; ++i)
        cache.textOf(std::to_string(i));
    const VorString unshared = cache.textOf("S355J2");
    EXPECT_FALSE(unshared.sharesTextWith(cache.textOf("S355J2")));

    for (int i = 0; i < 100'000; ++i)
        cache.textOf("S235JR");

    const VorString shared = cache.textOf("S355J2");
    EXPECT_TRUE(shared.sharesTextWith(cache.textOf("S355J2")));
}
}
