#include "VorMemoryHint.h"

#include <gtest/gtest.h>

TEST(VorMemoryHintTest, AnyAddressWillDoAndNothingChanges)
{
    int number = 7;

    VorMemoryHint::willRead(&number);
    VorMemoryHint::willRead(&number + 1);
    VorMemoryHint::willRead(nullptr);

    EXPECT_EQ(7, number);
}
