#include "NumberInValue.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(NumberInValueTest, BothKindsOfNumbersAreRead)
{
    EXPECT_EQ(3.0, numberIn(VorBomDataValue(3)));
    EXPECT_EQ(2.5, numberIn(VorBomDataValue(2.5)));
    EXPECT_EQ(std::nullopt, numberIn(VorBomDataValue(VorString(L"3"))));
    EXPECT_EQ(std::nullopt, numberIn(VorBomDataValue()));
}
}
