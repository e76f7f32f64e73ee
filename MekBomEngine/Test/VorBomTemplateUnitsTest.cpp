#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"
#include "MekRoots/Exp/MEKUnitsCommon.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
using Units = VorBomTemplateUnits;

// Metric units and an empty settings repository, before and after each test.
class VorBomTemplateUnitsTest : public testing::Test
{
protected:
    VorBomTemplateUnitsTest() { reset(); }
    ~VorBomTemplateUnitsTest() override { reset(); }

    static void reset()
    {
        MEKUnitsCommon::setCurrentUnits(VorUnitsManager::metric());
        KTRepositoryProxy::clear();
    }
};

// What `units` show for `value` under a token of `type`.
VorString shown(Units units, Units::eTokenUnitType type, double value)
{
    units.AddTokenType(L"%Shown", type);
    return units.getDisplayString(L"%Shown", value);
}

VorString shownByImperialManager(double millimetres)
{
    const VorUnitsManager manager = VorUnitsManager::imperial();
    Units units;
    units.setUnits(&manager);
    return shown(units, Units::kDistanceUnit, millimetres);
}
}

TEST_F(VorBomTemplateUnitsTest, TypesHaveTheirNumbers)
{
    EXPECT_EQ(0, Units::kNoUnit);
    EXPECT_EQ(1, Units::kDistanceUnit);
    EXPECT_EQ(2, Units::kWeightUnit);
    EXPECT_EQ(3, Units::kAreaUnit);
    EXPECT_EQ(4, Units::kAngleUnit);
    EXPECT_EQ(5, Units::kWeightPerDistanceUnit);
    EXPECT_EQ(6, Units::kAreaPerDistanceUnit);
    EXPECT_EQ(7, Units::kReservedUnitType);
    EXPECT_EQ(8, Units::kDensityUnit);
}

TEST_F(VorBomTemplateUnitsTest, EveryKindOfQuantityHasItsType)
{
    using Systems = VorUnitsTransformArray;

    EXPECT_EQ(Units::kDistanceUnit, Units::unitTypeOf(Systems::kDistance));
    EXPECT_EQ(Units::kWeightUnit, Units::unitTypeOf(Systems::kWeight));
    EXPECT_EQ(Units::kAreaUnit, Units::unitTypeOf(Systems::kArea));
    EXPECT_EQ(Units::kAngleUnit, Units::unitTypeOf(Systems::kAngle));
    EXPECT_EQ(Units::kWeightPerDistanceUnit, Units::unitTypeOf(Systems::kWeightPerDistance));
    EXPECT_EQ(Units::kAreaPerDistanceUnit, Units::unitTypeOf(Systems::kAreaPerDistance));
    EXPECT_EQ(Units::kDensityUnit, Units::unitTypeOf(Systems::kDensity));
    EXPECT_EQ(Units::kNoUnit, Units::unitTypeOf(static_cast<Systems::eSystems>(3)));
}

TEST_F(VorBomTemplateUnitsTest, TokensWithoutUnitShowAsPrintfShowsThem)
{
    Units units;
    units.AddTokenType(L"%Quantity", Units::kNoUnit);

    EXPECT_EQ(VorString(L"12"), units.getDisplayString(L"%PosNum", 12.0));
    EXPECT_EQ(VorString(L"0.5"), units.getDisplayString(L"%PosNum", 0.5));
    EXPECT_EQ(VorString(L"1.23457e+06"), units.getDisplayString(L"%PosNum", 1234567.0));
    EXPECT_EQ(VorString(L"-0"), units.getDisplayString(L"%PosNum", -0.0));
    EXPECT_EQ(VorString(L"1.23457e+06"), units.getDisplayString(L"%Quantity", 1234567.0));
}

