#include "ExpressionEvaluator/Src/VorFormulaText.h"

#include "ExpressionEvaluator/Src/evaluateFormula.h"

#include <gtest/gtest.h>

#include <string>

TEST(VorFormulaTextTest, AFormulaHasFourCharactersAndAnOperator)
{
    for (const wchar_t* text : { L"a*35", L"12/3", L"1+23", L"1-23", L"a=12", L"(abc", L"abc)", L"    +", L"()()" })
        EXPECT_TRUE(VorFormulaText::isFormula(text)) << text;
    for (const wchar_t* text : { L"", L"1+2", L"+++", L"12345", L"%Weight", L"a;b;c", L"a b c", L"a^2," })
        EXPECT_FALSE(VorFormulaText::isFormula(text)) << text;
    EXPECT_TRUE(VorFormulaText::isFormula({ L"12\0 *2", 6 }));
}

TEST(VorFormulaTextTest, DelimitersAreTheOperatorsAndTheBlanks)
{
    EXPECT_EQ(L"*/+-=()", VorFormulaText::kOperators);
    EXPECT_EQ(L" \t\n\r", VorFormulaText::kBlanks);
    EXPECT_EQ(std::wstring(VorFormulaText::kOperators) + std::wstring(VorFormulaText::kBlanks),
              VorFormulaText::kDelimiters);
}

TEST(VorFormulaTextTest, WhatIsNoFormulaIsNotComputed)
{
    const wchar_t* const names[] = { L"a" };
    const double values[] = { 2.0 };
    for (const wchar_t* text : { L"a*35", L"a*3", L"  a ", L"a=12", L"12/3", L"1/3" })
        EXPECT_EQ(VorFormulaText::isFormula(text) ? 1 : 0, evaluateFormula(text, names, values, 1, nullptr)) << text;
}
