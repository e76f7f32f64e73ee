#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitCatalogue.h"

#include <numeric>
#include <set>
#include <utility>

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

TEST(VorUnitsTransformArrayTest, KindsHaveTheNumbersThatClientsPass)
{
    EXPECT_EQ(0, Systems::kDistance);
    EXPECT_EQ(1, Systems::kAngle);
    EXPECT_EQ(2, Systems::kWeight);
    EXPECT_EQ(4, Systems::kArea);
    EXPECT_EQ(8, Systems::kWeightPerDistance);
    EXPECT_EQ(9, Systems::kAreaPerDistance);
    EXPECT_EQ(15, Systems::kDensity);
}

TEST(VorUnitsTransformArrayTest, UnitsAreFoundByPrintedAndAsciiSymbols)
{
    EXPECT_EQ(3, unitOf(Systems::kDistance, L"mm"));
    EXPECT_EQ(11, unitOf(Systems::kDistance, L"ft"));
    EXPECT_EQ(13, unitOf(Systems::kDistance, L"ft-in"));
    EXPECT_EQ(1009, unitOf(Systems::kWeight, L"kg"));
    EXPECT_EQ(2006, unitOf(Systems::kAngle, L"deg"));
    EXPECT_EQ(2006, unitOf(Systems::kAngle, L"\u00B0"));
    EXPECT_EQ(3003, unitOf(Systems::kArea, L"m2"));
    EXPECT_EQ(3003, unitOf(Systems::kArea, L"m\u00B2"));
    EXPECT_EQ(3011, unitOf(Systems::kArea, L"ft2"));
    EXPECT_EQ(4000, unitOf(Systems::kWeightPerDistance, L"kg/m"));
    EXPECT_EQ(4111, unitOf(Systems::kAreaPerDistance, L"ft2/ft"));
    EXPECT_EQ(7001, unitOf(Systems::kDensity, L"kg/m3"));
}

TEST(VorUnitsTransformArrayTest, OtherSymbolsAndOtherKindsAreNotFound)
{
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L"kg"));
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L"MM"));
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L" mm"));
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L""));
    EXPECT_EQ(-1, unitOf(Systems::kArea, L"m"));
}

TEST(VorUnitsTransformArrayTest, NumbersAndSymbolsOfTheCatalogueAreUnique)
{
    std::set<int> numbers;
    std::set<std::pair<int, std::wstring>> symbols;
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
    {
        EXPECT_TRUE(numbers.insert(unit.number).second) << unit.number;
        EXPECT_TRUE(symbols.insert({ unit.system, unit.symbol }).second) << unit.number;
        const bool isSpelledTwice = std::wstring(unit.symbol) != unit.asciiSymbol;
        EXPECT_EQ(isSpelledTwice, symbols.insert({ unit.system, unit.asciiSymbol }).second) << unit.number;
    }
}

TEST(VorUnitsTransformArrayTest, EveryRowOfTheCatalogueIsFoundAndWithinTheRangesOfItsParts)
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
    }
}

TEST(VorUnitsTransformArrayTest, AsciiSymbolsAreAscii)
{
    for (const VorUnitDefinition& unit : VorUnitCatalogue::kUnits)
        for (const wchar_t* p = unit.asciiSymbol; *p != 0; ++p)
            EXPECT_TRUE(*p > L' ' && *p < 127) << unit.number;
}

TEST(VorUnitsTransformArrayTest, EveryKindKeepsToItsRangeOfNumbers)
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
