#include "PartsFacts.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(PartsFactsTest, ColumnsAreFoundByTheirToken)
{
    PartsFacts facts;
    facts.columns.resize(2);
    facts.columns[0].token = "%Name";
    facts.columns[1].token = "%Weight";

    EXPECT_EQ(&facts.columns[1], facts.find("%Weight"));
    EXPECT_EQ(nullptr, facts.find("%weight"));
}
}
