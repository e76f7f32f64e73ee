#include "ExpressionEvaluator/Src/Reading/VorShortStack.h"

#include <gtest/gtest.h>

TEST(VorShortStackTest, WhatIsPushedLastIsPoppedFirstHoweverDeep)
{
    using Stack = VorShortStack<int, 4>;
    constexpr int kDeep = 1000; // far beyond the room it has at first
    Stack::Room room;
    Stack numbers(room);
    EXPECT_TRUE(numbers.isEmpty());

    for (int i = 0; i < kDeep; ++i)
    {
        numbers.push(i);
        ASSERT_EQ(i, numbers.top());
        ASSERT_EQ(static_cast<std::size_t>(i + 1), numbers.size());
    }
    for (int i = 0; i < kDeep; ++i)
        ASSERT_EQ(i, numbers[static_cast<std::size_t>(i)]);
    for (int i = kDeep - 1; i >= 0; --i)
        ASSERT_EQ(i, numbers.pop());

    EXPECT_TRUE(numbers.isEmpty());
}
