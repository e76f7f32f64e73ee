#include "WorkbookFault.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(WorkbookFaultTest, ThePartIsNamed)
{
    EXPECT_EQ(
        "3 parts.xlsx: xl/a?b.xml: found no sheet, expected at least one: open it in a spreadsheet program and save "
        "it anew\n",
        faultOf(
            [] {
                WorkbookFault::inPart({ "parts.xlsx", "xl/a\nb.xml" }, "no sheet", "at least one");
            }));
    EXPECT_EQ(
        "3 parts.xlsx: found a row of more than 8 MB, expected less: a file of parts this large is damaged, or made "
        "to do harm\n",
        faultOf(
            [] {
                WorkbookFault::tooLarge({ "parts.xlsx", "" }, "a row", 8 << 20);
            }));
    EXPECT_EQ("3 parts.ods: found text, expected a workbook (.xlsx) or CSV: save it as .xlsx\n",
              faultOf([] { WorkbookFault::ofOtherKind("parts.ods", "text", "save it as .xlsx"); }));
}
}
