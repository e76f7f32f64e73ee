#include "AlignedTable.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(AlignedTableTest, ColumnsAreAsWideAsTheirWidestText)
{
    AlignedTable table({ "Token", "Value", "Kind" });
    table.add({ "%IsMP", "whole number", "none" });
    table.add({ "%QuantityInModel", "text", "" });

    EXPECT_EQ("Token             Value         Kind\n"
              "%IsMP             whole number  none\n"
              "%QuantityInModel  text\n",
              table.text());
}

TEST(AlignedTableTest, WidthsAreThoseOnATerminal)
{
    AlignedTable table({ "m", "x" });
    table.add({ "m²", "y" });

    EXPECT_EQ("m   x\nm²  y\n", table.text());
}

TEST(AlignedTableTest, NoLineEndsInBlanks)
{
    AlignedTable table({ "A", "B", "C" });
    table.add({ "a", "", "" });
    table.add({ "", "", "c" });
    table.add({ "", "", "" });

    EXPECT_EQ("A  B  C\na\n      c\n\n", table.text());
}

TEST(AlignedTableTest, ColumnsOfNumbersStandToTheRight)
{
    AlignedTable table({ "File", "Rows", "Note" });
    table.alignRight(1);
    table.add({ "a", "7", "" });
    table.add({ "b.csv", "", "empty" });

    EXPECT_EQ("File   Rows  Note\n"
              "a         7\n"
              "b.csv        empty\n",
              table.text());
}

TEST(AlignedTableTest, HeadingsAloneAreNoRows)
{
    AlignedTable table({ "A" });

    EXPECT_TRUE(table.isEmpty());
    EXPECT_EQ("A\n", table.text());
    table.add({ "a" });
    EXPECT_FALSE(table.isEmpty());
}
}
