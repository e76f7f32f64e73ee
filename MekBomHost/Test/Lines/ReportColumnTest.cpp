#include "ReportColumn.h"

#include <gtest/gtest.h>

namespace mekbom
{
namespace
{
std::string headingOf(const std::string& label, const std::string& unitSymbol)
{
    ReportColumn column;
    column.label = label;
    column.unitSymbol = unitSymbol;
    return column.heading();
}
}

TEST(ReportColumnTest, HeadingsNameTheirUnitOnce)
{
    EXPECT_EQ("Length [mm]", headingOf("Length", "mm"));
    EXPECT_EQ("Length", headingOf("Length", ""));
    EXPECT_EQ("Length [metres]", headingOf("Length [metres]", "mm"));
    EXPECT_EQ("mm", headingOf("mm", "mm"));
    EXPECT_EQ("mm [ft-in]", headingOf("mm", "ft-in"));
    EXPECT_EQ(" [mm]", headingOf("", "mm"));
}
}
