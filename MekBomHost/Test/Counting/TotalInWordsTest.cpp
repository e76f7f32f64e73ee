#include "TotalInWords.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
std::string wordsFor(ColumnTotal::eKind kind, const wchar_t* datum)
{
    ColumnTotal total;
    total.kind = kind;
    return totalInWords(total, datum);
}
}

TEST(TotalInWordsTest, EachKindHasItsWords)
{
    EXPECT_EQ("the number of rows that have %Length", wordsFor(ColumnTotal::kCount, L"%Length"));
    EXPECT_EQ("the smallest %Length", wordsFor(ColumnTotal::kLeast, L"%Length"));
    EXPECT_EQ("the largest %Weight*2", wordsFor(ColumnTotal::kGreatest, L"%Formula:%Weight*2"));
    EXPECT_EQ("the mean %Length of all pieces", wordsFor(ColumnTotal::kMean, L"%Length"));
    EXPECT_EQ("the mean %Quantity of all rows", wordsFor(ColumnTotal::kMean, L"%Quantity"));
    EXPECT_EQ("%Length added up", wordsFor(ColumnTotal::kSum, L"%Length"));
}

TEST(TotalInWordsTest, AFormulaIsToldWithItsSums)
{
    ColumnTotal total;
    total.kind = ColumnTotal::kCalculated;
    total.formula = L"%C/%W";
    total.operands = { { L"%C", L"%SumBy:%Cost" }, { L"%W", L"%SumBy:%Formula:%Weight*%Quantity" } };
    EXPECT_EQ("%C/%W with %C the total of %Cost and %W the total of %Weight*%Quantity", totalInWords(total, L""));
}
}
