#include "TextPool.h"

#include "ByteWord.h"
#include "Utf8.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace mekbom
{
TEST(TextPoolTest, EqualTextsShareTheirCharacters)
{
    TextPool cache;
    const VorString first = cache.textOf("S355J2");
    cache.textOf("S235JR");

    const VorString second = cache.textOf(std::string("S355") + "J2");

    EXPECT_EQ(VorString(L"S355J2"), second);
    EXPECT_TRUE(first.sharesTextWith(second));
}

TEST(TextPoolTest, EveryTextIsRightHoweverManyThereAre)
{
    TextPool cache;
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 10'000; ++i)
            ASSERT_EQ(std::to_string(i), toUtf8(cache.textOf(std::to_string(i))));
}

TEST(TextPoolTest, UniqueTextsAreNotLookedForButTextsThatComeBackLaterAre)
{
    TextPool cache;
    for (int i = 0; i < 5'000; ++i)
        cache.textOf(std::to_string(i));
    const VorString unshared = cache.textOf("S355J2");
    EXPECT_FALSE(unshared.sharesTextWith(cache.textOf("S355J2")));

    for (int i = 0; i < 100'000; ++i)
        cache.textOf("S235JR");

    const VorString shared = cache.textOf("S355J2");
    EXPECT_TRUE(shared.sharesTextWith(cache.textOf("S355J2")));
}

TEST(TextPoolTest, ManyDifferentTextsAreSharedWhenTheyComeBack)
{
    TextPool cache;
    const VorString first = cache.textOf("B0");
    std::mt19937 random(1);
    for (int i = 0; i < 100'000; ++i)
        cache.textOf("B" + std::to_string(random() % 40'000));

    EXPECT_TRUE(first.sharesTextWith(cache.textOf("B0")));
}

TEST(TextPoolTest, TextsOfAnyLengthAreToldApart)
{
    const std::string text = "\xC3\x84nderung am Tr\xC3\xA4ger, gr\xC3\xBCn";
    TextPool cache;
    for (int round = 0; round < 2; ++round)
        for (std::size_t length = 1; length <= text.size(); ++length)
        {
            const std::string other = std::string(length - 1, 'x') + "y";
            ASSERT_EQ(Utf8::toWide(text.substr(0, length)), cache.textOf(text.substr(0, length)));
            ASSERT_EQ(other, toUtf8(cache.textOf(other)));
            ASSERT_EQ("z" + other, toUtf8(cache.textOf("z" + other)));
        }
}

TEST(TextPoolTest, LongTextsAreShared)
{
    TextPool cache;
    for (const char* const text : { "a text of many words", "S355J2+N/Tr\xC3\xA4ger" })
    {
        const VorString first = cache.textOf(text);
        EXPECT_TRUE(first.sharesTextWith(cache.textOf(std::string(text)))) << text;
    }
}

// Looked up in steps, as many texts at once are.
TEST(TextPoolTest, TextsStayWhereTheyAreUntilMoreAreAnnounced)
{
    TextPool cache;
    cache.prepare(1000);
    ASSERT_TRUE(cache.isLooking());
    const VorString& first = cache.find(ByteWord::of("S355J2"));
    for (int i = 1; i < 1000; ++i)
        cache.find(std::to_string(i));

    EXPECT_EQ("S355J2", toUtf8(first));
    EXPECT_EQ(&first, &cache.find("S355J2"));
}
}
