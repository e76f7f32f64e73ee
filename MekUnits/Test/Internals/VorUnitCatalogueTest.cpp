#include "VorUnitCatalogue.h"

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{
using Systems = VorUnitsTransformArray;

int unitOf(Systems::eSystems system, const wchar_t* symbol)
{
    int unit = -1;
    const int isFound = Systems::findUnit(system, symbol, unit);
    EXPECT_EQ(isFound, unit != -1 ? 1 : 0);
    return unit;
}

std::vector<std::wstring> namesOf(const VorUnitDefinition& unit)
{
    VorStringArray pieces;
    VorString::getTokens(unit.names, pieces, L",");
    std::vector<std::wstring> names;
    for (const VorString& piece : pieces)
        names.push_back(piece.getStringW() + (piece.find(L" ", 0) == 0 ? 1 : 0));
    return names;
}

// Whatever is written in a cell or on the command line says which unit, and thereby which kind, is meant.
TEST(VorUnitCatalogueTest, NumbersSymbolsAndNamesOfTheCatalogueAreUnique)
{
    std::set<int> numbers;
    std::set<std::wstring> words;
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
    {
        EXPECT_TRUE(numbers.insert(unit.number).second) << unit.number;
        EXPECT_TRUE(words.insert(unit.symbol).second) << unit.number;
        const bool isSpelledTwice = std::wstring(unit.symbol) != unit.asciiSymbol;
        EXPECT_EQ(isSpelledTwice, words.insert(unit.asciiSymbol).second) << unit.number;
        for (const std::wstring& name : namesOf(unit))
        {
            EXPECT_TRUE(words.insert(name).second) << unit.number;
            EXPECT_EQ(unit.number, unitOf(unit.system, name.c_str()));
        }
    }
}

TEST(VorUnitCatalogueTest, TheCatalogueIsListedByIndex)
{
    EXPECT_EQ(static_cast<int>(std::size(VorUnitCatalogue::kUnits)), Systems::numUnits());
    for (int i = 0; i < Systems::numUnits(); ++i)
        EXPECT_EQ(VorUnitCatalogue::kUnits[i].number, Systems::unitAt(i).number);
}

TEST(VorUnitCatalogueTest, EveryRowOfTheCatalogueIsFoundAndWithinTheRangesOfItsParts)
{
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
    {
        EXPECT_EQ(unit.number, unitOf(unit.system, unit.symbol));
        EXPECT_EQ(unit.number, unitOf(unit.system, unit.asciiSymbol));
        EXPECT_EQ(&unit, VorUnitCatalogue::findUnit(unit.number));
        EXPECT_GE(unit.numerator, 1U);
        EXPECT_GE(unit.denominator, 1U);
        EXPECT_LE(unit.numerator, VorUnitDefinition::kLargestFactor);
        EXPECT_LE(unit.denominator, VorUnitDefinition::kLargestFactor);
        EXPECT_NE(0, unit.number);
        EXPECT_TRUE(unit.format >= 0 && unit.format <= 1256) << unit.number;
        EXPECT_NE(0, *unit.source) << unit.number;
    }
}

TEST(VorUnitCatalogueTest, AsciiSymbolsAreAscii)
{
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
        for (const wchar_t* p = unit.asciiSymbol; *p != 0; ++p)
            EXPECT_TRUE(*p > L' ' && *p < 127) << unit.number;
}

TEST(VorUnitCatalogueTest, EveryKindKeepsToItsRangeOfNumbers)
{
    const std::pair<Systems::eSystems, std::pair<int, int>> kRanges[] = {
        { Systems::kDistance, { 1, 999 } },
        { Systems::kWeight, { 1000, 1999 } },
        { Systems::kAngle, { 2000, 2999 } },
        { Systems::kArea, { 3000, 3999 } },
        { Systems::kWeightPerDistance, { 4000, 4099 } },
        { Systems::kAreaPerDistance, { 4100, 4199 } },
        { Systems::kDensity, { 7000, 7999 } },
    };
    for (const auto& [system, range] : kRanges)
        for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
            EXPECT_EQ(unit.system == system, unit.number >= range.first && unit.number <= range.second) << unit.number;
}
}
