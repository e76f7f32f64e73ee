#include "MekRoots/Exp/VorUnitsManager.h"

#include "MekRoots/Test/Support/TestSupport.h"
#include "MekUnits/Src/VorUnitDefinition.h"
#include "MekUnits/Src/VorUnitNotation.h"

#include <utility>

namespace
{
using Systems = VorUnitsTransformArray;
const wchar_t kSourcePath[] = L"MekUnits/Src/VorUnitsManager";

const Systems::eSystems kAllSystems[] = {
    Systems::kDistance,          Systems::kAngle,           Systems::kWeight, Systems::kArea,
    Systems::kWeightPerDistance, Systems::kAreaPerDistance, Systems::kDensity
};

VorString shown(const VorUnitsManager& units, Systems::eSystems system, double value)
{
    return units.getUnit(system).getVorUnitTransform().formatValue(value, 1, 1, 1, 1, L'-');
}

void expectSameUnits(const VorUnitsManager& expected, const VorUnitsManager& units)
{
    for (const Systems::eSystems system : kAllSystems)
    {
        EXPECT_EQ(expected.getUnit(system).unit(), units.getUnit(system).unit()) << system;
        EXPECT_EQ(expected.getUnit(system).format(), units.getUnit(system).format()) << system;
    }
}

TEST(VorUnitsManagerTest, MetricListsAreInMillimetresAndKilograms)
{
    const VorUnitsManager units = VorUnitsManager::metric();

    EXPECT_EQ(VorString(L"6000.3 mm"), shown(units, Systems::kDistance, 6000.26));
    EXPECT_EQ(VorString(L"22.5\u00B0"), shown(units, Systems::kAngle, 0.39269908169872414));
    EXPECT_EQ(VorString(L"12.35 kg"), shown(units, Systems::kWeight, 12.345));
    EXPECT_EQ(VorString(L"167.88 m\u00B2"), shown(units, Systems::kArea, 167876533.0));
    EXPECT_EQ(VorString(L"15.43 kg/m"), shown(units, Systems::kWeightPerDistance, 0.015432));
    EXPECT_EQ(VorString(L"1.136 m\u00B2/m"), shown(units, Systems::kAreaPerDistance, 1136.0));
    EXPECT_EQ(VorString(L"7850 kg/m\u00B3"), shown(units, Systems::kDensity, 7.85e-6));
}

TEST(VorUnitsManagerTest, ImperialListsAreInFeetAndInchesAndPounds)
{
    const VorUnitsManager units = VorUnitsManager::imperial();

    EXPECT_EQ(VorString(L"7'-6 1/2\""), shown(units, Systems::kDistance, 2298.7));
    EXPECT_EQ(VorString(L"22.5\u00B0"), shown(units, Systems::kAngle, 0.39269908169872414));
    EXPECT_EQ(VorString(L"220.5 lb"), shown(units, Systems::kWeight, 100.0));
    EXPECT_EQ(VorString(L"10.76 ft\u00B2"), shown(units, Systems::kArea, 1e6));
    EXPECT_EQ(VorString(L"67.2 lb/ft"), shown(units, Systems::kWeightPerDistance, 0.1));
    EXPECT_EQ(VorString(L"3.28 ft\u00B2/ft"), shown(units, Systems::kAreaPerDistance, 1000.0));
    EXPECT_EQ(VorString(L"490.1 lb/ft\u00B3"), shown(units, Systems::kDensity, 7.85e-6));
}

TEST(VorUnitsManagerTest, EveryUnitOfThePresetsIsOfItsKind)
{
    for (const Systems::eSystems system : kAllSystems)
    {
        EXPECT_EQ(system, VorUnitsManager::metric().getUnit(system).getVorUnitTransform().system());
        EXPECT_EQ(system, VorUnitsManager::imperial().getUnit(system).getVorUnitTransform().system());
    }
}

TEST(VorUnitsManagerTest, StartsAsMetric)
{
    expectSameUnits(VorUnitsManager::metric(), VorUnitsManager());
}

TEST(VorUnitsManagerTest, OneUnitIsReplacedAndTheOthersStay)
{
    VorUnitsManager units = VorUnitsManager::imperial();
    const VorUnitsManager copy = units;

    units.setUnit(Systems::kWeight, MEKUnit(1009, 1009, 1));

    EXPECT_EQ(VorString(L"12.5 kg"), shown(units, Systems::kWeight, 12.5));
    EXPECT_EQ(VorString(L"7'-6\""), shown(units, Systems::kDistance, 2286.0));
    expectSameUnits(VorUnitsManager::imperial(), copy);
}

TEST(VorUnitsManagerTest, EveryKindIsSetBySymbolAndPrecision)
{
    const std::pair<Systems::eSystems, const wchar_t*> kNotations[] = {
        { Systems::kDistance, L"in/.2" },          { Systems::kAngle, L"gon/3" },
        { Systems::kWeight, L"short ton/2" },      { Systems::kArea, L"yd2/1" },
        { Systems::kWeightPerDistance, L"plf/0" }, { Systems::kAreaPerDistance, L"in2/ft/4" },
        { Systems::kDensity, L"lb/in³/5" },
    };
    VorUnitsManager units;
    for (const auto& [system, notation] : kNotations)
    {
        MEKUnit expected(3, 3, 0);
        ASSERT_EQ(1, VorUnitNotation::read(notation, expected));
        EXPECT_EQ(1, units.setUnit(system, notation)) << VorString(notation);
        EXPECT_EQ(expected.unit(), units.getUnit(system).unit());
        EXPECT_EQ(expected.format(), units.getUnit(system).format());
    }
}

TEST(VorUnitsManagerTest, WordsThatAreNoUnitOfTheKindChangeNothing)
{
    AssertLog log;
    VorUnitsManager units;

    EXPECT_EQ(0, units.setUnit(Systems::kWeight, L"mm/1"));
    EXPECT_EQ(0, units.setUnit(Systems::kWeight, L"kg/10"));
    EXPECT_EQ(0, units.setUnit(Systems::kWeight, L"furlong"));
    EXPECT_EQ(0, units.setUnit(Systems::kWeight, L""));

    expectSameUnits(VorUnitsManager::metric(), units);
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorUnitsManagerTest, PresetsAreAsPreciseAsTheirUnitsUsuallyAre)
{
    for (const VorUnitsManager& units : { VorUnitsManager::metric(), VorUnitsManager::imperial() })
        for (const Systems::eSystems system : kAllSystems)
        {
            const MEKUnit& unit = units.getUnit(system);
            EXPECT_EQ(Systems::findUnit(unit.unit())->format, unit.format()) << unit.unit();
        }
}

TEST(VorUnitsManagerTest, AUnitOfAnotherKindIsReportedAndNotTaken)
{
    AssertLog log;
    VorUnitsManager units;

    units.setUnit(Systems::kWeight, MEKUnit(3, 3, 2));

    EXPECT_TRUE(log.holdsOnly(L"unit.system() == system", kSourcePath));
    expectSameUnits(VorUnitsManager::metric(), units);
}

TEST(VorUnitsManagerTest, ANumberThatIsNoKindIsReportedAndGivesTheUnitOfDistance)
{
    AssertLog log;
    VorUnitsManager units;

    EXPECT_EQ(3, units.getUnit(static_cast<Systems::eSystems>(3)).unit());
    units.setUnit(static_cast<Systems::eSystems>(5), MEKUnit(13, 13, 1016));

    EXPECT_EQ(2, log.count(L"isSystem( system )", kSourcePath));
    EXPECT_TRUE(log.holdsOnly(L"isSystem( system )", kSourcePath));
    expectSameUnits(VorUnitsManager::metric(), units);
}
}
