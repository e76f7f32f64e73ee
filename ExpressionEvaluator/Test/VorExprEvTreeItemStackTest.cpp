#include "ExpressionEvaluator/Src/Tree/VorExprEvTreeItemStack.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "Support/FormulaSupport.h"

#include <memory>

TEST(VorExprEvTreeItemStackTest, TheLastPushedIsPoppedFirst)
{
    const LeakCheck leaks;
    VorExprEvTreeItemStack stack;
    auto* pFirst = new VorExprEvTreeItemOperand(view(L"1"));
    auto* pSecond = new VorExprEvTreeItemOperand(view(L"2"));
    stack.push(pFirst);
    stack.push(pSecond);

    EXPECT_EQ(pSecond, stack.top());
    EXPECT_EQ(pFirst, stack.top()->next());

    const std::unique_ptr<VorExprEvTreeItem> pPopped(stack.pop());
    EXPECT_EQ(pSecond, pPopped.get());
    EXPECT_EQ(nullptr, pPopped->next());
    EXPECT_EQ(pFirst, stack.top());
}

TEST(VorExprEvTreeItemStackTest, AnEmptyStackPopsNothing)
{
    VorExprEvTreeItemStack stack;

    stack.push(nullptr);

    EXPECT_EQ(1, stack.isEmpty());
    EXPECT_EQ(nullptr, stack.top());
    EXPECT_EQ(nullptr, stack.pop());
}

TEST(VorExprEvTreeItemStackTest, WhatIsLeftIsDeleted)
{
    const LeakCheck leaks;
    VorExprEvTreeItemStack stack;
    for (int i = 0; i < 1000; ++i)
        stack.push(new VorExprEvTreeItemOperand(view(L"1")));

    EXPECT_EQ(0, stack.isEmpty());
}
