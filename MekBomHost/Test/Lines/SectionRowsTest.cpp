#include "SectionRows.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(SectionRowsTest, ListsHoldTheirRowsInOrder)
{
    VorBomDataRow rows[3];
    SectionRows lists;
    lists.beginList();
    lists.add(rows[2]);
    lists.add(rows[0]);
    lists.beginList();
    lists.beginList();
    lists.add(rows[1]);

    ASSERT_EQ(2U, lists.list(0).size());
    EXPECT_EQ(&rows[2], lists.list(0).begin()[0]);
    EXPECT_EQ(&rows[0], lists.list(0).begin()[1]);
    EXPECT_EQ(0U, lists.list(1).size());
    ASSERT_EQ(1U, lists.list(2).size());
    EXPECT_EQ(&rows[1], *lists.list(2).begin());
}

TEST(SectionRowsTest, NoListHasNoRows)
{
    EXPECT_EQ(0U, RowList().size());
    EXPECT_EQ(RowList().begin(), RowList().end());
}
}
