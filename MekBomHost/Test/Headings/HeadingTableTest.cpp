#include "HeadingTable.h"

#include "HeadingKey.h"
#include "TokenNames.h"
#include "UnitWord.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// "is %Weight", "usually %PNum, %MNum"; empty for a heading that the table has not.
std::string meaningOf(const char* pHeading)
{
    const char* const names[] = { "is ", "usually ", "may be ", "either ", "all pieces: ", "one or all pieces: " };
    const HeadingEntry* const pEntry = HeadingTable::find(pHeading);
    return pEntry == nullptr ? "" : names[pEntry->meaning] + std::string(pEntry->tokens);
}

bool isKnown(const std::string& token)
{
    return token == TokenNames::kHandle || token == TokenNames::kParent ||
           VorBomTokenCatalogue::find(Utf8::toWide(token)) != nullptr;
}
}

TEST(HeadingTableTest, HeadingsOfFourLanguagesAreFound)
{
    for (const char* const heading : { "Profile", "PROFIL", "profiel", "Profil\u00E9", "profile ", "Section" })
        EXPECT_EQ("is %Name", meaningOf(heading)) << heading;
    for (const char* const heading : { "Grade", "Werkstoff", "Kwaliteit", "Nuance", "Stahlguete" })
        EXPECT_EQ("is %Material", meaningOf(heading)) << heading;
    for (const char* const heading : { "Qty", "Qty.", "Anzahl", "St\u00FCck", "STUECK", "Aantal", "Quantit\u00E9" })
        EXPECT_EQ("is %Quantity", meaningOf(heading)) << heading;
    for (const char* const heading : { "Length", "L\u00E4nge", "Laenge", "Lengte", "Longueur" })
        EXPECT_EQ("is %Length", meaningOf(heading)) << heading;
    for (const char* const heading : { "Weight", "Gewicht", "Poids", "kg", "Weight/pc", "Einzelgewicht" })
        EXPECT_EQ("is %Weight", meaningOf(heading)) << heading;
}

TEST(HeadingTableTest, TotalsAreNeverOfOnePiece)
{
    for (const char* const heading :
         { "Total weight", "Weight total", "Weight (total)", "TOTAL WEIGHT", "Gesamtgewicht", "Ges.-Gew.",
           "Gewicht gesamt", "Totaalgewicht", "Poids total", "Total kg" })
        EXPECT_EQ("all pieces: %Weight", meaningOf(heading)) << heading;
    for (const char* const heading : { "Total length", "Gesamtl\u00E4nge", "Totale lengte", "Longueur totale" })
        EXPECT_EQ("one or all pieces: %Length", meaningOf(heading)) << heading;
}

TEST(HeadingTableTest, WhatIsOpenNamesAllMeanings)
{
    EXPECT_EQ("usually %PNum, %MNum", meaningOf("Mark"));
    EXPECT_EQ("usually %PNum, %Num", meaningOf("Pos."));
    EXPECT_EQ("may be %PNum, %Num", meaningOf("Position"));
    EXPECT_EQ("either %Weight, %WeightMeter", meaningOf("Unit weight"));
}

TEST(HeadingTableTest, NamesOfTokensAreHeadings)
{
    EXPECT_EQ("is %BoltName", meaningOf("bolt name"));
    EXPECT_EQ("is %ObjectTopLevel", meaningOf("Object top level"));
    EXPECT_EQ("", meaningOf("UserAttr")); // begins others, and is none itself
}

TEST(HeadingTableTest, OthersAreNot)
{
    for (const char* const heading : { "", "Cost code", "Net weight", "L", "Weight %", "Total", "Unit", "Weight 2" })
        EXPECT_EQ("", meaningOf(heading)) << heading;
}

TEST(HeadingTableTest, NoTwoEntriesShareAHeading)
{
    std::map<std::string, const HeadingEntry*> entries;
    for (const HeadingEntry& entry : HeadingTable::all())
        for (const char* const pHeadings : entry.headings)
            for (const std::string& heading : HeadingTable::split(pHeadings))
                EXPECT_EQ(&entry, entries.emplace(headingKey(heading), &entry).first->second) << heading;
}

TEST(HeadingTableTest, EveryTokenIsKnownAndEveryUnitIsOne)
{
    for (const HeadingEntry& entry : HeadingTable::all())
    {
        for (const std::string& token : HeadingTable::split(entry.tokens))
            EXPECT_TRUE(isKnown(token)) << token;
        EXPECT_TRUE(entry.tokenByUnit[0] == '\0' || isKnown(entry.tokenByUnit)) << entry.tokenByUnit;
        EXPECT_TRUE(entry.unit[0] == '\0' || UnitWord::of(entry.unit).symbol == entry.unit) << entry.unit;
    }
}

// A heading that is the name of a token has to mean that token, as it always has.
TEST(HeadingTableTest, NoHeadingTakesTheNameOfAToken)
{
    for (const auto* pToken = VorBomTokenCatalogue::begin(); pToken != VorBomTokenCatalogue::end(); ++pToken)
        if (!pToken->isPrefix)
        {
            const std::string token = Utf8::toBytes(pToken->name);
            EXPECT_EQ("is " + token, meaningOf(token.substr(1).c_str()));
        }
}

TEST(HeadingTableTest, TheTableIsListedByTokenAndLanguage)
{
    const std::string text = HeadingTable::textOf("profiel");

    EXPECT_EQ(0u, text.find("Token  Language  Headings\n%Name  Dutch     Profiel, Profielnaam\n\n")) << text;
    EXPECT_NE(std::string::npos, HeadingTable::textOf("%PNum").find("%PNum, or %MNum"));
    EXPECT_NE(std::string::npos, HeadingTable::textOf("Gesamtgewicht").find("%Weight of all pieces"));
    EXPECT_EQ("", HeadingTable::textOf("xyzzy"));
    const std::string all = HeadingTable::textOf("");
    for (const HeadingEntry& entry : HeadingTable::all())
        for (const char* const pHeadings : entry.headings)
            EXPECT_NE(std::string::npos, all.find(pHeadings)) << pHeadings;
}

TEST(HeadingTableTest, GuessesAreMadeOfWhatIsCertain)
{
    const std::vector<std::string>& certain = HeadingTable::certain();

    EXPECT_NE(certain.end(), std::find(certain.begin(), certain.end(), "Werkstoff"));
    EXPECT_EQ(certain.end(), std::find(certain.begin(), certain.end(), "Total weight"));
    EXPECT_EQ(certain.end(), std::find(certain.begin(), certain.end(), "Position"));
}
}
