#include "ExpressionEvaluator/Src/VorExprEvVariable.h"
#include "Support/FormulaSupport.h"

#include <memory>

TEST(VorExprEvVariableTest, ItKeepsACopyOfTheValueAndAViewOfTheName)
{
    const LeakCheck leaks;
    const wchar_t name[] = L"%Length";
    VorExprEvValue value = doubleValue(2.5);

    const auto pVariable = std::make_unique<VorExprEvVariable>(view(name), value, nullptr);
    value.setDouble(9.0);

    EXPECT_EQ(2.5, pVariable->value().toNumber());
    EXPECT_EQ(name, pVariable->name().text());
    EXPECT_EQ(nullptr, pVariable->next());
}
