#include "ExpressionEvaluator/Src/VorFormulaStatements.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
// The statements in brackets, a '0' for each zero character beyond the text.
std::string statementsOf(const VorString& formula)
{
    std::string text;
    VorFormulaStatements statements(formula.getStringW(), formula.length());
    while (statements.next())
    {
        const VorExprEvTextView& view = statements.current();
        const std::wstring_view existing = view.existingPart();
        text += "[" + toUtf8(VorString(existing.data(), static_cast<int>(existing.size())));
        text.append(static_cast<std::size_t>(view.length()) - existing.size(), '0');
        text += "]";
    }
    return text;
}
}

TEST(VorFormulaStatementsTest, AFormulaWithoutASeparatorIsOneStatement)
{
    EXPECT_EQ("[a*2+3]", statementsOf(L"a*2+3"));
    EXPECT_EQ("[]", statementsOf(L""));
}

TEST(VorFormulaStatementsTest, TheLastOfSeveralStatementsReachesBeyondTheFormula)
{
    EXPECT_EQ("[a=4][a*20]", statementsOf(L"a=4;a*2"));
    EXPECT_EQ("[a=4][0]", statementsOf(L"a=4;"));
    EXPECT_EQ("[a=1][b=22][c*b00000]", statementsOf(L"a=1;b=22;c*b"));
    EXPECT_EQ("[a=4][][a*200000]", statementsOf(L"a=4;;a*2"));
}

TEST(VorFormulaStatementsTest, ATextThatIsNullHasOneEmptyStatement)
{
    VorFormulaStatements statements(nullptr, 0);

    EXPECT_EQ(1, statements.next());
    EXPECT_EQ(0, statements.current().length());
    EXPECT_EQ(0, statements.next());
    EXPECT_EQ(0, statements.next());
}
