#include "VorBomDisplayPlan.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
using Units = VorBomTemplateUnits;

// Numbers of this type show as nothing, so that a look tells them from numbers without unit.
const Units::eTokenUnitType kHidden = Units::kReservedUnitType;

VorBomDataTupleArray arrayOf(Tuples tuples)
{
    VorBomDataTupleArray array;
    for (const VorBomDataTuple& added : tuples)
        array.append(added);
    return array;
}

void expectValue(VorBomDataValue::eBomDataValueType type, double number, Units::eTokenUnitType unitType,
                 const VorBomTypedValue& value)
{
    EXPECT_EQ(type, value.type);
    EXPECT_EQ(number, value.number);
    EXPECT_EQ(unitType, value.unitType);
}
}

TEST(VorBomDisplayPlanTest, ColumnsShowTheTuplesInTheirOrder)
{
    Units units;
    units.AddTokenType(L"%Length", kHidden);
    VorBomDataTupleArray tuples =
        arrayOf({ tuple(L"%Weight", 1.5), tuple(L"%Length", 2.5), tuple(L"%Name", NoValue()) });

    VorBomDisplayPlan(tuples).show(units, tuples);

    EXPECT_EQ(VorString(L"1.5"), tuples[0].value().asString());
    EXPECT_EQ(VorBomDataValue::kStringData, tuples[1].value().type());
    EXPECT_EQ(VorString(), tuples[1].value().asString());
    EXPECT_EQ(VorBomDataValue::kUnknownData, tuples[2].value().type());
}

TEST(VorBomDisplayPlanTest, ValuesAreKeptForWhoAsks)
{
    Units units;
    VorBomDataTupleArray tuples = arrayOf({ tuple(L"%Weight", 1.5) });
    VorBomDisplayPlan plan(tuples);

    plan.show(units, tuples);
    EXPECT_EQ(nullptr, plan.values());
    plan.keepValues();

    EXPECT_NE(nullptr, plan.values());
}

TEST(VorBomDisplayPlanTest, ValuesAreThoseBeforeTheyWereShownWithTheUnitTheyAreShownIn)
{
    Units units;
    units.AddTokenType(L"%Length", Units::kDistanceUnit);
    units.AddTokenType(L"%Weight", Units::kWeightUnit);
    VorBomDataTupleArray tuples =
        arrayOf({ tuple(L"%Name", L"HEA200"), tuple(L"%Weight", 12.5), tuple(L"%SumBy:%Weight", 40.0),
                  tuple(L"%Formula:2*%Length*%Weight", 7.0), tuple(L"%Weight", 2147483647), tuple(L"%PosNum", 0.25),
                  tuple(L"%Role", NoValue()) });
    VorBomDisplayPlan plan(tuples);
    plan.keepValues();

    plan.show(units, tuples);

    const VorBomTypedValue* pValues = plan.values();
    expectValue(VorBomDataValue::kStringData, 0, Units::kNoUnit, pValues[0]);
    expectValue(VorBomDataValue::kDoubleData, 12.5, Units::kWeightUnit, pValues[1]);
    expectValue(VorBomDataValue::kDoubleData, 40, Units::kWeightUnit, pValues[2]);
    expectValue(VorBomDataValue::kDoubleData, 7, Units::kDistanceUnit, pValues[3]);
    expectValue(VorBomDataValue::kIntData, 2147483647, Units::kNoUnit, pValues[4]);
    expectValue(VorBomDataValue::kDoubleData, 0.25, Units::kNoUnit, pValues[5]);
    expectValue(VorBomDataValue::kUnknownData, 0, Units::kNoUnit, pValues[6]);
    EXPECT_EQ(units.getDisplayString(L"%Weight", 12.5), tuples[1].value().asString()) << "shown all the same";
}

TEST(VorBomDisplayPlanTest, ValuesOfTheLastSectionReplaceThoseBefore)
{
    Units units;
    VorBomDataTupleArray first = arrayOf({ tuple(L"%Weight", 1.5) });
    VorBomDataTupleArray second = arrayOf({ tuple(L"%Weight", L"heavy") });
    VorBomDisplayPlan plan(first);
    plan.keepValues();

    plan.show(units, first);
    plan.show(units, second);

    expectValue(VorBomDataValue::kStringData, 0, Units::kNoUnit, plan.values()[0]);
}