TEST_F(VorBomTemplateUnitsTest, EveryTypeShowsInItsUnit)
{
    const struct
    {
        Units::eTokenUnitType type;
        double value;
        const wchar_t* metric;
        const wchar_t* imperial;
    } kCases[] = {
        { Units::kNoUnit, 1234567.0, L"1.23457e+06", L"1.23457e+06" },
        { Units::kDistanceUnit, 2286.0, L"2286", L"7' 6\"" },
        { Units::kWeightUnit, 453.59237, L"453.59", L"1000" },
        { Units::kAreaUnit, 9290304.0, L"9.29", L"100" },
        { Units::kAngleUnit, 1.5707963267948966, L"90", L"90" },
        { Units::kWeightPerDistanceUnit, 0.0613, L"61.3", L"41.19" },
        { Units::kAreaPerDistanceUnit, 1136.0, L"1.136", L"3.73" },
        { Units::kDensityUnit, 7.85e-6, L"7850", L"490.1" },
    };
    const VorUnitsManager metric = VorUnitsManager::metric();
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    Units metricUnits;
    metricUnits.setUnits(&metric);
    Units imperialUnits;
    imperialUnits.setUnits(&imperial);

    for (const auto& c : kCases)
    {
        EXPECT_EQ(VorString(c.metric), shown(metricUnits, c.type, c.value)) << "type " << c.type;
        EXPECT_EQ(VorString(c.imperial), shown(imperialUnits, c.type, c.value)) << "type " << c.type;
    }
}

TEST_F(VorBomTemplateUnitsTest, UnitsStartAsTheCurrentOnes)
{
    MEKUnitsCommon::setCurrentUnits(VorUnitsManager::imperial());
    const Units imperial;
    MEKUnitsCommon::setCurrentUnits(VorUnitsManager::metric());
    const Units metric;

    EXPECT_EQ(VorString(L"7' 6\""), shown(imperial, Units::kDistanceUnit, 2286.0)); // kept when the current ones change
    EXPECT_EQ(VorString(L"1000"), shown(imperial, Units::kWeightUnit, 453.59237));
    EXPECT_EQ(VorString(L"100"), shown(imperial, Units::kAreaUnit, 9290304.0));
    EXPECT_EQ(VorString(L"41.19"), shown(imperial, Units::kWeightPerDistanceUnit, 0.0613));
    EXPECT_EQ(VorString(L"3.73"), shown(imperial, Units::kAreaPerDistanceUnit, 1136.0));
    EXPECT_EQ(VorString(L"490.1"), shown(imperial, Units::kDensityUnit, 7.85e-6));
    EXPECT_EQ(VorString(L"90"), shown(imperial, Units::kAngleUnit, 1.5707963267948966));
    EXPECT_EQ(VorString(L"2286"), shown(metric, Units::kDistanceUnit, 2286.0));
}

TEST_F(VorBomTemplateUnitsTest, ReservedAndUnknownTypesShowNothing)
{
    Units units;
    units.AddTokenType(L"%Reserved", Units::kReservedUnitType);
    units.AddTokenType(L"%Beyond", static_cast<Units::eTokenUnitType>(9));
    units.AddTokenType(L"%Before", static_cast<Units::eTokenUnitType>(-1));

    EXPECT_EQ(VorString(), units.getDisplayString(L"%Reserved", 12.0));
    EXPECT_EQ(VorString(), units.getDisplayString(L"%Beyond", 12.0));
    EXPECT_EQ(VorString(), units.getDisplayString(L"%Before", 12.0));
}

TEST_F(VorBomTemplateUnitsTest, TokensAreToldApartByCase)
{
    Units units;
    units.AddTokenType(L"%Weight", Units::kWeightUnit);

    EXPECT_EQ(Units::kWeightUnit, units.getUnitType(L"%Weight"));
    EXPECT_EQ(Units::kNoUnit, units.getUnitType(L"%weight"));
    EXPECT_EQ(Units::kNoUnit, units.getUnitType(L""));
    EXPECT_EQ(VorString(L"1234567"), units.getDisplayString(L"%Weight", 1234567.0));
    EXPECT_EQ(VorString(L"1.23457e+06"), units.getDisplayString(L"%weight", 1234567.0));
}

TEST_F(VorBomTemplateUnitsTest, FirstRegistrationWins)
{
    Units units;

    units.AddTokenType(L"%A", Units::kNoUnit);
    units.AddTokenType(L"%A", Units::kAreaUnit);
    units.AddTokenType(L"%B", Units::kAreaUnit);
    units.AddTokenType(L"%B", Units::kWeightUnit);

    EXPECT_EQ(Units::kNoUnit, units.getUnitType(L"%A")); // registered without unit is registered
    EXPECT_EQ(Units::kAreaUnit, units.getUnitType(L"%B"));
}

