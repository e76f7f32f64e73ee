#include "UnitWord.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
struct WordCase
{
    const char* text;
    const char* symbol;
    bool isPerPiece;
};

const WordCase kWords[] = {
    { "kg", "kg", false },
    { "KG", "kg", false },
    { " Kg. ", "kg", false },
    { "mm", "mm", false },
    { "MM", "mm", false },
    { "lbs", "lbs", false },
    { "m^2", "m2", false },
    { "m\u00B2", "m\u00B2", false },
    { "qm", "m2", false },
    { "kg/m", "kg/m", false },
    { "kg/lfm", "kg/m", false },
    { "short ton", "short ton", false },
    { "kg/pc", "kg", true },
    { "kg/Stk.", "kg", true },
    { "kg each", "kg", true },
    { "kg per piece", "kg", true },
    { "kg/St\u00FCck", "kg", true },
    { "KG / PC", "kg", true },
    { "EUR", "", false },
    { "", "", false },
    { "ton", "", false }, // any of three
    { "each", "", false },
    { "/pc", "", false },
};
}

TEST(UnitWordTest, UnitsAreFoundAsPeopleWriteThem)
{
    for (const WordCase& test : kWords)
    {
        const UnitWord word = UnitWord::of(test.text);
        EXPECT_EQ(test.symbol, word.symbol) << test.text;
        EXPECT_EQ(test.isPerPiece, word.isPerPiece && !word.symbol.empty()) << test.text;
    }
}

TEST(UnitWordTest, TheKindIsThatOfTheUnit)
{
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, UnitWord::of("KG/pc").kind);
    EXPECT_EQ(VorBomTemplateUnits::kWeightPerDistanceUnit, UnitWord::of("kg/ml").kind);
    EXPECT_EQ(VorBomTemplateUnits::kNoUnit, UnitWord::of("pcs").kind);
}

TEST(UnitWordTest, PiecesAreNoUnitButKnown)
{
    for (const char* const text : { "pcs", "Stk.", "St\u00FCck", "stuks", "PC" })
    {
        EXPECT_TRUE(UnitWord::of(text).isPieces) << text;
        EXPECT_TRUE(UnitWord::of(text).isKnown()) << text;
        EXPECT_EQ("", UnitWord::of(text).symbol) << text;
    }
    EXPECT_FALSE(UnitWord::of("kg/pc").isPieces);
    EXPECT_FALSE(UnitWord::of("EUR").isKnown());
}
}
