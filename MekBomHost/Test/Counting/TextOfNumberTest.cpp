#include "TextOfNumber.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(TextOfNumberTest, WholeNumbersKeepAllTheirDigits)
{
    const VorBomTemplateUnits units;
    EXPECT_EQ(VorString(L"5000000000"),
              textOfNumber({ VorBomDataValue::kIntData, VorBomTemplateUnits::kNoUnit, 5e9 }, nullptr, units));
    EXPECT_EQ(VorString(L"-3"),
              textOfNumber({ VorBomDataValue::kIntData, VorBomTemplateUnits::kNoUnit, -3 }, nullptr, units));
}
}
