#include "MekBomEngine/Src/VorBomRowLayouts.h"
#include "MekBomEngine/Test/Support/BomTestSupport.h"

#include <gtest/gtest.h>

namespace
{
const VorString kName(L"%Name");
const VorString kWeight(L"%Weight");

void addTokens(VorBomDataRow& row, std::initializer_list<VorString> tokens)
{
    for (const VorString& token : tokens)
        row.addData(VorBomDataTuple(token, 0));
}
}

TEST(VorBomRowLayoutsTest, RowsWithTheSameTokensInTheSameOrderHaveOneLayout)
{
    VorBomDataRow rows[5];
    addTokens(rows[0], { kName, kWeight });
    addTokens(rows[1], { kWeight, kName });
    addTokens(rows[2], { kName, kWeight });
    addTokens(rows[3], { kName });
    VorBomRowLayouts layouts;

    EXPECT_EQ(0, layouts.layoutOf(rows[0]));
    EXPECT_EQ(1, layouts.layoutOf(rows[1]));
    EXPECT_EQ(0, layouts.layoutOf(rows[2]));
    EXPECT_EQ(2, layouts.layoutOf(rows[3]));
    EXPECT_EQ(3, layouts.layoutOf(rows[4])) << "no tuples are a layout too";
    EXPECT_EQ(1, layouts.layoutOf(rows[1]));
}

TEST(VorBomRowLayoutsTest, RowThatGrewHasAnotherLayout)
{
    VorBomDataRow row;
    VorBomDataRow other;
    addTokens(row, { kName });
    addTokens(other, { kName });
    VorBomRowLayouts layouts;
    ASSERT_EQ(0, layouts.layoutOf(row));
    ASSERT_EQ(0, layouts.layoutOf(other));

    addTokens(row, { kWeight });

    EXPECT_EQ(1, layouts.layoutOf(row));
    EXPECT_EQ(0, layouts.layoutOf(other));
    EXPECT_EQ(1, layouts.layoutOf(row));
}

TEST(VorBomRowLayoutsTest, TokensInTextsOfTheirOwnMakeALayoutOfTheirOwn)
{
    VorBomDataRow row;
    VorBomDataRow other;
    addTokens(row, { kName });
    addTokens(other, { VorString(kName.getStringW()) });
    VorBomRowLayouts layouts;

    EXPECT_NE(layouts.layoutOf(row), layouts.layoutOf(other));
}

TEST(VorBomRowLayoutsTest, PastTheMostLayoutsARowHasNoneAndKnownOnesStay)
{
    std::vector<VorBomDataRow> rows(VorBomRowLayouts::kMostLayouts + 2);
    for (VorBomDataRow& row : rows)
        addTokens(row, { VorString(L"%Own") });
    VorBomRowLayouts layouts;
    for (int i = 0; i < VorBomRowLayouts::kMostLayouts; ++i)
        ASSERT_EQ(i, layouts.layoutOf(rows[static_cast<std::size_t>(i)]));

    EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows[VorBomRowLayouts::kMostLayouts]));
    EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows[VorBomRowLayouts::kMostLayouts + 1]));
    EXPECT_EQ(7, layouts.layoutOf(rows[7]));
    EXPECT_EQ(VorBomRowLayouts::kNoLayout, layouts.layoutOf(rows[VorBomRowLayouts::kMostLayouts]));
}
