#include "TokenKinds.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(TokenKindsTest, TokensOfTheCatalogueHaveTheirKinds)
{
    const TokenKinds kinds;

    EXPECT_EQ(VorBomTemplateUnits::kDistanceUnit, kinds.of("%Length"));
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit, kinds.of("%Weight"));
    EXPECT_EQ(VorBomTemplateUnits::kWeightPerDistanceUnit, kinds.of("%WeightMeter"));
    EXPECT_EQ(VorBomTemplateUnits::kAreaPerDistanceUnit, kinds.of("%%PaintMeter"));
}

TEST(TokenKindsTest, OthersHaveNone)
{
    const TokenKinds kinds;

    for (const char* const token : { "%Name", "%Quantity", "%Own", "Weight", "" })
        EXPECT_EQ(VorBomTemplateUnits::kNoUnit, kinds.of(token)) << token;
}
}
