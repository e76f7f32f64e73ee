#include "LabelUnit.h"

#include "Utf8.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(LabelUnitTest, UnitsStandInBracketsOrParenthesesAtTheEnd)
{
    for (const std::string label : { "Weight [lb]", "Weight (lb)", "Weight [of all] (lb)" })
    {
        const LabelUnit unit = LabelUnit::of(label);
        EXPECT_EQ(label.size() - 4, unit.begin) << label;
        EXPECT_EQ("lb", unit.text) << label;
        ASSERT_NE(nullptr, unit.pUnit) << label;
        EXPECT_EQ(VorUnitsTransformArray::kWeight, unit.pUnit->system) << label;
    }
}

TEST(LabelUnitTest, WhatIsNoUnitIsKeptAsAText)
{
    EXPECT_EQ("net", LabelUnit::of("Weight (net)").text);
    EXPECT_EQ(nullptr, LabelUnit::of("Weight (net)").pUnit);
    EXPECT_EQ(0u, LabelUnit::of("()").begin);
}

TEST(LabelUnitTest, OtherLabelsHaveNone)
{
    for (const char* const label : { "", "Weight", "[lb] Weight", "Weight lb]", "Weight (lb]", "]", ")" })
        EXPECT_EQ(std::string::npos, LabelUnit::of(label).begin) << label;
}
}
