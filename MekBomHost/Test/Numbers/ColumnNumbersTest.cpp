#include "ColumnNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

VorBomTypedValue doubleOf(Units::eTokenUnitType type, double number)
{
    return { VorBomDataValue::kDoubleData, type, number };
}

VorBomTypedValue intOf(int number)
{
    return { VorBomDataValue::kIntData, Units::kNoUnit, static_cast<double>(number) };
}

ColumnStyle styleWithUnit(const std::string& unit)
{
    ColumnStyle style;
    style.unit = unit;
    return style;
}
}

TEST(ColumnNumbersTest, NumbersAreInTheUnitOfTheListAndNotRounded)
{
    const ColumnNumbers metric(nullptr, VorUnitsManager::metric(), nullptr);
    const ColumnNumbers imperial(nullptr, VorUnitsManager::imperial(), nullptr);

    EXPECT_EQ(2286.04, metric.of(doubleOf(Units::kDistanceUnit, 2286.04)));
    EXPECT_EQ("mm", metric.unitOf(Units::kDistanceUnit));
    EXPECT_EQ(1.25, metric.of(doubleOf(Units::kAreaUnit, 1250000)));
    EXPECT_EQ("m²", metric.unitOf(Units::kAreaUnit));
    EXPECT_EQ(10.0, imperial.of(doubleOf(Units::kWeightUnit, 4.5359237)));
    EXPECT_EQ("lb", imperial.unitOf(Units::kWeightUnit));
}

TEST(ColumnNumbersTest, UnitsThatNoNumberIsInGiveWayToOnesThatAre)
{
    VorUnitsManager units = VorUnitsManager::imperial();
    ASSERT_EQ(1, units.setUnit(VorUnitsTransformArray::kAngle, L"dms"));
    const ColumnNumbers numbers(nullptr, units, nullptr);

    EXPECT_EQ(7.5, numbers.of(doubleOf(Units::kDistanceUnit, 2286)));
    EXPECT_EQ("ft", numbers.unitOf(Units::kDistanceUnit));
    EXPECT_NEAR(12.5, numbers.of(doubleOf(Units::kAngleUnit, 12.5 * std::acos(-1.0) / 180)), 1e-12);
    EXPECT_EQ("°", numbers.unitOf(Units::kAngleUnit));
}

TEST(ColumnNumbersTest, AColumnMayHaveAUnitOfItsOwn)
{
    const ColumnStyle style = styleWithUnit("t/3");
    const ColumnNumbers numbers(&style, VorUnitsManager::metric(), nullptr);

    EXPECT_EQ(0.26061, numbers.of(doubleOf(Units::kWeightUnit, 260.61)));
    EXPECT_EQ("t", numbers.unitOf(Units::kWeightUnit));
    EXPECT_EQ("mm", numbers.unitOf(Units::kDistanceUnit)) << "it is no unit of lengths";
}

TEST(ColumnNumbersTest, NumbersWithoutAKindStayWhatTheyAre)
{
    EXPECT_EQ(12.5, ColumnNumbers().of(doubleOf(Units::kWeightUnit, 12.5)));
    EXPECT_EQ("", ColumnNumbers().unitOf(Units::kWeightUnit));
    const ColumnNumbers imperial(nullptr, VorUnitsManager::imperial(), nullptr);
    EXPECT_EQ(12.5, imperial.of(doubleOf(Units::kNoUnit, 12.5)));
    EXPECT_EQ("", imperial.unitOf(Units::kNoUnit));
}

// QuantityNumber shows them in metres, too; where the engine shows them they are no quantities.
TEST(ColumnNumbersTest, WholeNumbersAreQuantitiesWhereTheColumnHasAFormatOfItsOwn)
{
    const UnitKind* const pLength = UnitKinds::find("length");
    const ColumnStyle metres = styleWithUnit("m/2");
    const VorUnitsManager imperial = VorUnitsManager::imperial();

    EXPECT_EQ(2.286, ColumnNumbers(&metres, imperial, pLength).of(intOf(2286)));
    EXPECT_EQ(2286, ColumnNumbers(nullptr, imperial, pLength).of(intOf(2286)));
    EXPECT_EQ(2286, ColumnNumbers(&metres, imperial, nullptr).of(intOf(2286)));
}

TEST(ColumnNumbersTest, ZeroHasNoSignAndWhatIsNoNumberStays)
{
    const ColumnNumbers numbers(nullptr, VorUnitsManager::imperial(), nullptr);

    EXPECT_FALSE(std::signbit(numbers.of(doubleOf(Units::kWeightUnit, -0.0))));
    EXPECT_FALSE(std::signbit(numbers.of(doubleOf(Units::kNoUnit, -0.0))));
    EXPECT_TRUE(std::isinf(numbers.of(doubleOf(Units::kWeightUnit, std::numeric_limits<double>::infinity()))));
}
}
