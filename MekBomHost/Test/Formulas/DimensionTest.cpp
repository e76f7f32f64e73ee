#include "Dimension.h"

#include "UnitKinds.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
using Units = VorBomTemplateUnits;

Dimension product(Dimension a, const Dimension& b)
{
    a.multiplyBy(b);
    return a;
}

Dimension quotient(Dimension a, const Dimension& b)
{
    a.divideBy(b);
    return a;
}

const Dimension kPlain;
const Dimension kLength = Dimension::ofType(Units::kDistanceUnit);
const Dimension kWeight = Dimension::ofType(Units::kWeightUnit);
const Dimension kArea = Dimension::ofType(Units::kAreaUnit);
const Dimension kAreaPerLength = Dimension::ofType(Units::kAreaPerDistanceUnit);
const Dimension kPrice = Dimension::ofOwnNumber("%Price");
const Dimension kHours = Dimension::ofOwnNumber("%Hours");
}

TEST(DimensionTest, EveryKindIsTheKindOfItsDimension)
{
    for (const UnitKind& kind : UnitKinds::all())
    {
        const Units::eTokenUnitType type = Units::unitTypeOf(kind.system);
        EXPECT_EQ(type, Dimension::ofType(type).kind()) << kind.name;
        EXPECT_EQ(kind.name, Dimension::ofType(type).text());
        EXPECT_FALSE(Dimension::ofType(type).isFreeOfUnits()) << kind.name;
    }
    EXPECT_TRUE(Dimension::ofType(Units::kNoUnit).isPlain());
    EXPECT_TRUE(Dimension::ofType(Units::kReservedUnitType).isPlain());
}

TEST(DimensionTest, ProductsAndQuotientsHaveAKind)
{
    EXPECT_EQ(Units::kAreaUnit, product(kLength, kLength).kind());
    EXPECT_EQ(Units::kWeightPerDistanceUnit, quotient(kWeight, kLength).kind());
    EXPECT_EQ(Units::kDensityUnit, quotient(kWeight, product(kLength, kArea)).kind());
    EXPECT_EQ(Units::kDistanceUnit, quotient(kArea, kLength).kind());
    EXPECT_EQ(Units::kWeightUnit, quotient(product(kWeight, kPrice), kPrice).kind());
    EXPECT_EQ(Units::kNoUnit, product(kLength, kArea).kind());
    EXPECT_TRUE(quotient(kLength, kLength).isPlain());
}

TEST(DimensionTest, AnAreaPerLengthStaysOneUntilItIsMultipliedByALength)
{
    EXPECT_EQ(Units::kAreaPerDistanceUnit, product(kAreaPerLength, kPlain).kind());
    EXPECT_EQ(Units::kAreaUnit, product(kAreaPerLength, kLength).kind());
    EXPECT_EQ(Units::kDistanceUnit, quotient(product(kAreaPerLength, kAreaPerLength), kLength).kind());
    EXPECT_TRUE(quotient(kAreaPerLength, kLength).isPlain());
    EXPECT_TRUE(product(kAreaPerLength, kLength).isLike(kArea));
    EXPECT_FALSE(kAreaPerLength.isLike(kLength));
    EXPECT_TRUE(kAreaPerLength.isSameProduct(kLength));
}

TEST(DimensionTest, NumbersOfTheUsersOwnAreLikeThemselvesAlone)
{
    EXPECT_TRUE(kPrice.isLike(kPrice));
    EXPECT_FALSE(kPrice.isLike(kHours));
    EXPECT_FALSE(kPrice.isLike(kPlain));
    EXPECT_TRUE(kPrice.isFreeOfUnits());
    EXPECT_FALSE(kPrice.isPlain());
    EXPECT_EQ(Units::kNoUnit, product(kWeight, kPrice).kind());
    EXPECT_FALSE(product(kWeight, kPrice).isFreeOfUnits());
}

// Each division by a longer quotient turned all powers of that round, one by one.
TEST(DimensionTest, OwnNumbersMayBeDividedByManyOfThem)
{
    const Dimension rate = Dimension::ofOwnNumber("%Rate");
    const Dimension nested = quotient(kPrice, quotient(kHours, quotient(rate, kWeight))); // %Price * %Rate / ...

    EXPECT_EQ("%Price x %Rate / weight / %Hours", nested.text());
    EXPECT_TRUE(nested.isSameProduct(quotient(product(kPrice, rate), product(kWeight, kHours))));
    EXPECT_FALSE(nested.isSameProduct(quotient(product(kPrice, kHours), product(kWeight, rate))));
    EXPECT_FALSE(nested.isSameProduct(quotient(kPlain, nested)));
    EXPECT_TRUE(product(nested, quotient(kPlain, nested)).isPlain());
}

TEST(DimensionTest, TheTextNamesTheKindOrThePowers)
{
    EXPECT_EQ("a number without unit", kPlain.text());
    EXPECT_EQ("%Price", kPrice.text());
    EXPECT_EQ("weight x %Price", product(kWeight, kPrice).text());
    EXPECT_EQ("length^3", product(kLength, kArea).text());
    EXPECT_EQ("weight / length^2", quotient(kWeight, kArea).text());
    EXPECT_EQ("1 / length / %Price", quotient(quotient(kPlain, kLength), kPrice).text());
}

TEST(DimensionTest, SquaringAgainAndAgainEndsAtAHighPower)
{
    Dimension dimension = product(kLength, kPrice);
    for (int i = 0; i < 100; ++i)
        dimension.multiplyBy(dimension);

    EXPECT_EQ("length^1000 x %Price^1000", dimension.text());
}
}
