#include "Environment.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace mekbom
{
TEST(EnvironmentTest, OnlyVariablesThatAreAskedForAndSetAreThere)
{
    const char* const pPath = std::getenv("PATH");
    ASSERT_NE(nullptr, pPath);

    const auto variables = Environment::variables({ "MEKBOM_NOBODY_SETS_THIS", "PATH" });

    ASSERT_EQ(1U, variables.size());
    EXPECT_EQ("PATH", variables[0].first);
    EXPECT_EQ(pPath, variables[0].second);
}
}
