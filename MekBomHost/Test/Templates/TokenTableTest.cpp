#include "TokenTable.h"

#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace mekbom
{
namespace
{
std::string linesFor(const std::string& word)
{
    const std::string text = TokenTable::textOf(word);
    return text.substr(0, text.find("\n\n") + 1);
}
}

TEST(TokenTableTest, ALineSaysWhatATokenCarriesAndHowItIsSorted)
{
    EXPECT_EQ("Token  Value  Order    Kind\n"
              "%PNum  text   natural\n",
              linesFor("%PNum"));
    EXPECT_EQ("Token      Value  Order  Kind\n"
              "%Material  text   plain\n",
              linesFor("mater"));
    EXPECT_EQ("Token         Value   Order   Kind\n"
              "%WeightMeter  number  number  weight-per-length\n",
              linesFor("WEIGHTM"));
    EXPECT_EQ("Token         Value         Order   Kind\n"
              "%BarQuantity  whole number  number\n",
              linesFor("%barq"));
}

TEST(TokenTableTest, ATokenThatBeginsAsManyDoIsFoundByEach)
{
    EXPECT_EQ("Token         Value  Order  Kind\n"
              "%UserAttr...  text   plain\n",
              linesFor("%UserAttr7"));
    EXPECT_EQ(linesFor("%UserAttr7"), linesFor("userattr"));
}

TEST(TokenTableTest, EveryTokenOfTheCatalogueIsListedOnce)
{
    const std::string text = TokenTable::textOf("");
    const auto numTokens = VorBomTokenCatalogue::end() - VorBomTokenCatalogue::begin();

    EXPECT_EQ(numTokens, static_cast<long>(TokenTable::names().size()));
    for (const std::string& name : TokenTable::names())
    {
        EXPECT_NE(nullptr, VorBomTokenCatalogue::find(Utf8::toWide(name))) << name;
        EXPECT_NE(std::string::npos, text.find("\n" + name)) << name;
    }
    const std::string lines = linesFor("");
    EXPECT_EQ(numTokens + 1, std::count(lines.begin(), lines.end(), '\n'));
}

TEST(TokenTableTest, WithoutATokenThereIsNoTable)
{
    EXPECT_EQ("", TokenTable::textOf("xyzzy"));
    EXPECT_EQ("", TokenTable::textOf("%Weight "));
}
}
