#include "PartRelations.h"

#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(PartRelationsTest, TargetsAreNamesWithinTheArchive)
{
    struct
    {
        const char* target;
        const char* path;
    } const cases[] = {
        { "worksheets/sheet1.xml", "xl/worksheets/sheet1.xml" },
        { "/xl/styles.xml", "xl/styles.xml" },
        { "../shared/texts.xml", "shared/texts.xml" },
        { "./a/../b.xml", "xl/b.xml" },
        { "../../../a.xml", "a.xml" }, // above the archive is nothing
        { "a//b.xml", "xl/a/b.xml" },
        { "", "xl/" },
    };
    for (const auto& testCase : cases)
    {
        const ZipArchive archive("parts.xlsx",
                                 packed({ { "xl/_rels/workbook.xml.rels",
                                            std::string("<Relationships><Relationship Id=\"1\" Type=\"urn:a/b\""
                                                        " Target=\"") +
                                                testCase.target + "\"/></Relationships>" } }));
        const PartRelations relations(archive, "xl/workbook.xml");
        ASSERT_NE(nullptr, relations.find("1"));
        EXPECT_EQ(testCase.path, relations.find("1")->path) << testCase.target;
        EXPECT_EQ(relations.find("1"), relations.ofType("b"));
        EXPECT_EQ(nullptr, relations.find("2"));
        EXPECT_EQ(nullptr, relations.ofType("urn:a/b"));
    }
}
}
