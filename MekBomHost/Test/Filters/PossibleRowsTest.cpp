#include "PossibleRows.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace mekbom
{
namespace
{
bool canPass(const std::string& text, const std::set<std::string>& columns)
{
    RowFilter filter;
    EXPECT_FALSE(RowFilter::parse(text, filter)) << text;
    return PossibleRows::canPass(filter, [&columns](const std::string& token) { return columns.count(token) > 0; });
}
}

TEST(PossibleRowsTest, AConditionNeedsItsColumn)
{
    for (const char* const text : { "%A", "%A = 5", "%A < 5", "%A > 'x'", "not not %A", "%A and %B", "not (%A != 5)" })
    {
        EXPECT_TRUE(canPass(text, { "%A", "%B" })) << text;
        EXPECT_FALSE(canPass(text, { "%B" })) << text;
    }
}

TEST(PossibleRowsTest, WhatIsLackingPassesWhereItIsExcluded)
{
    for (const char* const text : { "", "not %A", "%A != 5", "!%A, %B", "not (%A and %B)", "%A or %B" })
        EXPECT_TRUE(canPass(text, { "%B" })) << text;
    EXPECT_TRUE(canPass("not %A", { "%A" })); // some rows may lack it
}

TEST(PossibleRowsTest, OneOfSeveralColumnsIsEnough)
{
    const std::string parts = "not %BoltName and (%PNum or %Name)";

    EXPECT_TRUE(canPass(parts, { "%PNum" }));
    EXPECT_TRUE(canPass(parts, { "%BoltName", "%Name" }));
    EXPECT_FALSE(canPass(parts, { "%BoltName", "%Weight" }));
}
}
