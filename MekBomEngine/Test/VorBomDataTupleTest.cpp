#include "VorBomDataTuple.h"

#include "Support/BomTestSupport.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

TEST(VorBomDataTupleTest, DefaultHoldsNothing)
{
    const VorBomDataTuple nothing;

    EXPECT_EQ(VorString(), nothing.token().token());
    EXPECT_EQ(VorBomDataValue::kUnknownData, nothing.value().type());
    EXPECT_EQ(0, nothing.used());
}

TEST(VorBomDataTupleTest, ConstructorsTakeEveryKind)
{
    const VorBomDataTuple number(L"%Quantity", 4);
    const VorBomDataTuple real(L"%Weight", 12.5);
    const VorBomDataTuple name(L"%Name", VorString(L"HEA200"));

    EXPECT_EQ(VorString(L"%Quantity"), number.token().token());
    EXPECT_EQ(VorBomDataValue::kIntData, number.value().type());
    EXPECT_EQ(VorString(L"4"), number.value().asString());
    EXPECT_EQ(VorBomDataValue::kDoubleData, real.value().type());
    EXPECT_EQ(VorString(L"12.5"), real.value().asString());
    EXPECT_EQ(VorBomDataValue::kStringData, name.value().type());
    EXPECT_EQ(VorString(L"HEA200"), name.value().asString());
    EXPECT_EQ(0, number.used() + real.used() + name.used());
}

TEST(VorBomDataTupleTest, AnyValueIsTakenAsItIs)
{
    const VorBomDataTuple name(L"%Name", VorBomDataValue(VorString(L"HEA200")));
    const VorBomDataTuple nothing(L"%Weight", VorBomDataValue());

    EXPECT_EQ(VorString(L"HEA200"), name.value().asString());
    EXPECT_EQ(VorString(L"%Weight"), nothing.token().token());
    EXPECT_EQ(VorBomDataValue::kUnknownData, nothing.value().type());
}

TEST(VorBomDataTupleTest, CopiesCarryTheUsedFlagAndOwnTheirValue)
{
    const LeakCheck leaks;
    VorBomDataTuple source(L"%Weight", 12.5);
    source.setUsed(1);

    VorBomDataTuple copy(source);
    VorBomDataTuple assigned;
    assigned = source;

    EXPECT_EQ(1, copy.used());
    EXPECT_EQ(1, assigned.used());
    EXPECT_NE(source.value().data(), copy.value().data());
    copy.value().set(1);
    assigned.setUsed(0);
    EXPECT_EQ(VorString(L"12.5"), source.value().asString());
    EXPECT_EQ(1, source.used());
}

TEST(VorBomDataTupleTest, AssigningATupleWithEmptyValueKeepsTheTargetsValue)
{
    VorBomDataTuple source = tuple(L"%Name", NoValue());
    source.setUsed(1);
    VorBomDataTuple target(L"%Weight", 12.5);

    target = source;
    EXPECT_EQ(VorString(L"%Name"), target.token().token());
    EXPECT_EQ(VorString(L"12.5"), target.value().asString());
    EXPECT_EQ(1, target.used());

    target = VorBomDataTuple(); // a temporary means the same
    EXPECT_EQ(VorString(), target.token().token());
    EXPECT_EQ(VorString(L"12.5"), target.value().asString());
    EXPECT_EQ(0, target.used());
}

TEST(VorBomDataTupleTest, CopyOfATupleWithEmptyValueEqualsItsSource)
{
    const VorBomDataTuple source = tuple(L"%Name", NoValue());

    const VorBomDataTuple copy(source); // NOLINT(performance-unnecessary-copy-initialization)

    EXPECT_EQ(VorString(L"%Name"), copy.token().token());
    EXPECT_EQ(VorBomDataValue::kUnknownData, copy.value().type());
}

TEST(VorBomDataTupleTest, MovingLeavesTokenAndValueEmpty)
{
    const LeakCheck leaks;
    VorBomDataTuple source(L"%Weight", 12.5);
    source.setUsed(1);

    const VorBomDataTuple moved(std::move(source));

    EXPECT_EQ(VorString(L"%Weight"), moved.token().token());
    EXPECT_EQ(VorString(L"12.5"), moved.value().asString());
    EXPECT_EQ(1, moved.used());
    EXPECT_EQ(VorString(), source.token().token()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(VorBomDataValue::kUnknownData, source.value().type());
}

TEST(VorBomDataTupleTest, IsSmallAndMovesWithoutThrowing)
{
    EXPECT_LE(sizeof(VorBomDataTuple), 4 * sizeof(void*));
    EXPECT_TRUE(std::is_nothrow_move_constructible<VorBomDataTuple>::value);
}

TEST(VorBomDataTupleTest, IntegersOfAnyWidthAreTakenAsValuesTakeThem)
{
    EXPECT_EQ(VorBomDataValue::kIntData, VorBomDataTuple(L"%Quantity", 12L).value().type());
    EXPECT_EQ(VorBomDataValue::kIntData, VorBomDataTuple(L"%Quantity", std::size_t{ 12 }).value().type());
    EXPECT_EQ(VorBomDataValue::kDoubleData, VorBomDataTuple(L"%Quantity", 3'000'000'000LL).value().type());
    EXPECT_EQ(VorString(L"18446744073709551615"), VorBomDataTuple(L"%Quantity", ~0ULL).value().asString());
}
