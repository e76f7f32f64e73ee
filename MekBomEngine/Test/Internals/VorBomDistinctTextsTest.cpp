#include "VorBomDistinctTexts.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace
{
VorString numbered(int number)
{
    return VorString((L"text " + std::to_wstring(number)).c_str());
}
}

TEST(VorBomDistinctTextsTest, TextsAreNumberedAsTheyAreMet)
{
    const VorString first(L"S235");
    const VorString second(L"S355");
    VorBomDistinctTexts distinct;
    EXPECT_TRUE(distinct.texts().empty());

    EXPECT_EQ(0U, distinct.indexOf(first));
    EXPECT_EQ(1U, distinct.indexOf(second));
    EXPECT_EQ(0U, distinct.indexOf(first));

    EXPECT_EQ((std::vector<const VorString*>{ &first, &second }), distinct.texts());
}

TEST(VorBomDistinctTextsTest, EqualTextsInBlocksOfTheirOwnAreOne)
{
    const VorString first(L"S235");
    const VorString same(L"S235");
    const VorString sharing(first);
    VorBomDistinctTexts distinct;

    EXPECT_EQ(0U, distinct.indexOf(first));
    EXPECT_EQ(0U, distinct.indexOf(same));
    EXPECT_EQ(0U, distinct.indexOf(sharing));

    ASSERT_EQ(1U, distinct.texts().size());
    EXPECT_EQ(&first, distinct.texts().front()) << "the first one met stands for all";
}

TEST(VorBomDistinctTextsTest, TextsThatDifferLittleAreDifferent)
{
    const VorString texts[] = { VorString(),           VorString(L" "),    VorString(L"a"),  VorString(L"A"),
                                VorString(L"aa"),      VorString(L"ab"),   VorString(L"ba"), VorString(L"a\0b", 3),
                                VorString(L"a\0c", 3), VorString(L"\0", 1) };
    VorBomDistinctTexts distinct;
    std::uint32_t number = 0;
    for (const VorString& text : texts)
        EXPECT_EQ(number++, distinct.indexOf(text)) << text;
    EXPECT_EQ(0U, distinct.indexOf(VorString(texts[2]).left(0)));
}

TEST(VorBomDistinctTextsTest, ManyTextsKeepTheirNumbersWhileTheTableGrows)
{
    const int numTexts = 20000;
    std::vector<VorString> texts;
    for (int i = 0; i < numTexts; ++i)
        texts.push_back(numbered(i));
    VorBomDistinctTexts distinct;

    for (int i = 0; i < numTexts; ++i)
    {
        ASSERT_EQ(static_cast<std::uint32_t>(i), distinct.indexOf(texts[static_cast<std::size_t>(i)]));
        ASSERT_EQ(static_cast<std::uint32_t>(i / 2), distinct.indexOf(texts[static_cast<std::size_t>(i / 2)]));
    }
    std::vector<VorString> copies;
    for (int i = numTexts; i-- > 0;)
    {
        copies.push_back(numbered(i));
        ASSERT_EQ(static_cast<std::uint32_t>(i), distinct.indexOf(copies.back())) << "found by its characters";
    }
    EXPECT_EQ(static_cast<std::size_t>(numTexts), distinct.texts().size());
}

TEST(VorBomDistinctTextsTest, RandomColumnsAreNumberedAsAMapDoes)
{
    std::mt19937 random(5);
    for (int round = 0; round < 100; ++round)
    {
        const auto numDifferent = 1 + random() % 400;
        std::vector<VorString> column;
        for (int i = 0; i < 1000; ++i)
            column.push_back(i > 0 && random() % 2 == 0 ? column[random() % column.size()] // shares its text
                                                        : numbered(static_cast<int>(random() % numDifferent)));
        VorBomDistinctTexts distinct;
        std::map<std::wstring, std::uint32_t> expected;
        for (const VorString& text : column)
        {
            const auto number = static_cast<std::uint32_t>(expected.size());
            ASSERT_EQ(expected.emplace(text.getStringW(), number).first->second, distinct.indexOf(text));
        }
        ASSERT_EQ(expected.size(), distinct.texts().size());
    }
}
