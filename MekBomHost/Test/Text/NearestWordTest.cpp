#include "NearestWord.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const std::vector<std::string> kVerbs = { "report", "demo", "units", "tokens", "new-list", "check" };
const std::vector<std::string> kTokens = { "%Name",  "%MName", "%Length", "%Level",   "%Weight",
                                           "%Width", "%PNum",  "%PosNum", "%Quantity" };

struct Slip
{
    const char* word;
    const char* nearest;
};
}

TEST(NearestWordTest, OneSlipIsFoundWhateverItIs)
{
    for (const Slip& slip : { Slip{ "reprot", "report" }, Slip{ "repot", "report" }, Slip{ "reports", "report" },
                              Slip{ "rebort", "report" }, Slip{ "report", "report" }, Slip{ "unit", "units" },
                              Slip{ "newlist", "new-list" }, Slip{ "dmeo", "demo" } })
        EXPECT_EQ(slip.nearest, NearestWord::of(slip.word, kVerbs)) << slip.word;
}

TEST(NearestWordTest, LettersInTheWrongCaseAreHardlySlips)
{
    for (const Slip& slip : { Slip{ "length", "%Length" }, Slip{ "LENGTH", "%Length" }, Slip{ "%Wieght", "%Weight" },
                              Slip{ "%posNum", "%PosNum" }, Slip{ "%WIEGHT", "%Weight" }, Slip{ "NAME", "%Name" },
                              Slip{ "QUANTITY", "%Quantity" } })
        EXPECT_EQ(slip.nearest, NearestWord::of(slip.word, kTokens)) << slip.word;
}

TEST(NearestWordTest, TheCaseDecidesBetweenEquallyNearWords)
{
    EXPECT_EQ("Mass", NearestWord::of("Mas", { "mass", "Mass", "MASS" }));
}

TEST(NearestWordTest, OfEquallyNearWordsTheFirstIsMeant)
{
    EXPECT_EQ("port", NearestWord::of("pxrt", { "port", "part", "pert" }));
    EXPECT_EQ("pert", NearestWord::of("pxrt", { "pert", "part", "port" }));
}

TEST(NearestWordTest, WhatIsFarFromAllIsNone)
{
    for (const char* const word : { "", "x", "rep", "beams", "print", "repotrs-of", "%Mass" })
        EXPECT_EQ("", NearestWord::of(word, kVerbs)) << word;
    EXPECT_EQ("", NearestWord::of("report", {}));
    EXPECT_EQ("", NearestWord::of("", { "", "a" }));
    EXPECT_EQ("", NearestWord::of("a", { "b" }));
}

TEST(NearestWordTest, OneSlipInThreeCharactersIsNear)
{
    EXPECT_EQ("abc", NearestWord::of("abx", { "abc" }));
    EXPECT_EQ("", NearestWord::of("axx", { "abc" }));
    EXPECT_EQ("abcdef", NearestWord::of("abxdex", { "abcdef" }));
    EXPECT_EQ("", NearestWord::of("xbxdex", { "abcdef" }));
}

TEST(NearestWordTest, AWordIsNotGivenUpBeforeTwoLettersAreSwapped)
{
    EXPECT_EQ("abcdfegh", NearestWord::of("bacdefgh", { "abcdfegh" }));
    EXPECT_EQ("bca", NearestWord::of("bac", { "xyz", "bca", "cab" }));
}

TEST(NearestWordTest, LongWordsAreNearNothing)
{
    const std::string longest(NearestWord::kLongest, 'a');
    const std::string longer(NearestWord::kLongest + 1, 'a');

    EXPECT_EQ(longest, NearestWord::of(longest, { longer, longest }));
    EXPECT_EQ("", NearestWord::of(longer, { longer, longest }));
    EXPECT_EQ("", NearestWord::of(std::string(1'000'000, 'a'), { longest }));
}

TEST(NearestWordTest, TheQuestionNamesTheWord)
{
    EXPECT_EQ("did you mean \"report\"?", NearestWord::question("reprot", kVerbs));
    EXPECT_EQ("did you mean \"%Length?\"?", NearestWord::question("%Length", { "%Length\x1B" }));
    EXPECT_EQ("", NearestWord::question("beams", kVerbs));
}
}
