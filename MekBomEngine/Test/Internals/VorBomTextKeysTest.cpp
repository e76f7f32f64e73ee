#include "VorBomTextKeys.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <random>
#include <string>

namespace
{
// -1, 0 or 1 as the keys of two texts tell among all of `texts`.
int orderOfKeys(const std::vector<VorString>& texts, std::size_t first, std::size_t second, bool naturally)
{
    std::vector<const VorString*> pointers;
    for (const VorString& text : texts)
        pointers.push_back(&text);
    const VorBomTextKeys keys(pointers, naturally);
    const std::uint64_t a = keys.of(texts[first]), b = keys.of(texts[second]);
    return a == b ? 0 : a < b ? -1 : 1;
}

int orderOfTwo(const wchar_t* first, const wchar_t* second, bool naturally)
{
    return orderOfKeys({ VorString(first), VorString(second) }, 0, 1, naturally);
}
}

TEST(VorBomTextKeysTest, KeysOrderByCharactersOrNaturally)
{
    EXPECT_EQ(1, orderOfTwo(L"B2", L"B10", false));
    EXPECT_EQ(-1, orderOfTwo(L"B2", L"B10", true));
    EXPECT_EQ(-1, orderOfTwo(L"B", L"B1", true));
    EXPECT_EQ(-1, orderOfTwo(L"B-2", L"B2", true));
    EXPECT_EQ(-1, orderOfTwo(L"B9", L"Ba", true));
    EXPECT_EQ(-1, orderOfTwo(L"B199", L"B1990", true));
    EXPECT_EQ(-1, orderOfTwo(L"", L"B", false));
}

TEST(VorBomTextKeysTest, WhatAllTextsBeginWithTellsNothing)
{
    EXPECT_EQ(-1, orderOfTwo(L"HALL-7/FRAME-B2", L"HALL-7/FRAME-B10", true));
    EXPECT_EQ(-1, orderOfTwo(L"NO-1000000000001", L"NO-1000000000002", false));
    EXPECT_EQ(0, orderOfKeys({ L"HALL-7/FRAME-B2", L"HALL-7/FRAME-B10", L"C" }, 0, 1, true)) << "no longer shared";
}

TEST(VorBomTextKeysTest, WhatDoesNotFitIntoAKeyIsLeftToComparing)
{
    EXPECT_EQ(0, orderOfTwo(L"B02", L"B2", true));
    EXPECT_EQ(0, orderOfTwo(L"B1000000000", L"B2000000000", true));
    EXPECT_EQ(0, orderOfTwo(L"\u0105x", L"\u0106a", false));
    EXPECT_EQ(0, orderOfTwo(L"\u0105x", L"\u00ffz", false));
    EXPECT_EQ(-1, orderOfTwo(L"\u00fe", L"\u00ff", false));
    EXPECT_EQ(0, orderOfKeys({ L"12345678a", L"12345678b", L"x" }, 0, 1, false));
}

TEST(VorBomTextKeysTest, KeysThatDifferTellWhatComparingTells)
{
    const wchar_t kCharacters[] = { L'0', L'0', L'1',      L'2',      L'9',      L'A', L'B',
                                    L'-', L'x', L'\u00fe', L'\u00ff', L'\u0105', 0 };
    std::mt19937 random(9);
    long long numTold = 0;
    for (int round = 0; round < 3000; ++round)
    {
        const bool naturally = round % 2 == 0;
        std::wstring shared;
        for (auto i = random() % 4 * (random() % 4); i > 0; --i)
            shared += kCharacters[random() % 13];
        std::vector<VorString> texts;
        for (auto i = 2 + random() % 6; i > 0; --i)
        {
            std::wstring text = shared;
            for (auto j = random() % 12; j > 0; --j)
                text += kCharacters[random() % 13];
            texts.emplace_back(text.c_str(), static_cast<int>(text.size()));
        }
        for (std::size_t i = 1; i < texts.size(); ++i)
        {
            const int told = orderOfKeys(texts, i - 1, i, naturally);
            const int order = naturally ? VorString::compareWithNumbers(texts[i - 1], texts[i])
                                        : VorString::compare(texts[i - 1], texts[i]);
            if (told == 0)
                continue;
            ASSERT_EQ(order, told) << "round " << round;
            ++numTold;
        }
    }
    EXPECT_GT(numTold, 8000);
}
