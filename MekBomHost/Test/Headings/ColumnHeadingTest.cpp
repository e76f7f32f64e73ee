#include "ColumnHeading.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
struct NameCase
{
    const char* field;
    const char* token;
    const char* unit;
};

const NameCase kNames[] = {
    { "Weight", "%Weight", "" },
    { "%Weight", "%Weight", "" },
    { "%%PaintMeter", "%%PaintMeter", "" }, // the token itself starts with two
    { "Length [ft]", "%Length", "ft" },
    { "%Paint[m2]", "%Paint", "m2" },
    { "  %Length  [ mm ] ", "%Length", "mm" },
    { "Bolt name", "%Bolt name", "" },
    { "a]", "%a]", "" },
    { "a [b] c", "%a [b] c", "" }, // brackets count at the end only
    { "a []", "%a", "" },
    { "a [b] [c]", "%a [b]", "c" },
    { "", "%", "" },
    { "  ", "%", "" },
    { "%", "%", "" },
    { "[mm]", "%", "mm" },
    { "]", "%]", "" },
};
}

TEST(ColumnHeadingTest, FieldsAreSplitIntoTokenAndUnit)
{
    for (const NameCase& test : kNames)
    {
        const ColumnHeading name = ColumnHeading::parse(test.field);
        EXPECT_EQ(test.token, name.token) << test.field;
        EXPECT_EQ(test.unit, name.unit) << test.field;
    }
}

TEST(ColumnHeadingTest, TokensGetTheirPercentSign)
{
    EXPECT_EQ("%Paint", ColumnHeading::tokenOf("Paint"));
    EXPECT_EQ("%Paint", ColumnHeading::tokenOf("%Paint"));
}
}
