#include "ExpressionEvaluator/Src/Reading/VorFormulaCharacters.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

using namespace VorFormulaCharacters;

namespace
{
// Characters of all sorts, those at the tables' ends and beyond among them.
std::wstring manyCharacters()
{
    std::wstring characters;
    for (wchar_t character = 0; character < 300; ++character)
        characters += character;
    return characters + L"\u20AC\uFFFF" + static_cast<wchar_t>(WCHAR_MAX);
}

eKind kindOfOperator(wchar_t character)
{
    switch (character)
    {
        case L'=': return kAssignment;
        case L'(':
        case L')': return kParenthesis;
        case L'+':
        case L'-': return kSum;
        default: return kProduct;
    }
}

eKind kindInStatement(wchar_t character)
{
    if (kOperators.holds(character))
        return kindOfOperator(character);
    return character == L'\0' || kBlanks.holds(character) ? kNothing : kOperand;
}

eKind kindInFormula(wchar_t character)
{
    if (character == L'\0' || character == L';')
        return kEnd;
    if (kindInStatement(character) != kOperand)
        return kindInStatement(character);
    if (VorCharacters::isDigit(character))
        return kDigit;
    return canStartNumber(character) ? kOperand : kName;
}
}

TEST(VorFormulaCharactersTest, EveryCharacterHasItsKindInAStatement)
{
    for (const wchar_t character : manyCharacters())
        EXPECT_EQ(kindInStatement(character), kKindsInStatement[character]) << static_cast<unsigned long>(character);
}

TEST(VorFormulaCharactersTest, EveryCharacterHasItsKindInAFormula)
{
    for (const wchar_t character : manyCharacters())
        EXPECT_EQ(kindInFormula(character), kKindsInFormula[character]) << static_cast<unsigned long>(character);
}

TEST(VorFormulaCharactersTest, NumbersStartWithDigitsPointSignSpaceOrTheNamesOfOddOnes)
{
    for (const wchar_t character : std::wstring(L"0123456789.+- \t\n\v\f\riInN\0", 24))
        EXPECT_TRUE(canStartNumber(character)) << static_cast<unsigned long>(character);
    for (const wchar_t character : std::wstring(L"%_aAxXeE#,*/=();\u00BD"))
        EXPECT_FALSE(canStartNumber(character)) << static_cast<unsigned long>(character);
}

TEST(VorFormulaCharactersTest, AnOperandEndsAtAnOperatorOrTheStatementsEndBehindBlanks)
{
    for (const wchar_t* text : { L"", L";a", L"+1", L"*", L"=", L"(", L")" })
        EXPECT_EQ(text, endOperand(text)) << text;
    const wchar_t blanks[] = L" \t\n\r /2";
    EXPECT_EQ(blanks + 5, endOperand(blanks));
    for (const wchar_t* text : { L"a", L" a", L" 2+a", L"\v+", L"\u20AC" })
        EXPECT_EQ(nullptr, endOperand(text)) << text;
}

TEST(VorFormulaCharactersTest, AnOperandHasNoOperatorsAndNoBlankAtItsEnd)
{
    for (const wchar_t* text : { L"a", L"%Weight", L"my length", L"\u20AC", L"1.5", L"\v" })
        EXPECT_TRUE(canBeOperand(text)) << text;
    for (const wchar_t* text :
         { L"", L" ", L"a ", L"a\t", L"a\n", L"a+b", L"-a", L"a*", L"(a)", L"a=", L"a;b", L"a/b" })
        EXPECT_FALSE(canBeOperand(text)) << text;
    EXPECT_FALSE(canBeOperand(std::wstring_view(L"a\0b", 3)));
}
