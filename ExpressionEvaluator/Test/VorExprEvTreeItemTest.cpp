// What both kinds of node share: children, deletion, printing.
#include "ExpressionEvaluator/Src/VorExprEvTreeItem.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperand.h"
#include "ExpressionEvaluator/Src/VorExprEvTreeItemOperator.h"
#include "Support/DebugLog.h"
#include "Support/FormulaSupport.h"

#include <memory>

namespace
{
constexpr int kDeep = 100000;

// Counts its deletions.
class CountedItem : public VorExprEvTreeItem
{
public:
    explicit CountedItem(std::string& order, char name) : VorExprEvTreeItem({}), m_order(order), m_cName(name) {}
    ~CountedItem() override { m_order += m_cName; }

    int print() const override { return printText(); }
    VorExprEvValue& evaluate(VorExprEvValue& value) const override { return value; }
    VorExprEvTextView getText() const override { return m_text; }
    int isComplete() const override { return 1; }
    int isOperator() const override { return 0; }

private:
    std::string& m_order;
    char m_cName;
};

VorExprEvTreeItem* operand(const wchar_t* text)
{
    return new VorExprEvTreeItemOperand(view(text));
}

VorExprEvTreeItem* plus(VorExprEvTreeItem* pLeft, VorExprEvTreeItem* pRight)
{
    auto* pItem = new VorExprEvTreeItemOperator(view(L"+"));
    pItem->setChildren(pLeft, pRight);
    return pItem;
}

VorString printed(const VorExprEvTreeItem& item)
{
    const DebugLog log;
    EXPECT_EQ(1, item.print());
    return log.text();
}
}

TEST(VorExprEvTreeItemTest, AFreshNodeStandsAlone)
{
    const VorExprEvTreeItemOperand item(view(L"a"));

    EXPECT_EQ(nullptr, item.left());
    EXPECT_EQ(nullptr, item.right());
    EXPECT_EQ(nullptr, item.next());
}

TEST(VorExprEvTreeItemTest, DeletingANodeDeletesEverythingBelowIt)
{
    const LeakCheck leaks;
    std::string order;
    auto* pRoot = new CountedItem(order, 'r');
    auto* pLeft = new CountedItem(order, 'l');
    pLeft->setChildren(new CountedItem(order, '1'), new CountedItem(order, '2'));
    pRoot->setChildren(pLeft, new CountedItem(order, '3'));

    delete pRoot;

    EXPECT_EQ(5U, order.size());
    for (const char name : { 'r', 'l', '1', '2', '3' })
        EXPECT_NE(std::string::npos, order.find(name)) << name;
}

TEST(VorExprEvTreeItemTest, ANodeOnTheStackIsDeletedWithItsChildren)
{
    const LeakCheck leaks;
    VorExprEvTreeItemOperator item(view(L"+"));
    item.setChildren(operand(L"1"), operand(L"2"));
}

TEST(VorExprEvTreeItemTest, WhatFollowsAsNextIsNotOwned)
{
    std::string order;
    CountedItem other(order, 'o');
    {
        CountedItem item(order, 'i');
        item.setNext(&other);
    }
    EXPECT_EQ("i", order);
}

TEST(VorExprEvTreeItemTest, DeepTreesAreDeleted)
{
    const LeakCheck leaks;
    VorExprEvTreeItem* pLeftDeep = operand(L"1");
    VorExprEvTreeItem* pRightDeep = operand(L"1");
    for (int i = 0; i < kDeep; ++i)
    {
        pLeftDeep = plus(pLeftDeep, operand(L"1"));
        pRightDeep = plus(operand(L"1"), pRightDeep);
    }

    delete pLeftDeep;
    delete pRightDeep;
}

TEST(VorExprEvTreeItemTest, DeepTreesAreEvaluated)
{
    VorExprEvTreeItem* pLeftDeep = operand(L"1");
    VorExprEvTreeItem* pRightDeep = operand(L"1");
    for (int i = 0; i < kDeep; ++i)
    {
        pLeftDeep = plus(pLeftDeep, operand(L"1"));
        pRightDeep = plus(operand(L"1"), pRightDeep);
    }
    const std::unique_ptr<VorExprEvTreeItem> pLeftOwner(pLeftDeep);
    const std::unique_ptr<VorExprEvTreeItem> pRightOwner(pRightDeep);
    VorExprEvValue value;

    EXPECT_EQ(kDeep + 1.0, pLeftDeep->evaluate(value).toNumber());
    EXPECT_EQ(kDeep + 1.0, pRightDeep->evaluate(value).toNumber());
}

TEST(VorExprEvTreeItemTest, PrintingWritesALineFeedAndTheText)
{
    EXPECT_EQ(VorString(L"\nmy length"), printed(VorExprEvTreeItemOperand(view(L"2*my length").part(2, 11))));
    EXPECT_EQ(VorString(L"\n*"), printed(VorExprEvTreeItemOperator(view(L"2*3").part(1, 2))));
}

TEST(VorExprEvTreeItemTest, PrintingANodeWithoutTextWritesZero)
{
    EXPECT_EQ(VorString(L"\n0"), printed(VorExprEvTreeItemOperand(VorExprEvTextView())));
}

TEST(VorExprEvTreeItemTest, PrintingCutsLongTexts)
{
    const std::wstring fits(999, L'x');
    const std::wstring tooLong(1000, L'x');

    EXPECT_EQ(1000, printed(VorExprEvTreeItemOperand(view(fits.c_str()))).length());
    EXPECT_EQ(1000, printed(VorExprEvTreeItemOperand(view(tooLong.c_str()))).length());
}

TEST(VorExprEvTreeItemTest, PrintingStopsAtTheTextsEnd)
{
    const wchar_t text[] = { L'a' };

    EXPECT_EQ(VorString(L"\na"), printed(VorExprEvTreeItemOperand(VorExprEvTextView(text, 0, 2000, 1))));
}
