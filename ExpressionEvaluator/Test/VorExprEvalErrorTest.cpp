#include "ExpressionEvaluator/Src/VorExprEvalError.h"
#include "Support/FormulaSupport.h"

namespace
{
struct MessageCase
{
    int nCode;
    const wchar_t* message;
};

const MessageCase kMessages[] = {
    { 0, L"Syntax error" },        { 1, L"Out of memory" },        { 2, L"Not enough parameters" },
    { 3, L"Too many parameters" }, { 4, L"Impaired paranthesis" }, { 5, L"Division by zero" },
};
}

TEST(VorExprEvalErrorTest, EveryCodeHasItsMessage)
{
    EXPECT_EQ(static_cast<std::size_t>(VorExprEvalError::kNumCodes), std::size(kMessages));
    for (const MessageCase& c : kMessages)
        EXPECT_EQ(VorString(c.message), VorString(VorExprEvalError(c.nCode, nullptr).message()));
}

TEST(VorExprEvalErrorTest, OtherCodesHaveAnEmptyMessage)
{
    EXPECT_EQ(VorString(), VorString(VorExprEvalError::message(-1)));
    EXPECT_EQ(VorString(), VorString(VorExprEvalError::message(6)));
}

TEST(VorExprEvalErrorTest, NamesStandForTheirCodes)
{
    EXPECT_EQ(0, VorExprEvalError::kSyntaxError);
    EXPECT_EQ(4, VorExprEvalError::kImpairedParenthesis);
    EXPECT_EQ(5, VorExprEvalError::kDivisionByZero);
}
