#include "RepeatedTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
VorString textOf(std::size_t i)
{
    return VorString(std::to_wstring(i).c_str());
}
}

TEST(RepeatedTextsTest, CopiesHaveOneNumber)
{
    RepeatedTexts shared;
    const VorString steel(L"S235");
    const VorString copy = steel;

    EXPECT_EQ(0U, shared.numberOf(steel));
    EXPECT_EQ(1U, shared.numberOf(L"Träger"));
    EXPECT_EQ(0U, shared.numberOf(copy));
    EXPECT_EQ("S235", shared.text(0).view());
    EXPECT_TRUE(shared.text(0).isPlain);
    EXPECT_EQ("Tr\xC3\xA4ger", shared.text(1).view());
    EXPECT_FALSE(shared.text(1).isPlain);
}

TEST(RepeatedTextsTest, TheFirstTextsHaveNumbersAndKeepThem)
{
    RepeatedTexts shared;
    std::vector<VorString> texts;
    for (std::size_t i = 0; i < RepeatedTexts::kMostTexts + 10; ++i)
        texts.push_back(textOf(i));

    for (int round = 0; round < 3; ++round)
        for (std::size_t i = 0; i < texts.size(); ++i)
            ASSERT_EQ(i < RepeatedTexts::kMostTexts ? i : RepeatedTexts::kNone, shared.numberOf(texts[i]));
    for (std::size_t i = 0; i < RepeatedTexts::kMostTexts; ++i)
        EXPECT_EQ(std::to_string(i), shared.text(i).view());
}

TEST(RepeatedTextsTest, ATextThatIsGoneIsNotTakenForAnother)
{
    RepeatedTexts shared;
    for (std::size_t i = 0; i < 100; ++i) // each may come to lie where the one before was
        ASSERT_EQ(i, shared.numberOf(textOf(i)));
}

TEST(RepeatedTextsTest, AColumnOfDifferentTextsIsGivenUp)
{
    RepeatedTexts shared;
    const VorString first = textOf(0);
    shared.numberOf(first);
    for (std::size_t i = 1; i < 2000; ++i)
        shared.numberOf(textOf(i));

    EXPECT_EQ(RepeatedTexts::kNone, shared.numberOf(first));
    EXPECT_EQ("0", shared.text(0).view()) << "what has its number can still be read";
}

TEST(RepeatedTextsTest, AColumnThatFindsItsTextsAgainIsNotGivenUp)
{
    RepeatedTexts shared;
    const VorString first = textOf(0);
    for (std::size_t i = 1; i < 5000; ++i)
    {
        ASSERT_EQ(0U, shared.numberOf(first));
        if (i % 2 == 0)
            shared.numberOf(textOf(i));
    }
}
}
