#include "MekRoots/Exp/VorUnitsTransformArray.h"

#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitDefinition.h"

#include <string>
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

TEST(VorUnitsTransformArrayTest, EveryKindIsListedOnceInTheOrderOfTheNumbers)
{
    for (int i = 0; i < Systems::kNumSystems; ++i)
    {
        EXPECT_EQ(i, Systems::indexOf(Systems::kSystems[i]));
        EXPECT_NE(nullptr, Systems::findUnitOfModel(Systems::kSystems[i]));
        EXPECT_TRUE(i == 0 || Systems::kSystems[i - 1] < Systems::kSystems[i]);
    }
    for (int i = 0; i < Systems::numUnits(); ++i)
        EXPECT_NE(-1, Systems::indexOf(Systems::unitAt(i).system)) << Systems::unitAt(i).number;
    EXPECT_EQ(-1, Systems::indexOf(static_cast<Systems::eSystems>(3)));
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
}
