#include "MekRoots/Exp/MEKUnit.h"

#include "MekRoots/Test/Support/TestSupport.h"

namespace
{
VorString shown(const MEKUnit& unit, double value)
{
    return unit.getVorUnitTransform().formatValue(value, 1, 0, 1, 1, L' ');
}

TEST(MEKUnitTest, KeepsItsThreeNumbers)
{
    const MEKUnit unit(3003, 3, 112);

    EXPECT_EQ(3003, unit.unit());
    EXPECT_EQ(3, unit.inputUnit());
    EXPECT_EQ(112, unit.format());
}

TEST(MEKUnitTest, UnitsOfATemplateShowTheirKindWithTheirDecimals)
{
    EXPECT_EQ(VorString(L"2286.13"), shown(MEKUnit(3, 3, 2), 2286.125));
    EXPECT_EQ(VorString(L"12.35"), shown(MEKUnit(1009, 1009, 112), 12.345));
    EXPECT_EQ(VorString(L"167.88"), shown(MEKUnit(3003, 3, 2), 167876533.0));
    EXPECT_EQ(VorString(L"45"), shown(MEKUnit(2006, 2006, 81), 0.78539816339744828));
    EXPECT_EQ(VorString(L"15.43"), shown(MEKUnit(4000, 4000, 2), 0.015432));
    EXPECT_EQ(VorString(L"1.14"), shown(MEKUnit(4100, 4100, 2), 1136.0));
    EXPECT_EQ(VorString(L"7850"), shown(MEKUnit(7001, 7001, 552), 7.85e-6));
}

TEST(MEKUnitTest, InputUnitChangesNoText)
{
    EXPECT_EQ(VorString(L"2286"), shown(MEKUnit(3, 10, 2), 2286.0));
}

TEST(MEKUnitTest, CopiesAreIndependent)
{
    MEKUnit unit(3, 3, 2);
    const MEKUnit copy = unit;

    unit = MEKUnit(13, 13, 1016);

    EXPECT_EQ(VorString(L"7' 6\""), shown(unit, 2286.0));
    EXPECT_EQ(VorString(L"2286"), shown(copy, 2286.0));
}
}
