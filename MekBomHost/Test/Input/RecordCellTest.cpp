#include "RecordCell.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(RecordCellTest, ACellIsNothingOrATextOrANumber)
{
    const RecordCell nothing;
    const RecordCell text(std::string_view("7.5 ft"));
    const RecordCell number(7.5);

    EXPECT_TRUE(nothing.isNothing());
    EXPECT_FALSE(nothing.isNumber());
    EXPECT_FALSE(text.isNothing() || text.isNumber());
    EXPECT_EQ("7.5 ft", text.text());
    EXPECT_FALSE(number.isNothing());
    EXPECT_TRUE(number.isNumber());
    EXPECT_EQ(7.5, number.number());
}

TEST(RecordCellTest, AnEmptyTextIsNothingAndZeroIsANumber)
{
    EXPECT_TRUE(RecordCell(std::string_view("")).isNothing());
    EXPECT_FALSE(RecordCell(0.0).isNothing());
}

TEST(RecordCellTest, ARefusedValueIsNeitherNothingNorANumberNorAText)
{
    Finding refusal;
    refusal.found = "a date";
    const RecordCell cell(refusal);

    EXPECT_TRUE(cell.isRefused());
    EXPECT_FALSE(cell.isNothing() || cell.isNumber() || cell.isText());
    EXPECT_EQ(&refusal, &cell.refusal());
    EXPECT_EQ("a date", cell.asText());
    EXPECT_TRUE(RecordCell().isText() && RecordCell(std::string_view("a")).isText());
    EXPECT_FALSE(RecordCell(0.0).isText());
}

TEST(RecordCellTest, AnyCellHasAText)
{
    EXPECT_EQ("", RecordCell().asText());
    EXPECT_EQ("M16", RecordCell(std::string_view("M16")).asText());
    EXPECT_EQ("4", RecordCell(4.0).asText());
    EXPECT_EQ("0.1", RecordCell(0.1).asText());
}
}
