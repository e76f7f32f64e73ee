#include "RowData.h"

#include "Support/ExplainSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(RowDataTest, DataReadWithTheirUnits)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts, "imperial");
    const RowData data(parts.explained());
    const VorBomDataRow& row = **parts.line(2).headerRows.begin();

    EXPECT_EQ("\"IPE240\"", data.textOf(row, L"%Name"));
    EXPECT_EQ("808.2 lb", data.textOf(row, L"%Weight"));
    EXPECT_EQ("1", data.textOf(row, L"%Quantity"));
    EXPECT_EQ("none", data.textOf(row, L"%Price"));
    EXPECT_EQ("%Weight 808.2 lb and %Quantity 1",
              data.operandsOf(row, L"%Weight*%Quantity+%Weight", VorBomTemplateItem()));
}

TEST(RowDataTest, TextsAreNoNumbers)
{
    const ExplainedParts parts(partsByMaterial("\"equalLines\": \"keep\", "), kFiveParts);
    const VorBomDataRow& row = **parts.line(2).headerRows.begin();

    EXPECT_DOUBLE_EQ(366.59, RowData::numberIn(row, L"%Weight").value());
    EXPECT_DOUBLE_EQ(1, RowData::numberIn(row, L"%Quantity").value());
    EXPECT_FALSE(RowData::numberIn(row, L"%Name").has_value());
    EXPECT_FALSE(RowData::numberIn(row, L"%Price").has_value());
}
}
