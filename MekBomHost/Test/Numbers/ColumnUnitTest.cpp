#include "ColumnUnit.h"

#include "Utf8.h"

#include "MekUnits/Src/VorUnitNotation.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
// The unit of a column of that kind in imperial units: "m/2".
std::string unitOf(const std::string& unit, int decimals, const char* kind)
{
    ColumnStyle style;
    style.unit = unit;
    style.decimals = decimals;
    return Utf8::toBytes(
        VorUnitNotation::write(ColumnUnit::of(&style, *UnitKinds::find(kind), VorUnitsManager::imperial())));
}
}

TEST(ColumnUnitTest, AColumnHasItsOwnUnitOrThatOfTheList)
{
    EXPECT_EQ("m/2", unitOf("m/2", -1, "length"));
    EXPECT_EQ("ft-in/16", unitOf("", -1, "length"));
    EXPECT_EQ("lb/1", unitOf("", -1, "weight"));
    EXPECT_EQ("lb/1", Utf8::toBytes(VorUnitNotation::write(
                          ColumnUnit::of(nullptr, *UnitKinds::find("weight"), VorUnitsManager::imperial()))));
}

TEST(ColumnUnitTest, DecimalsAreThoseOfTheColumnWhereTheUnitHasAny)
{
    EXPECT_EQ("lb/3", unitOf("", 3, "weight"));
    EXPECT_EQ("kg/0", unitOf("kg/2", 0, "weight"));
    EXPECT_EQ("lb/9", unitOf("", 15, "weight"));
    EXPECT_EQ("ft-in/16", unitOf("", 3, "length"));
    EXPECT_EQ("in/1/8", unitOf("in/1/8", 3, "length"));
}

TEST(ColumnUnitTest, AUnitOfAnotherKindIsNoneForTheColumn)
{
    ColumnStyle style;
    EXPECT_FALSE(ColumnUnit::ownOf(style, *UnitKinds::find("length")));
    style.unit = "kg";
    EXPECT_FALSE(ColumnUnit::ownOf(style, *UnitKinds::find("length")));
    EXPECT_TRUE(ColumnUnit::ownOf(style, *UnitKinds::find("weight")));
    EXPECT_EQ("ft-in/16", unitOf("kg", -1, "length"));
    EXPECT_EQ("ft²", ColumnUnit::symbolOf(VorUnitsManager::imperial().getUnit(VorUnitsTransformArray::kArea)));
}
}
