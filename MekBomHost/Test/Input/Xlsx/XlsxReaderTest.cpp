#include "XlsxReader.h"

#include "MemorySource.h"

#include "Support/HostTestSupport.h"
#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
const std::string kHeader = textRow({ "Mark", "Length" });

std::string placeOf(const XlsxReader& reader, std::size_t index)
{
    Finding finding;
    reader.placeCell(index, finding);
    EXPECT_EQ("parts.xlsx", finding.source);
    return finding.path;
}

// "12" for a number, "[HEA200]" for a text, "-" for nothing, "(a date)" for a refused value.
std::string shown(const RecordCell& cell)
{
    if (cell.isNothing())
        return "-";
    if (cell.isRefused())
        return "(" + cell.refusal().found + ")";
    return cell.isNumber() ? cell.asText() : "[" + std::string(cell.text()) + "]";
}

// Each record as "Parts!A2: [B1] 6000" and a line end.
std::string recordsOf(const std::string& bytes, const std::string& sheet = std::string())
{
    MemorySource source("parts.xlsx", bytes);
    FindingList notes;
    XlsxReader reader(source, sheet, notes);
    std::string records;
    while (const Record* const pRecord = reader.next())
    {
        records += placeOf(reader, 0) + ":";
        for (const RecordCell& cell : *pRecord)
            records += " " + shown(cell);
        records += "\n";
    }
    return records;
}

std::string faultIn(const std::string& bytes, const std::string& sheet = std::string())
{
    return faultOf([&] { recordsOf(bytes, sheet); });
}

std::string notesOn(const std::string& bytes, const std::string& sheet = std::string())
{
    MemorySource source("parts.xlsx", bytes);
    FindingList notes;
    const XlsxReader reader(source, sheet, notes);
    std::string text;
    for (const Finding& note : notes.all())
        text += note.code + " " + messageOf(note) + "\n";
    return text;
}

std::string sheetWithMerged(const std::string& range)
{
    BuiltWorkbook workbook = BuiltWorkbook::ofRows("");
    workbook.sheets[0].xml =
        BuiltWorkbook::sheetOf(kHeader + textRow({ "B1", "6000" }) + textRow({ "B2", "" }),
                               "<mergeCells count=\"1\"><mergeCell ref=\"" + range + "\"/></mergeCells>");
    return workbook.bytes();
}

BuiltWorkbook workbookOfThree()
{
    BuiltWorkbook workbook;
    workbook.sheets.push_back({ "Notes", BuiltWorkbook::sheetOf(textRow({ "a", "b" })), "state=\"hidden\"" });
    workbook.sheets.push_back({ "Parts", BuiltWorkbook::sheetOf(textRow({ "c", "d" })), "" });
    workbook.sheets.push_back({ "Chart", "<chartsheet/>", "", "chartsheet" });
    workbook.sheets.push_back({ "Prices", BuiltWorkbook::sheetOf(textRow({ "e", "f" })), "" });
    return workbook;
}
}

TEST(XlsxReaderTest, TheFirstRowOfTwoCellsNamesTheColumns)
{
    const std::string rows = kHeader + "<row>" + textCells({ "B1" }) + "<c><v>6000</v></c></row>";

    EXPECT_EQ("Parts!A1: [Mark] [Length]\nParts!A2: [B1] 6000\n", recordsOf(BuiltWorkbook::ofRows(rows).bytes()));
}

TEST(XlsxReaderTest, TitlesAboveTheHeaderRowArePassedOverAndTold)
{
    const std::string rows = "<row r=\"2\">" + textCells({ "Hall 7" }) +
                             "</row><row/><row r=\"5\"><c r=\"B5\"><v>1</v></c>" +
                             "<c r=\"D5\"><v>2</v></c></row><row><c r=\"D6\"><v>3</v></c></row>";
    const std::string bytes = BuiltWorkbook::ofRows(rows).bytes();

    EXPECT_EQ("Parts!B5: 1 2\nParts!B6: - 3\n", recordsOf(bytes));
    EXPECT_EQ("MB745 parts.xlsx: the header row is Parts!B5; what stands above it, from row 2 on, is not read\n",
              notesOn(bytes));
}

TEST(XlsxReaderTest, ASheetOfOneColumnBeginsAtItsFirstRow)
{
    const std::string bytes = BuiltWorkbook::ofRows("<row/>" + textRow({ "Mark" }) + textRow({ "B1" })).bytes();

    EXPECT_EQ("Parts!A2: [Mark]\nParts!A3: [B1]\n", recordsOf(bytes));
    EXPECT_EQ("", notesOn(bytes));
}

TEST(XlsxReaderTest, EmptyRowsAndSkippedCellsAreNothing)
{
    const std::string rows =
        kHeader + "<row r=\"7\"><c r=\"A7\" s=\"1\"/></row><row r=\"9\"><c r=\"B9\"><v>5</v></c></row>";

    EXPECT_EQ("Parts!A1: [Mark] [Length]\nParts!A9: - 5\n", recordsOf(BuiltWorkbook::ofRows(rows).bytes()));
}

