#include "TotalTokens.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
ColumnTotal totalOf(ColumnTotal::eKind kind)
{
    ColumnTotal total;
    total.kind = kind;
    return total;
}
}

TEST(TotalTokensTest, EveryKindIsKnownAgainByItsToken)
{
    for (const auto kind : { ColumnTotal::kCount, ColumnTotal::kLeast, ColumnTotal::kGreatest, ColumnTotal::kMean,
                             ColumnTotal::kCalculated })
        EXPECT_EQ(kind, TotalTokens::kindOf(TotalTokens::of(totalOf(kind), L"%Rate", L"%SumBy:%Cost")));
    EXPECT_EQ(ColumnTotal::kSum, TotalTokens::kindOf(L"%SumBy:%Cost"));
    EXPECT_EQ(ColumnTotal::kSum, TotalTokens::kindOf(L"%Cost"));
}

TEST(TotalTokensTest, ATotalIsAboutWhatIsSummed)
{
    const VorString formula = L"%SumBy:%Formula:%Weight*2";
    EXPECT_EQ(VorString(L"%Formula:%Weight*2"), TotalTokens::datumOf(formula));
    EXPECT_EQ(VorString(L"%Formula:%Weight*2"),
              TotalTokens::datumOf(TotalTokens::of(totalOf(ColumnTotal::kMean), L"%Rate", formula)));
    EXPECT_EQ(VorString(L"%Weight"), TotalTokens::datumOf(L"%Weight"));
}

TEST(TotalTokensTest, WhatIsCalculatedIsKnownByItsColumn)
{
    EXPECT_EQ(VorString(L"%TotalIn:%Rate"),
              TotalTokens::of(totalOf(ColumnTotal::kCalculated), L"%Rate", L"%SumBy:%Cost"));
}
}
