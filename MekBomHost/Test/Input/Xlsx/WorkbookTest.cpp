#include "Workbook.h"

#include "Support/HostTestSupport.h"
#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const std::string kRemedy = ": open it in a spreadsheet program and save it anew\n";

std::string faultIn(const PackedFiles& files)
{
    return faultOf([&] { Workbook("parts.xlsx", packed(files)); });
}

PackedFiles withFile(PackedFiles files, const std::string& name, const std::string& content)
{
    for (auto& file : files)
        if (file.first == name)
            file.second = content;
    return files;
}

PackedFiles withoutFile(PackedFiles files, const std::string& name)
{
    for (auto& file : files)
        if (file.first == name)
            file.first = "gone";
    return files;
}

PackedFiles soundFiles()
{
    BuiltWorkbook workbook = BuiltWorkbook::ofRows("");
    workbook.texts = "<si><t>a</t></si>";
    workbook.styles = "<cellXfs><xf numFmtId=\"14\"/></cellXfs>";
    return workbook.files();
}
}

TEST(WorkbookTest, SheetsTextsAndStylesAreFoundByTheirRelations)
{
    const Workbook workbook("parts.xlsx", packed(soundFiles()));

    ASSERT_EQ(1U, workbook.sheets().size());
    EXPECT_EQ("Parts", workbook.sheets()[0].name);
    EXPECT_FALSE(workbook.sheets()[0].isHidden);
    EXPECT_EQ("a", workbook.texts().find(0));
    EXPECT_EQ(NumberFormat::kDate, workbook.styles().formatOf(0).kind);
    EXPECT_EQ(BuiltWorkbook::sheetOf(""), workbook.open(workbook.sheets()[0])->readAll());
}

TEST(WorkbookTest, PartsMayStandWhereverTheRelationsSay)
{
    const Workbook workbook(
        "parts.xlsx",
        packed({ { "_rels/.rels",
                   "<r:Relationships xmlns:r=\"urn:r\"><r:Relationship Id=\"a\" Type=\"urn:x/officeDocument\""
                   " Target=\"/deep/book/main.xml\"/></r:Relationships>" },
                 { "deep/book/main.xml", "<book><sheets><sheet name=\"A\" id=\"1\"/></sheets></book>" },
                 { "deep/book/_rels/main.xml.rels",
                   "<Relationships><Relationship Id=\"1\" Type=\"x/worksheet\" Target=\".././../cells.xml\"/>"
                   "<Relationship Id=\"2\" Type=\"x/styles\" TargetMode=\"External\" "
                   "Target=\"http://x\"/></Relationships>" },
                 { "cells.xml", "<worksheet/>" } }));

    EXPECT_EQ("cells.xml", workbook.sheets().front().path);
}

TEST(WorkbookTest, MissingPartsAreNamed)
{
    for (const char* const pPart :
         { "xl/workbook.xml", "xl/_rels/workbook.xml.rels", "xl/sharedStrings.xml", "xl/styles.xml" })
        EXPECT_EQ(std::string("3 parts.xlsx: ") + pPart +
                      ": found no such part, expected the one that the workbook refers to" + kRemedy,
                  faultIn(withoutFile(soundFiles(), pPart)));
}

TEST(WorkbookTest, AWorkbookWithoutSheetsIsRefused)
{
    const std::string fault = "3 parts.xlsx: xl/workbook.xml: found ";

    EXPECT_EQ(fault + "no sheet of cells, expected at least one" + kRemedy,
              faultIn(withFile(soundFiles(), "xl/workbook.xml", "<document/>")));
    EXPECT_EQ(fault + "a sheet without a part, expected one for each" + kRemedy,
              faultIn(withFile(soundFiles(), "xl/workbook.xml",
                               "<workbook><sheets><sheet name=\"A\" r:id=\"rId9\"/></sheets></workbook>")));
    EXPECT_EQ("3 parts.xlsx: _rels/.rels: found no workbook, expected one" + kRemedy,
              faultIn(withFile(soundFiles(), "_rels/.rels", "<Relationships/>")));
}

TEST(WorkbookTest, FilesOfOtherKindsAreNamed)
{
    const std::string expected = ", expected a workbook (.xlsx) or CSV: save ";

    EXPECT_EQ("3 parts.xlsx: found an OpenDocument file" + expected + "the sheet as .xlsx or .csv\n",
              faultIn({ { "mimetype", "application/x" }, { "content.xml", "<a/>" } }));
    EXPECT_EQ("3 parts.xlsx: found a packed file that is no workbook" + expected + "the sheet as .xlsx or .csv\n",
              faultIn({ { "readme.txt", "text" } }));
    EXPECT_EQ("3 parts.xlsx: found a binary workbook (.xlsb)" + expected + "it as .xlsx\n",
              faultIn(withFile(soundFiles(), "_rels/.rels",
                               "<Relationships><Relationship Id=\"a\" Type=\"x/officeDocument\" "
                               "Target=\"xl/workbook.bin\"/></Relationships>")));
}
}
