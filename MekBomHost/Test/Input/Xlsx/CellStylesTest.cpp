#include "CellStyles.h"

#include "MemorySource.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(CellStylesTest, AStyleHasTheFormatThatItsNumberNames)
{
    MemorySource part(
        "xl/styles.xml",
        "<styleSheet><numFmts><numFmt numFmtId=\"164\" formatCode=\"0.0&quot; kg&quot;\"/>"
        "<numFmt numFmtId=\"14\" formatCode=\"0\"/></numFmts>"
        "<cellStyleXfs><xf numFmtId=\"9\"/></cellStyleXfs>"
        "<cellXfs><xf/><xf numFmtId=\"15\"/><xf numFmtId=\"14\"/><xf numFmtId=\"164\"/><xf numFmtId=\"999\"/>"
        "</cellXfs></styleSheet>");
    CellStyles styles;
    styles.read(part, "parts.xlsx");

    EXPECT_EQ(NumberFormat::kPlain, styles.formatOf(0).kind);
    EXPECT_EQ(NumberFormat::kDate, styles.formatOf(1).kind);
    EXPECT_EQ(NumberFormat::kPlain, styles.formatOf(2).kind); // the workbook's code counts
    EXPECT_EQ("kg", styles.formatOf(3).unit);
    EXPECT_EQ(NumberFormat::kPlain, styles.formatOf(4).kind);
    EXPECT_EQ(NumberFormat::kPlain, styles.formatOf(5).kind);
    EXPECT_EQ(NumberFormat::kPlain, CellStyles().formatOf(0).kind);
}
}
