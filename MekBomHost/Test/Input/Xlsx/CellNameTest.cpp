#include "CellName.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(CellNameTest, ColumnsCountInLetters)
{
    struct
    {
        CellPlace place;
        const char* name;
    } const cases[] = {
        { { 1, 0 }, "A1" },    { { 7, 2 }, "C7" },     { { 1, 25 }, "Z1" },
        { { 1, 26 }, "AA1" },  { { 1, 51 }, "AZ1" },   { { 1, 52 }, "BA1" },
        { { 1, 701 }, "ZZ1" }, { { 1, 702 }, "AAA1" }, { { 1048576, 16383 }, "XFD1048576" },
    };
    for (const auto& testCase : cases)
    {
        EXPECT_EQ(testCase.name, CellName::of(testCase.place));
        const auto place = CellName::parse(testCase.name);
        ASSERT_TRUE(place) << testCase.name;
        EXPECT_EQ(testCase.place.row, place->row);
        EXPECT_EQ(testCase.place.column, place->column);
    }
}

TEST(CellNameTest, WhatIsNoCellOfASheetIsNoName)
{
    for (const char* const pText : { "", "A", "7", "7A", "a1", "A0", "A-1", "A1B", "A1048577", "XFE1", "ZZZZZZZZZZZZZ1",
                                     "A99999999999", "A 1", "$A$1" })
        EXPECT_FALSE(CellName::parse(pText)) << pText;
}

TEST(CellNameTest, SheetsWithOtherCharactersStandInQuotes)
{
    EXPECT_EQ("Parts_2!C7", CellName::inSheet("Parts_2", "C7"));
    EXPECT_EQ("'Parts list'!C7", CellName::inSheet("Parts list", "C7"));
    EXPECT_EQ("St\xC3\xBC"
              "ck!C7",
              CellName::inSheet("St\xC3\xBC"
                                "ck",
                                "C7"));
    EXPECT_EQ("'a?b'!C7", CellName::inSheet("a\nb", "C7"));
}
}
