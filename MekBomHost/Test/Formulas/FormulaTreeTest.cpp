#include "FormulaTree.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
FormulaNode name(const wchar_t* text)
{
    FormulaNode node;
    node.kind = FormulaNode::kName;
    node.text = text;
    return node;
}

FormulaNode binary(wchar_t operation, int left, int right)
{
    FormulaNode node;
    node.kind = FormulaNode::kOperator;
    node.operation = operation;
    node.left = left;
    node.right = right;
    return node;
}
}

TEST(FormulaTreeTest, OperatorsAreWrittenInBracketsWithBothSides)
{
    FormulaTree tree;
    const int a = tree.add(name(L"a"));
    const int b = tree.add(name(L"b"));
    const int product = tree.add(binary(L'*', a, b));
    const int nothing = tree.add(FormulaNode());
    const int negation = tree.add(binary(L'-', nothing, product));
    tree.endStatement(tree.add(binary(L'/', negation, FormulaNode::kNoSide)));

    EXPECT_EQ("((-(a*b))/0)", tree.text());
}

TEST(FormulaTreeTest, TheRootIsThatOfTheLastStatementThatHasOne)
{
    FormulaTree tree;
    EXPECT_EQ(FormulaNode::kNoSide, tree.root());

    tree.endStatement(tree.add(name(L"a")));
    const int b = tree.add(name(L"b"));
    tree.endStatement(b);
    tree.endStatement(FormulaNode::kNoSide);

    EXPECT_EQ(b, tree.root());
    EXPECT_EQ("a;b;", tree.text());
}

TEST(FormulaTreeTest, WhatStandsBelowNoRootIsNotComputed)
{
    FormulaTree tree;
    tree.add(name(L"lost"));
    const int target = tree.add(name(L"a"));
    const int value = tree.add(name(L"b"));
    tree.endStatement(tree.add(binary(L'=', target, value)));

    EXPECT_FALSE(tree.nodes()[0].isComputed);
    EXPECT_FALSE(tree.nodes()[1].isComputed);
    EXPECT_TRUE(tree.nodes()[2].isComputed);
    EXPECT_TRUE(tree.nodes()[3].isComputed);
}

TEST(FormulaTreeTest, NumbersCutShortAreWrittenAsTheyAreRead)
{
    FormulaNode number;
    number.kind = FormulaNode::kNumber;
    number.text = L"2,5";
    number.number = 2.0;
    number.numRead = 1;
    FormulaTree tree;
    tree.endStatement(tree.add(number));
    number.text = L"0.10";
    number.numRead = 4;
    tree.endStatement(tree.add(number));

    EXPECT_EQ("2;0.10", tree.text());
}
}
