#include "WorkbookFile.h"

#include "Support/HostTestSupport.h"
#include "Support/TemporaryFolder.h"
#include "Support/UnpackedWorkbook.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace mekbom
{
namespace
{
std::string completed(WorkbookFile& file)
{
    StringSink sink;
    file.writeTo(sink);
    EXPECT_FALSE(sink.isFinished);
    return sink.text;
}

void writeNumber(lxw_worksheet& sheet, lxw_row_t row, double number)
{
    WorkbookFile::require(worksheet_write_number(&sheet, row, 0, number, nullptr));
}

class FullSink : public TextSink
{
public:
    void write(std::string_view) override { throw std::runtime_error("full"); }
    void finish() override {}
};
}

TEST(WorkbookFileTest, SheetsStandInTheirOrder)
{
    WorkbookFile file("Parts");
    lxw_worksheet& first = file.addSheet("First");
    lxw_worksheet& second = file.addSheet("Second & last");
    writeNumber(second, 0, 2);
    writeNumber(first, 0, 1);

    const std::string workbook = completed(file);

    const std::string sheets = partOf(workbook, "xl/workbook.xml");
    EXPECT_NE(std::string::npos, sheets.find("<sheet name=\"First\" sheetId=\"1\""));
    EXPECT_NE(std::string::npos, sheets.find("<sheet name=\"Second &amp; last\" sheetId=\"2\""));
    EXPECT_EQ("0 A1=1\n", rowsOf(sheetOf(workbook, 1)));
    EXPECT_EQ("0 A1=2\n", rowsOf(sheetOf(workbook, 2)));
}

TEST(WorkbookFileTest, ManyRowsAreAllThere)
{
    const lxw_row_t numRows = 50000;
    WorkbookFile file("Parts");
    lxw_worksheet& sheet = file.addSheet("List");
    for (lxw_row_t row = 0; row < numRows; ++row)
        writeNumber(sheet, row, row);

    const std::string rows = sheetOf(completed(file), 1);

    EXPECT_NE(std::string::npos, rows.find("<c r=\"A1\"><v>0</v></c>"));
    EXPECT_NE(std::string::npos, rows.find("<c r=\"A50000\"><v>49999</v></c>"));
}

TEST(WorkbookFileTest, TheTitleIsThatOfTheDocument)
{
    WorkbookFile file("Smith & Söhne <1>");
    file.addSheet("List");

    const std::string properties = partOf(completed(file), "docProps/core.xml");

    EXPECT_NE(std::string::npos, properties.find("<dc:title>Smith &amp; Söhne &lt;1&gt;</dc:title>")) << properties;
}

TEST(WorkbookFileTest, NobodyIsNamedAsItsAuthor)
{
    WorkbookFile file("Parts");
    file.addSheet("List");

    const std::string properties = partOf(completed(file), "docProps/core.xml");

    EXPECT_NE(std::string::npos, properties.find("<dc:creator></dc:creator>")) << properties;
    EXPECT_NE(std::string::npos, properties.find("<cp:lastModifiedBy></cp:lastModifiedBy>")) << properties;
}

TEST(WorkbookFileTest, WhatIsNeverCompletedLeavesNothing)
{
    const ScratchFolder scratch;
    const TemporaryFolder temporary(scratch.path().string());
    {
        WorkbookFile file("Parts");
        writeNumber(file.addSheet("List"), 0, 1);
        EXPECT_TRUE(std::filesystem::is_empty(scratch.path()));
    }
    EXPECT_TRUE(std::filesystem::is_empty(scratch.path()));
}

TEST(WorkbookFileTest, ASinkThatFailsLeavesNothing)
{
    const ScratchFolder scratch;
    const TemporaryFolder temporary(scratch.path().string());
    WorkbookFile file("Parts");
    writeNumber(file.addSheet("List"), 0, 1);
    FullSink sink;

    EXPECT_THROW(file.writeTo(sink), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_empty(scratch.path()));
}

TEST(WorkbookFileTest, NoRoomForTemporaryFilesIsAFault)
{
    const TemporaryFolder temporary("/dev/fd"); // a folder that takes no files

    const std::string fault = faultOf([] { WorkbookFile("Parts").addSheet("List"); });

    EXPECT_EQ(0u, fault.find("4 ")) << fault;
    EXPECT_NE(std::string::npos, fault.find("/dev/fd")) << fault;
}

// Row 1,048,577 of a sheet: what the library does not take is not left out in silence.
TEST(WorkbookFileTest, WhatTheLibraryRefusesIsAFault)
{
    WorkbookFile file("Parts");
    lxw_worksheet& sheet = file.addSheet("List");

    EXPECT_EQ("", faultOf([&] { writeNumber(sheet, 0, 1); }));
    const std::string fault = faultOf([&] { writeNumber(sheet, 1048576, 1); });
    EXPECT_EQ(0u, fault.find("4 a workbook cannot be written: ")) << fault;
}
}
