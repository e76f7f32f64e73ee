#include "ExpressionEvaluator/Src/Reading/VorStatementText.h"

#include "ExpressionEvaluator/Test/Support/FormulaSupport.h"

using namespace VorFormulaCharacters;

namespace
{
// The operand that begins `nPlace` characters behind the start, and where reading goes on: "my length" 10.
std::string operandAt(const VorStatementText& text, int nPlace)
{
    VorExprEvTextView operand;
    const wchar_t* pEnd = text.readOperand(text.begin() + nPlace, operand);
    return toUtf8(textOf(operand)) + " " + std::to_string(pEnd - text.begin());
}
}

TEST(VorStatementTextTest, AnOperandReachesToTheNextOperatorWithoutTheBlanksBeforeIt)
{
    const VorStatementText text(view(L" my length * 2"));

    EXPECT_EQ("my length 11", operandAt(text, 1));
    EXPECT_EQ("2 14", operandAt(text, 13));
    EXPECT_EQ(VorString(L"*"), textOf(text.operatorAt(text.begin() + 11)));
}

TEST(VorStatementTextTest, EveryCharacterHasItsKindAndTheEndIsNotLookedAt)
{
    const VorStatementText text(view(L"a;+ (b").part(0, 4));

    EXPECT_EQ(kOperand, text.kindAt(text.begin()));
    EXPECT_EQ(kOperand, text.kindAt(text.begin() + 1)); // the statement is one of several no longer
    EXPECT_EQ(kSum, text.kindAt(text.begin() + 2));
    EXPECT_EQ(kNothing, text.kindAt(text.begin() + 3));
    EXPECT_EQ(kEnd, text.kindAt(text.begin() + 4)); // though a '(' stands there
}

TEST(VorStatementTextTest, AStatementWithinATextIsReadAsIfItStoodAlone)
{
    const VorStatementText text(view(L"x*12+34*y").part(2, 6));

    EXPECT_EQ("12 2", operandAt(text, 0));
    EXPECT_EQ("3 4", operandAt(text, 3));
}

// The last statement of several is measured by the one before it: that of "a=4;2*a" is one character longer than "2*a",
// and that character is zero.
TEST(VorStatementTextTest, TheLastOperandTakesInTheZeroCharactersBeyondTheText)
{
    const VorStatementText beyond(VorExprEvTextView(L"2*a", 0, 5, 3));
    EXPECT_EQ("2 1", operandAt(beyond, 0));
    EXPECT_EQ("a\\0\\0 3", operandAt(beyond, 2));
    EXPECT_EQ(kEnd, beyond.kindAt(beyond.begin() + 3));

    const VorStatementText blankBefore(VorExprEvTextView(L"a ", 0, 3, 2));
    EXPECT_EQ("a \\0 2", operandAt(blankBefore, 0)); // the blank is not at the operand's end
}

TEST(VorStatementTextTest, WithoutCharactersThereIsNothingButTheEnd)
{
    for (const VorExprEvTextView& none :
         { VorExprEvTextView(), VorExprEvTextView(nullptr, 0, 0), view(L""), VorExprEvTextView(L"a", 1, 4, 1) })
    {
        const VorStatementText text(none);
        ASSERT_NE(nullptr, text.begin());
        EXPECT_EQ(kEnd, text.kindAt(text.begin()));
    }
}
