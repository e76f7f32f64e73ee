#include "ValueTally.h"

#include "VorBomDataTuple.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
VorBomDataRow rowOf(double length, int pieces)
{
    VorBomDataRow row;
    row.addData(VorBomDataTuple(L"%Length", length));
    row.addData(VorBomDataTuple(L"%Quantity", pieces));
    return row;
}
}

TEST(ValueTallyTest, NothingIsSaidOfNoRows)
{
    ValueTally lengths(L"%Length");
    lengths.add(VorBomDataRow());

    EXPECT_EQ(0, lengths.totalOf(ColumnTotal::kCount).number);
    for (const auto kind : { ColumnTotal::kLeast, ColumnTotal::kGreatest, ColumnTotal::kMean })
        EXPECT_EQ(VorBomDataValue::kUnknownData, lengths.totalOf(kind).type);
}

TEST(ValueTallyTest, RowsAreForgotten)
{
    ValueTally lengths(L"%Length");
    lengths.add(rowOf(9000, 1));
    lengths.clear();
    lengths.add(rowOf(-2, 1));

    EXPECT_EQ(1, lengths.totalOf(ColumnTotal::kCount).number);
    EXPECT_EQ(-2, lengths.totalOf(ColumnTotal::kGreatest).number);
    EXPECT_EQ(-2, lengths.totalOf(ColumnTotal::kMean).number);
}

TEST(ValueTallyTest, AMeanLosesNoDigitsToTheOrderOfTheRows)
{
    ValueTally lengths(L"%Length");
    for (const double length : { 1e15, 0.5, -1e15, 0.5 })
        lengths.add(rowOf(length, 1));

    EXPECT_EQ(0.25, lengths.totalOf(ColumnTotal::kMean).number);
}

TEST(ValueTallyTest, ATextIsCountedAndIsNoNumber)
{
    VorBomDataRow row;
    row.addData(VorBomDataTuple(L"%Length", VorString(L"n/a")));
    ValueTally lengths(L"%Length");
    lengths.add(row);
    lengths.add(rowOf(3, 2));

    EXPECT_EQ(2, lengths.totalOf(ColumnTotal::kCount).number);
    EXPECT_EQ(3, lengths.totalOf(ColumnTotal::kLeast).number);
    EXPECT_EQ(3, lengths.totalOf(ColumnTotal::kMean).number);
}
}
