#include "InputUnits.h"

#include "UnitKinds.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

struct UnitCase
{
    const char* symbol;
    Units::eTokenUnitType kind;
    double one; // in internal units
};

const UnitCase kUnits[] = {
    { "mm", Units::kDistanceUnit, 1.0 },
    { "m", Units::kDistanceUnit, 1000.0 },
    { "in", Units::kDistanceUnit, 25.4 },
    { "ft", Units::kDistanceUnit, 304.8 },
    { "kg", Units::kWeightUnit, 1.0 },
    { "lb", Units::kWeightUnit, 0.45359237 },
    { "mm2", Units::kAreaUnit, 1.0 },
    { "m2", Units::kAreaUnit, 1e6 },
    { "m²", Units::kAreaUnit, 1e6 },
    { "ft2", Units::kAreaUnit, 92903.04 },
    { "rad", Units::kAngleUnit, 1.0 },
    { "deg", Units::kAngleUnit, 0.017453292519943295 },
    { "kg/m", Units::kWeightPerDistanceUnit, 0.001 },
    { "lb/ft", Units::kWeightPerDistanceUnit, 0.45359237 / 304.8 },
    { "m2/m", Units::kAreaPerDistanceUnit, 1000.0 },
    { "ft2/ft", Units::kAreaPerDistanceUnit, 304.8 },
    { "kg/m3", Units::kDensityUnit, 1e-9 },
    { "lb/ft3", Units::kDensityUnit, 0.45359237 / (304.8 * 304.8 * 304.8) },
};
}

TEST(InputUnitsTest, UnitsConvertToTheInternalOnes)
{
    for (const UnitCase& test : kUnits)
        for (const Units::eTokenUnitType kind : { test.kind, Units::kNoUnit }) // of any kind where none is known
        {
            const std::optional<MEKUnit> unit = InputUnits::find(test.symbol, kind);
            ASSERT_TRUE(unit) << test.symbol;
            EXPECT_DOUBLE_EQ(test.one, unit->getVorUnitTransform().toInternalUnits(1.0)) << test.symbol;
        }
}

TEST(InputUnitsTest, UnitsOfAnotherKindAreNotFound)
{
    EXPECT_FALSE(InputUnits::find("kg", Units::kDistanceUnit));
    EXPECT_FALSE(InputUnits::find("mm", Units::kReservedUnitType));
    EXPECT_FALSE(InputUnits::find("fot", Units::kNoUnit));
    EXPECT_FALSE(InputUnits::find("MM", Units::kDistanceUnit));
    EXPECT_FALSE(InputUnits::find("", Units::kNoUnit));
}

TEST(InputUnitsTest, FeetAndInchesTakeNoPlainNumbers)
{
    EXPECT_FALSE(InputUnits::takesPlainNumbers(*InputUnits::find("ft-in", Units::kDistanceUnit)));
    EXPECT_FALSE(InputUnits::takesPlainNumbers(*InputUnits::find("deg-min-sec", Units::kAngleUnit)));
    EXPECT_TRUE(InputUnits::takesPlainNumbers(*InputUnits::find("ft", Units::kDistanceUnit)));
}

TEST(InputUnitsTest, EveryKindHasItsUnitOfTheModel)
{
    for (const UnitKind& kind : UnitKinds::all())
    {
        const std::optional<MEKUnit> unit = InputUnits::ofModel(Units::unitTypeOf(kind.system));
        EXPECT_EQ(2.5, unit->getVorUnitTransform().toInternalUnits(2.5)) << kind.name;
    }
    EXPECT_FALSE(InputUnits::ofModel(Units::kNoUnit));
    EXPECT_FALSE(InputUnits::ofModel(Units::kReservedUnitType));
}

TEST(InputUnitsTest, MessagesSayWhatACellIsExpectedToHold)
{
    EXPECT_EQ("a number", InputUnits::cellExpectation(*InputUnits::find("ft", Units::kNoUnit)));
    EXPECT_EQ("feet and inches such as 7'-6 1/2\"",
              InputUnits::cellExpectation(*InputUnits::find("ft-in", Units::kNoUnit)));
    EXPECT_EQ("degrees and minutes such as 12°30'",
              InputUnits::cellExpectation(*InputUnits::find("dms", Units::kNoUnit)));
}

TEST(InputUnitsTest, MessagesSayWhatKindIsExpected)
{
    for (int kind = Units::kNoUnit; kind <= Units::kDensityUnit; ++kind)
        EXPECT_EQ(0u, InputUnits::expectation(static_cast<Units::eTokenUnitType>(kind)).find("a unit")) << kind;
    EXPECT_EQ("a unit of weight such as kg or lb", InputUnits::expectation(Units::kWeightUnit));
}
}
