#include "UnitKinds.h"

#include <gtest/gtest.h>

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

TEST(UnitKindsTest, EveryTypeWithAUnitIsOfOneKind)
{
    for (int type = Units::kNoUnit; type <= Units::kDensityUnit; ++type)
    {
        const UnitKind* const pKind = UnitKinds::find(static_cast<Units::eTokenUnitType>(type));
        EXPECT_EQ(type == Units::kNoUnit || type == Units::kReservedUnitType, pKind == nullptr) << type;
        EXPECT_TRUE(pKind == nullptr || pKind == UnitKinds::find(pKind->system)) << type;
    }
}
}
