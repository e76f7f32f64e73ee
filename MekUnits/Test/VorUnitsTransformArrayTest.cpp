#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitCatalogue.h"

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

TEST(VorUnitsTransformArrayTest, UnitsAreFoundByName)
{
    EXPECT_EQ(11, unitOf(Systems::kDistance, L"foot"));
    EXPECT_EQ(11, unitOf(Systems::kDistance, L"feet"));
    EXPECT_EQ(4011, unitOf(Systems::kWeightPerDistance, L"plf"));
    EXPECT_EQ(7011, unitOf(Systems::kDensity, L"pcf"));
    EXPECT_EQ(1022, unitOf(Systems::kWeight, L"short ton"));
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L"foot, feet"));
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L"foo"));
    EXPECT_EQ(-1, unitOf(Systems::kDistance, L"feets"));
}

TEST(VorUnitsTransformArrayTest, UnitsOfAnyKindAreFoundBySymbolAndNumber)
{
    EXPECT_EQ(3003, Systems::findUnit(L"m2")->number);
    EXPECT_EQ(1009, Systems::findUnit(L"kilograms")->number);
    EXPECT_EQ(nullptr, Systems::findUnit(L"furlong"));
    EXPECT_EQ(nullptr, Systems::findUnit(VorString()));
    EXPECT_EQ(std::wstring(L"lb"), Systems::findUnit(1021)->symbol);
    EXPECT_EQ(nullptr, Systems::findUnit(2));
}

TEST(VorUnitsTransformArrayTest, EveryKindHasItsUnitOfTheModel)
{
    const std::pair<Systems::eSystems, int> kUnits[] = {
        { Systems::kDistance, 3 },
        { Systems::kAngle, 2000 },
        { Systems::kWeight, 1009 },
        { Systems::kArea, 3000 },
        { Systems::kWeightPerDistance, 4001 },
        { Systems::kAreaPerDistance, 4101 },
        { Systems::kDensity, 7000 },
    };
    for (const auto& [system, unit] : kUnits)
        EXPECT_EQ(unit, Systems::findUnitOfModel(system)->number);
    EXPECT_EQ(nullptr, Systems::findUnitOfModel(static_cast<Systems::eSystems>(3)));
}

// Whatever is written in a cell or on the command line says which unit, and thereby which kind, is meant.
TEST(VorUnitsTransformArrayTest, NumbersSymbolsAndNamesOfTheCatalogueAreUnique)
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

TEST(VorUnitsTransformArrayTest, TheCatalogueIsListedByIndex)
{
    EXPECT_EQ(static_cast<int>(std::size(VorUnitCatalogue::kUnits)), Systems::numUnits());
    for (int i = 0; i < Systems::numUnits(); ++i)
        EXPECT_EQ(VorUnitCatalogue::kUnits[i].number, Systems::unitAt(i).number);
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
        EXPECT_TRUE(unit.format >= 0 && unit.format <= 1256) << unit.number;
        EXPECT_NE(0, *unit.source) << unit.number;
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