TEST_F(VorBomTemplateUnitsTest, SettingsStartWithEverythingSuppressed)
{
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    MEKUnitsCommon::setCurrentUnits(imperial);
    const Units units;

    EXPECT_EQ(VorString(L"7'"), shown(units, Units::kDistanceUnit, 2133.6));
    EXPECT_EQ(VorString(L"6\""), shown(units, Units::kDistanceUnit, 152.4));
    EXPECT_EQ(VorString(L"100"), shown(units, Units::kAreaUnit, 9290304.0));
    EXPECT_EQ(VorString(L"7' 6\""), shown(units, Units::kDistanceUnit, 2286.0));
}

TEST_F(VorBomTemplateUnitsTest, SettingsAreReadWithTheUnits)
{
    KTRepositoryProxy::setDefault(L"C0_BOMSuppressLastZeros", 0);
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 0);
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroInch", 0);
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    Units units;
    EXPECT_EQ(VorString(L"1"), shown(units, Units::kAreaUnit, 1e6)); // not before

    units.setUnits(&imperial);

    EXPECT_EQ(VorString(L"100.00"), shown(units, Units::kAreaUnit, 9290304.0));
    EXPECT_EQ(VorString(L"7' 0\""), shown(units, Units::kDistanceUnit, 2133.6));
    EXPECT_EQ(VorString(L"0' 6\""), shown(units, Units::kDistanceUnit, 152.4));
}

TEST_F(VorBomTemplateUnitsTest, ZeroFeetAndZeroInchesAreSuppressedOnTheirOwn)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 0);
    EXPECT_EQ(VorString(L"0' 6\""), shownByImperialManager(152.4));
    EXPECT_EQ(VorString(L"7'"), shownByImperialManager(2133.6));

    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 1);
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroInch", 0);
    EXPECT_EQ(VorString(L"6\""), shownByImperialManager(152.4));
    EXPECT_EQ(VorString(L"7' 0\""), shownByImperialManager(2133.6));
}

TEST_F(VorBomTemplateUnitsTest, SeparatorFollowsItsSetting)
{
    KTRepositoryProxy::setDefault(L"C40_ShowMinusBetweenFeetAndInch", 1);
    EXPECT_EQ(VorString(L"7'-6\""), shownByImperialManager(2286.0));

    KTRepositoryProxy::setDefault(L"C40_ShowMinusBetweenFeetAndInch", -3); // anything but zero
    EXPECT_EQ(VorString(L"7'-6\""), shownByImperialManager(2286.0));

    KTRepositoryProxy::setDefault(L"C40_ShowMinusBetweenFeetAndInch", 0);
    EXPECT_EQ(VorString(L"7' 6\""), shownByImperialManager(2286.0));
}

TEST_F(VorBomTemplateUnitsTest, MissingSettingsStayButTheSeparatorDoesNot)
{
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroInch", 0);
    KTRepositoryProxy::setDefault(L"C40_ShowMinusBetweenFeetAndInch", 1);
    Units units;
    units.setUnits(&imperial);
    EXPECT_EQ(VorString(L"7'-0\""), shown(units, Units::kDistanceUnit, 2133.6));

    KTRepositoryProxy::clear();
    units.setUnits(&imperial);

    EXPECT_EQ(VorString(L"7' 0\""), shown(units, Units::kDistanceUnit, 2133.6));
}

TEST_F(VorBomTemplateUnitsTest, SettingsOfAReportTakeThePlaceOfThoseOfTheProcess)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 0);
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    Units own;
    Units usual;
    own.setUnits(&imperial);
    usual.setUnits(&imperial);

    own.setDisplaySettings(0, 1, 0, 1);

    EXPECT_EQ(VorString(L"7'-0\""), shown(own, Units::kDistanceUnit, 2133.6));
    EXPECT_EQ(VorString(L"6\""), shown(own, Units::kDistanceUnit, 152.4));
    EXPECT_EQ(VorString(L"100.00"), shown(own, Units::kAreaUnit, 9290304.0));
    EXPECT_EQ(VorString(L"0' 6\""), shown(usual, Units::kDistanceUnit, 152.4));

    own.setUnits(&imperial);

    EXPECT_EQ(VorString(L"0' 6\""), shown(own, Units::kDistanceUnit, 152.4));
}

