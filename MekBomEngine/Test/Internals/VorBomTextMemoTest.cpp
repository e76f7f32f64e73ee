#include "VorBomTextMemo.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace
{
VorString textOf(std::uint64_t key)
{
    return VorString(std::to_wstring(key).c_str());
}

// Looks `key` up and remembers its text if it is not known; whether it was. Fails for the text of another key.
bool look(VorBomTextMemo& memo, std::uint64_t key)
{
    const VorString* pText = memo.find(key);
    if (pText == nullptr)
    {
        memo.remember(key, textOf(key));
        return false;
    }
    EXPECT_EQ(textOf(key), *pText);
    return true;
}
}

TEST(VorBomTextMemoTest, WhatWasRememberedIsFoundAsTheSameText)
{
    VorBomTextMemo memo;
    const VorString text(L"12.5");
    EXPECT_EQ(nullptr, memo.find(7));

    memo.remember(7, text);

    ASSERT_NE(nullptr, memo.find(7));
    EXPECT_TRUE(text.sharesTextWith(*memo.find(7)));
    EXPECT_EQ(nullptr, memo.find(8));
}

TEST(VorBomTextMemoTest, KeyZeroIsAKeyLikeAnyOther)
{
    VorBomTextMemo memo;
    memo.remember(1, textOf(1)); // slots that were never used have key 0

    EXPECT_EQ(nullptr, memo.find(0));
    memo.remember(0, textOf(0));

    ASSERT_NE(nullptr, memo.find(0));
    EXPECT_EQ(textOf(0), *memo.find(0));
}

TEST(VorBomTextMemoTest, AnEmptyTextIsNotRemembered)
{
    VorBomTextMemo memo;

    memo.remember(7, VorString());

    EXPECT_EQ(nullptr, memo.find(7));
}

TEST(VorBomTextMemoTest, AColumnThatRepeatsIsRememberedForEver)
{
    VorBomTextMemo memo;
    std::mt19937 random(1);
    int numKnown = 0;
    for (int i = 0; i < 200000; ++i)
        numKnown += look(memo, random() % 40 * 0x10000001U) ? 1 : 0;
    EXPECT_GE(numKnown, 180000); // two of the forty may share a slot and evict each other
}

TEST(VorBomTextMemoTest, NumbersThatRepeatOneInTwoTimesStayRemembered)
{
    VorBomTextMemo memo;
    int numKnown = 0;
    for (std::uint64_t i = 0; i < 20000; ++i)
        numKnown += look(memo, i / 2) ? 1 : 0;
    EXPECT_EQ(10000, numKnown);
}

TEST(VorBomTextMemoTest, AColumnThatNeverRepeatsIsGivenUp)
{
    const long long before = VorMemoryControllerController::liveBlocks();
    VorBomTextMemo memo;
    for (std::uint64_t key = 1; key <= 5000; ++key)
        EXPECT_FALSE(look(memo, key));

    EXPECT_EQ(before, VorMemoryControllerController::liveBlocks()) << "texts are still held";
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(look(memo, 5000)) << "once given up, nothing is remembered";
}

TEST(VorBomTextMemoTest, AColumnThatCeasesToRepeatIsGivenUpAfterAWhile)
{
    VorBomTextMemo memo;
    for (std::uint64_t i = 0; i < 100000; ++i)
        look(memo, i % 10);
    for (std::uint64_t key = 1000; key < 10000; ++key)
        look(memo, key);

    EXPECT_FALSE(look(memo, 77777));
    EXPECT_FALSE(look(memo, 77777));
}

TEST(VorBomTextMemoTest, AFewNumbersThatDifferAreNoReasonToGiveUp)
{
    VorBomTextMemo memo;
    for (std::uint64_t key = 0; key < 200; ++key) // a short column, or the start of a long one
        look(memo, key);

    look(memo, 77777);
    EXPECT_TRUE(look(memo, 77777));
}

TEST(VorBomTextMemoTest, ClearForgetsAllTextsAndRemembersNewOnes)
{
    const long long before = VorMemoryControllerController::liveBlocks();
    VorBomTextMemo memo;
    memo.clear();
    for (std::uint64_t key = 1; key <= 200; ++key)
        look(memo, key);

    memo.clear();

    EXPECT_EQ(before, VorMemoryControllerController::liveBlocks());
    for (std::uint64_t key = 1; key <= 200; ++key)
        EXPECT_EQ(nullptr, memo.find(key));
    EXPECT_FALSE(look(memo, 5));
    EXPECT_TRUE(look(memo, 5));
}

TEST(VorBomTextMemoTest, AKeyIsNeverAnsweredWithTheTextOfOneThatTookItsPlace)
{
    VorBomTextMemo memo;
    std::mt19937_64 random(2);
    for (int round = 0; round < 50; ++round)
    {
        const std::uint64_t base = random();
        for (int i = 0; i < 4000; ++i) // far more keys than slots, each twice in a row, so that it is never given up
        {
            const std::uint64_t key = base + random() % 3000;
            look(memo, key);
            ASSERT_TRUE(look(memo, key)); // look() compares the texts
        }
    }
}

TEST(VorBomTextMemoTest, ATextRememberedAnewReplacesTheOlder)
{
    VorBomTextMemo memo;
    memo.remember(7, VorString(L"7 mm"));

    memo.remember(7, VorString(L"0.28 in"));

    ASSERT_NE(nullptr, memo.find(7));
    EXPECT_EQ(VorString(L"0.28 in"), *memo.find(7));
}

TEST(VorBomTextMemoTest, AFewHundredNumbersHardlyTakeEachOthersPlaces)
{
    VorBomTextMemo memo;
    std::mt19937_64 random(3);
    std::vector<std::uint64_t> keys;
    for (int i = 0; i < 400; ++i)
        keys.push_back(random());
    int numFound = 0;
    for (int round = 0; round < 10; ++round)
        for (const std::uint64_t key : keys)
        {
            numFound += look(memo, key) ? 1 : 0;
            look(memo, key); // twice in a row, so that it is never given up
        }

    EXPECT_GE(numFound, 9 * 370);
}

TEST(VorBomTextMemoTest, AFewTextsTakeLittleRoom)
{
    VorBomTextMemo memo;
    EXPECT_EQ(0u, memo.bytes());

    memo.remember(1, textOf(1));

    EXPECT_LE(memo.bytes(), 256u);
}

TEST(VorBomTextMemoTest, RoomGrowsWithTheTextsUpToABound)
{
    VorBomTextMemo memo;
    for (std::uint64_t key = 0; key < 100; ++key)
        look(memo, key * 0x123456789);
    EXPECT_GT(memo.bytes(), 1600u);
    EXPECT_LE(memo.bytes(), 16384u);

    for (int round = 0; round < 10; ++round)
        for (std::uint64_t key = 0; key < 100; ++key)
            EXPECT_TRUE(look(memo, key * 0x123456789)) << "nothing is lost while there is room";
    for (std::uint64_t key = 0; key < 400; ++key)
        look(memo, key);
    EXPECT_LE(memo.bytes(), 16384u);
}
