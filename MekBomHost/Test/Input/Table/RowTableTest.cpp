#include "RowTable.h"

#include "Support/FakeSource.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace mekbom
{
TEST(RowTableTest, CellsKeepWhatTheyWereGiven)
{
    RowTable table("model", { "Name", "Length" });
    std::string name = "HEA200";
    table.add({ RecordCell(std::string_view(name)), RecordCell(6000.5) });
    name = "gone";
    table.add({ RecordCell(), textCell("2 m") });

    ASSERT_EQ(2u, table.numRows());
    EXPECT_EQ("HEA200", table.cell(0, 0).text());
    EXPECT_EQ(6000.5, table.cell(0, 1).number());
    EXPECT_TRUE(table.cell(1, 0).isNothing());
    EXPECT_EQ("2 m", table.cell(1, 1).text());
}

TEST(RowTableTest, ATableWithoutColumnsHasNoRows)
{
    RowTable table("model", {});
    table.add({});
    EXPECT_EQ(0u, table.numRows());
}

TEST(RowTableTest, WhatIsNoTextOrNoNumberIsRefusedAndChangesNothing)
{
    RowTable table("model", { "Name", "Length" });
    table.add({ textCell("A"), RecordCell(1.0) });
    const double infinite = std::numeric_limits<double>::infinity();

    EXPECT_EQ("3 model row 2:1:3: found byte 0xE4, expected text in UTF-8\n",
              faultOf(
                  [&] {
                      table.add({ textCell("Tr\xE4ger"), RecordCell(1.0) });
                  }));
    EXPECT_EQ("3 model: row 2: column \"Length\": found inf, expected a finite number\n",
              faultOf(
                  [&] {
                      table.add({ textCell("B"), RecordCell(infinite) });
                  }));
    EXPECT_EQ("3 model row 2:1:2: found a zero byte, expected text\n",
              faultOf(
                  [&] {
                      table.add({ RecordCell(std::string_view("B\0C", 3)), RecordCell() });
                  }));
    EXPECT_EQ(1u, table.numRows());
}
}