TEST_F(VorBomTemplateUnitsTest, CopiesAreIndependent)
{
    const LeakCheck leaks;
    const VorUnitsManager imperial = VorUnitsManager::imperial();
    Units source;
    source.AddTokenType(L"%A", Units::kAreaUnit);

    Units copy(source);
    Units assigned;
    assigned.AddTokenType(L"%C", Units::kWeightUnit);
    assigned = source;
    source.AddTokenType(L"%B", Units::kWeightUnit);
    source.setUnits(&imperial);

    for (const Units* pUnits : { &copy, &assigned })
    {
        EXPECT_EQ(Units::kAreaUnit, pUnits->getUnitType(L"%A"));
        EXPECT_EQ(Units::kNoUnit, pUnits->getUnitType(L"%B"));
        EXPECT_EQ(Units::kNoUnit, pUnits->getUnitType(L"%C"));
        EXPECT_EQ(VorString(L"9.29"), pUnits->getDisplayString(L"%A", 9290304.0));
    }
}

TEST_F(VorBomTemplateUnitsTest, NumbersWithoutUnitHaveTheDecimalsThatAreSet)
{
    VorBomTemplateUnits units;
    units.AddTokenType(L"%Weight", VorBomTemplateUnits::kWeightUnit);
    const VorString weight = units.getDisplayString(L"%Weight", 12.3456789);
    EXPECT_EQ(VorString(L"1.7214e+07"), units.getDisplayString(L"%Price", 17'214'000.0)) << "nothing is set";

    units.setDecimals(L"%Price", 2);
    EXPECT_EQ(VorString(L"17214000.00"), units.getDisplayString(L"%Price", 17'214'000.0));
    EXPECT_EQ(VorString(L"0.1"), units.getDisplayString(L"%Hours", 0.1));
    EXPECT_EQ(VorString(L"0.1"), units.getDisplayString(VorBomTemplateUnits::kNoUnit, 0.1));

    units.setDecimals(0);
    EXPECT_EQ(VorString(L"3000000000"), units.getDisplayString(L"%Quantity", 3e9));
    EXPECT_EQ(VorString(L"2"), units.getDisplayString(VorBomTemplateUnits::kNoUnit, 1.75));
    EXPECT_EQ(VorString(L"1.50"), units.getDisplayString(L"%Price", 1.5)) << "its own";
    EXPECT_EQ(weight, units.getDisplayString(L"%Weight", 12.3456789)) << "has a unit";

    units.setDecimals(L"%Price", VorBomTemplateUnits::kSignificantDigits);
    EXPECT_EQ(VorString(L"1.5"), units.getDisplayString(L"%Price", 1.5));
}

TEST_F(VorBomTemplateUnitsTest, OddDecimalsAndNumbersAreSurvived)
{
    VorBomTemplateUnits units;
    units.setDecimals(L"%Price", 2);
    EXPECT_EQ(VorString(L"0.00"), units.getDisplayString(L"%Price", -0.001)) << "no -0";
    EXPECT_EQ(VorString(L"-0.01"), units.getDisplayString(L"%Price", -0.01));
    EXPECT_EQ(VorString(L"inf"), units.getDisplayString(L"%Price", HUGE_VAL));
    EXPECT_EQ(312, units.getDisplayString(L"%Price", 1.7e308).length()) << "all of its digits";

    units.setDecimals(L"%Price", 1'000'000);
    EXPECT_EQ(102, units.getDisplayString(L"%Price", 1.5).length());
    EXPECT_EQ(410, units.getDisplayString(L"%Price", 1.7e308).length());
    units.setDecimals(L"%Price", -7);
    EXPECT_EQ(VorString(L"1.5"), units.getDisplayString(L"%Price", 1.5));
}
