#include "VorBomCountedRows.h"

#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
// The handles of the rows counted among rows "1", "2", "3" ... that count where `counts` has a 1.
VorString counted(std::initializer_list<int> counts)
{
    VorArray<VorBomDataRow*> rows;
    for (const int count : counts)
    {
        VorString handle;
        handle.format(L"%d", rows.length() + 1);
        rows.append(new VorBomDataRow);
        rows.last()->setObjectHandle(handle);
        rows.last()->setUseThisDataForSums(count);
    }

    VorString text;
    for (const VorBomDataRow& row : VorBomCountedRows(rows))
        text += row.objectHandle();

    for (const VorBomDataRow* pRow : rows)
        delete pRow;
    return text;
}
}

TEST(VorBomCountedRowsTest, RowsThatDoNotCountArePassedOver)
{
    EXPECT_EQ(VorString(L"123"), counted({ 1, 1, 1 }));
    EXPECT_EQ(VorString(L"23"), counted({ 0, 1, 1 }));
    EXPECT_EQ(VorString(L"13"), counted({ 1, 0, 1 }));
    EXPECT_EQ(VorString(L"12"), counted({ 1, 1, 0 }));
    EXPECT_EQ(VorString(L"14"), counted({ 1, 0, 0, 1 }));
}

TEST(VorBomCountedRowsTest, ThereMayBeNone)
{
    const VorBomCountedRows none;

    EXPECT_FALSE(none.begin() != none.end());
    EXPECT_EQ(VorString(), counted({}));
    EXPECT_EQ(VorString(), counted({ 0, 0 }));
}

TEST(VorBomCountedRowsTest, WhetherARowCountsIsAskedWhenItIsRead)
{
    VorBomDataRow row;
    VorArray<VorBomDataRow*> rows;
    rows.append(&row);
    const VorBomCountedRows counted(rows);

    row.setUseThisDataForSums(0);

    EXPECT_FALSE(counted.begin() != counted.end());
}
