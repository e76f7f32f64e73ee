#include "UnitKinds.h"

#include "InputUnits.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace mekbom
{
using Units = VorBomTemplateUnits;
using Systems = VorUnitsTransformArray;

TEST(UnitKindsTest, KindsAreFoundByBothTheirNames)
{
    EXPECT_EQ(Systems::kDistance, UnitKinds::find("length")->system);
    EXPECT_EQ(Systems::kDistance, UnitKinds::find("distance")->system);
    EXPECT_EQ(Systems::kWeightPerDistance, UnitKinds::find("weight-per-length")->system);
    EXPECT_EQ(Systems::kAreaPerDistance, UnitKinds::find("area-per-distance")->system);
    EXPECT_EQ(nullptr, UnitKinds::find(""));
    EXPECT_EQ(nullptr, UnitKinds::find("lenght"));
    EXPECT_EQ("length, angle, weight, area, weight-per-length, area-per-length, density", UnitKinds::names());
}

TEST(UnitKindsTest, KindsStandInTheCommonOrder)
{
    for (int i = 0; i < Systems::kNumSystems; ++i)
        EXPECT_EQ(Systems::kSystems[i], UnitKinds::all()[static_cast<std::size_t>(i)].system) << i;
    for (const UnitKind& kind : UnitKinds::all())
        EXPECT_EQ(&kind, UnitKinds::find(kind.system)) << kind.name;
    EXPECT_EQ(nullptr, UnitKinds::find(static_cast<Systems::eSystems>(3)));
}

TEST(UnitKindsTest, EveryTypeWithAUnitIsOfOneKind)
{
    for (int type = Units::kNoUnit; type <= Units::kDensityUnit; ++type)
    {
        const UnitKind* const pKind = UnitKinds::find(static_cast<Units::eTokenUnitType>(type));
        EXPECT_EQ(type == Units::kNoUnit || type == Units::kReservedUnitType, pKind == nullptr) << type;
        EXPECT_TRUE(pKind == nullptr || type == Units::unitTypeOf(pKind->system)) << type;
    }
}

TEST(UnitKindsTest, EveryTypeHasItsName)
{
    ASSERT_EQ(Units::kDensityUnit + 1U, UnitKinds::typeNames().size());
    EXPECT_EQ("kNoUnit", UnitKinds::typeNames()[Units::kNoUnit]);
    EXPECT_EQ("kDistanceUnit", UnitKinds::typeNames()[Units::kDistanceUnit]);
    EXPECT_EQ("kWeightUnit", UnitKinds::typeNames()[Units::kWeightUnit]);
    EXPECT_EQ("kAreaUnit", UnitKinds::typeNames()[Units::kAreaUnit]);
    EXPECT_EQ("kAngleUnit", UnitKinds::typeNames()[Units::kAngleUnit]);
    EXPECT_EQ("kWeightPerDistanceUnit", UnitKinds::typeNames()[Units::kWeightPerDistanceUnit]);
    EXPECT_EQ("kAreaPerDistanceUnit", UnitKinds::typeNames()[Units::kAreaPerDistanceUnit]);
    EXPECT_EQ("kReservedUnitType", UnitKinds::typeNames()[Units::kReservedUnitType]);
    EXPECT_EQ("kDensityUnit", UnitKinds::typeNames()[Units::kDensityUnit]);
}

TEST(UnitKindsTest, UsualUnitsAreOfTheirKindAndNotTheModels)
{
    for (const UnitKind& kind : UnitKinds::all())
        if (const std::string unit = kind.usualUnit; !unit.empty())
        {
            const auto found = InputUnits::find(unit, VorBomTemplateUnits::unitTypeOf(kind.system));
            ASSERT_TRUE(found.has_value()) << unit;
            EXPECT_FALSE(InputUnits::isOfModel(*found)) << unit;
        }
}
}
