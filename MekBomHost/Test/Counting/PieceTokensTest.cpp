#include "PieceTokens.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(PieceTokensTest, FormulasGrowThatArePiecesTimesSomething)
{
    for (const wchar_t* const token :
         { L"%Quantity", L"%Formula:%Weight*%Quantity", L"%Formula:%Quantity*2+%Quantity*%Length" })
        EXPECT_TRUE(PieceTokens::growWithPieces(token)) << token;
}

TEST(PieceTokensTest, NothingElseGrows)
{
    for (const wchar_t* const token : { L"%Weight", L"%Formula:%Weight/%Quantity", L"%Formula:%Quantity+1",
                                        L"%Formula:%Quantity*%Quantity", L"%Formula:%Weight*2", L"%Formula:)(" })
        EXPECT_FALSE(PieceTokens::growWithPieces(token)) << token;
}
}
