#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include <gtest/gtest.h>

TEST(VorFormulaTextTest, AFormulaHasFourCharactersAndAnOperator)
{
    for (const wchar_t* text : { L"a*35", L"12/3", L"1+23", L"1-23", L"a=12", L"(abc", L"abc)", L"    +", L"()()" })
        EXPECT_TRUE(VorFormulaText::isFormula(text)) << text;
    for (const wchar_t* text : { L"", L"1+2", L"+++", L"12345", L"%Weight", L"a;b;c", L"a b c", L"a^2," })
        EXPECT_FALSE(VorFormulaText::isFormula(text)) << text;
    EXPECT_TRUE(VorFormulaText::isFormula({ L"12\0 *2", 6 }));
}
