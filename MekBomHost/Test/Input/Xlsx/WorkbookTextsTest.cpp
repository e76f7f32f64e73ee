#include "WorkbookTexts.h"

#include "MemorySource.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(WorkbookTextsTest, TextsAreFoundByTheirNumbers)
{
    MemorySource part("xl/sharedStrings.xml",
                      "<sst count=\"9\"><si><t>HEA200</t></si><si/><si><t>a_x000D_b</t></si></sst>");
    WorkbookTexts texts;
    texts.read(part, "parts.xlsx");

    EXPECT_EQ("HEA200", texts.find(0));
    EXPECT_EQ("", texts.find(1));
    EXPECT_EQ("a\rb", texts.find(2));
    EXPECT_FALSE(texts.find(3));
    EXPECT_FALSE(WorkbookTexts().find(0));
}

TEST(WorkbookTextsTest, BytesThatAreNoTextAreRefused)
{
    MemorySource part("xl/sharedStrings.xml", "<sst><si><t>Tr\xE4ger</t></si></sst>");
    WorkbookTexts texts;

    EXPECT_EQ("3 parts.xlsx: xl/sharedStrings.xml: found bytes that are no UTF-8, expected text in UTF-8: open it in a "
              "spreadsheet program and save it anew\n",
              faultOf([&] { texts.read(part, "parts.xlsx"); }));
}
}
