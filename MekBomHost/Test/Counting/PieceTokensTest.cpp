#include "PieceTokens.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(PieceTokensTest, FormulasGrowThatArePiecesTimesSomething)
{
    for (const wchar_t* const token : { L"%Quantity", L"%Formula:%Weight*%Quantity",
                                        L"%Formula:%Quantity*2+%Quantity*%Length", L"%Formula:%Quantity/3*%Weight",
                                        L"%Formula:%Weight*%Quantity*0.001", L"%Formula:(%Length-%Width)*%Quantity/7" })
        EXPECT_TRUE(PieceTokens::growWithPieces(token)) << token;
}

TEST(PieceTokensTest, NothingElseGrows)
{
    for (const wchar_t* const token : { L"%Weight", L"%Formula:%Weight/%Quantity", L"%Formula:%Quantity+1",
                                        L"%Formula:%Quantity*%Quantity", L"%Formula:%Weight*2", L"%Formula:)(" })
        EXPECT_FALSE(PieceTokens::growWithPieces(token)) << token;
}

// It was lost beside the weight, and so added to a line once for each of its rows.
TEST(PieceTokensTest, ASmallConstantBesideTheProductDoesNotGrow)
{
    for (const wchar_t* const token : { L"%Formula:%Weight*%Quantity+0.05", L"%Formula:%Length*%Width*%Quantity-1",
                                        L"%Formula:%Weight*%Quantity+%Quantity*%Quantity*0.001" })
        EXPECT_FALSE(PieceTokens::growWithPieces(token)) << token;
}
}