TEST(XlsxReaderTest, EmptyCellsUpToTheLastColumnCostNothing)
{
    std::string cells;
    for (int i = 2; i < 16384; ++i)
        cells += "<c s=\"1\"/>";
    const std::string rows = kHeader + "<row>" + textCells({ "B1", "6000" }) + cells + "</row>";

    EXPECT_EQ("Parts!A1: [Mark] [Length]\nParts!A2: [B1] [6000]\n", recordsOf(BuiltWorkbook::ofRows(rows).bytes()));
    EXPECT_EQ(
        "3 parts.xlsx: xl/worksheets/sheet1.xml: found more cells in row 2, expected 16384 columns at most: open it "
        "in a spreadsheet program and save it anew\n",
        faultIn(BuiltWorkbook::ofRows(kHeader + "<row><c/><c/><c/>" + cells + "</row>").bytes()));
}

TEST(XlsxReaderTest, AColumnWithoutAHeadingMayBeEmptyAndNothingElse)
{
    const std::string header = "<row><c r=\"A1\"><v>1</v></c><c r=\"C1\"><v>2</v></c></row>";
    const auto withCell = [&header](const std::string& name)
    { return BuiltWorkbook::ofRows(header + "<row><c r=\"" + name + "\"><v>7</v></c></row>").bytes(); };

    EXPECT_EQ("Parts!A1: 1 2\nParts!A2: - 7\n", recordsOf(withCell("C2")));
    EXPECT_EQ("3 parts.xlsx: Parts!B2: found \"7\", expected an empty cell, since B1 names no column\n",
              faultIn(withCell("B2")));
    EXPECT_EQ("3 parts.xlsx: Parts!XFD2: found \"7\", expected an empty cell, since XFD1 names no column\n",
              faultIn(withCell("XFD2")));
}

TEST(XlsxReaderTest, CellsMergedOverRowsOfTheTableAreRefused)
{
    const std::string refused = "expected a value in each row: unmerge them and fill each\n";

    EXPECT_EQ("3 parts.xlsx: Parts!B2:B3: found merged cells, " + refused, faultIn(sheetWithMerged("B2:B3")));
    EXPECT_EQ("3 parts.xlsx: Parts!A1:A2: found merged cells, " + refused, faultIn(sheetWithMerged("A1:A2")));
    for (const char* const pHarmless : { "A2:B2", "D2:D9", "C1:XFD1048576", "A2" })
        EXPECT_EQ("", faultIn(sheetWithMerged(pHarmless))) << pHarmless;
}

TEST(XlsxReaderTest, WithoutANameTheFirstSheetIsTakenThatIsNotHidden)
{
    const std::string bytes = workbookOfThree().bytes();

    EXPECT_EQ("Parts!A1: [c] [d]\n", recordsOf(bytes));
    EXPECT_EQ("MB744 sheet \"Parts\" of parts.xlsx is read; --sheet NAME takes another: \"Notes\", \"Prices\"\n",
              notesOn(bytes));
}

TEST(XlsxReaderTest, ASheetIsTakenByItsName)
{
    const std::string bytes = workbookOfThree().bytes();

    EXPECT_EQ("Prices!A1: [e] [f]\n", recordsOf(bytes, "Prices"));
    EXPECT_EQ("Notes!A1: [a] [b]\n", recordsOf(bytes, "Notes"));
    EXPECT_EQ("", notesOn(bytes, "Prices"));
}

TEST(XlsxReaderTest, AnUnknownSheetIsWrongUsageAndTheOthersAreNamed)
{
    EXPECT_EQ(
        "2 --sheet Pats: found no such sheet in parts.xlsx, expected one of \"Notes\", \"Parts\", \"Prices\": did you "
        "mean \"Parts\"?\n",
        faultIn(workbookOfThree().bytes(), "Pats"));
    EXPECT_EQ("2 --sheet Chart: found no such sheet in parts.xlsx, expected \"Parts\"\n",
              faultIn(BuiltWorkbook::ofRows(kHeader).bytes(), "Chart"));
}

TEST(XlsxReaderTest, WhatIsMadeToDoHarmIsRefused)
{
    const std::string sheet = "3 parts.xlsx: xl/worksheets/sheet1.xml: found ";
    const std::string largeCell = textRow({ std::string(std::size_t{ 20 } << 20, 'x') });
    const auto withSheet = [](const std::string& xml)
    {
        BuiltWorkbook workbook = BuiltWorkbook::ofRows("");
        workbook.sheets[0].xml = xml;
        return workbook.bytes();
    };

    EXPECT_EQ(sheet +
                  "a row, a text or a tag of more than 8 MB, expected less: a file of parts this large is damaged, or "
                  "made to do harm\n",
              faultIn(BuiltWorkbook::ofRows(kHeader + largeCell).bytes()));
    for (const char* const pXml : { "<!DOCTYPE w [<!ENTITY a \"aaaa\"><!ENTITY b \"&a;&a;\">]><worksheet/>",
                                    "<worksheet><sheetData><row><c></row>", "<worksheet><sheetData>",
                                    "<worksheet><sheetData><row></sheetData></worksheet>" })
        EXPECT_EQ(sheet, faultIn(withSheet(pXml)).substr(0, sheet.size())) << pXml;
}

TEST(XlsxReaderTest, AnEmptySheetIsNamed)
{
    EXPECT_EQ("3 parts.xlsx: found nothing on sheet \"Parts\", expected a header row with column names\n",
              faultIn(BuiltWorkbook::ofRows("<row r=\"3\"><c r=\"A3\"/></row>").bytes()));
}
}
