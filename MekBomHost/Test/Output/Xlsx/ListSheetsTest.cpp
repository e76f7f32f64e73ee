#include "ListSheets.h"

#include "Support/EvaluatedList.h"
#include "Support/WrittenWorkbook.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
std::string workbookOf(const EvaluatedReport& report, const XlsxSettings& settings = XlsxSettings())
{
    return writtenWorkbook([&](WorkbookFile& file, CellFormats& formats)
                           { ListSheets(report, settings, file, formats).write(); });
}

std::string workbookOf(const std::string& templateText, const std::string& partsText)
{
    return workbookOf(EvaluatedList(templateText, partsText).report());
}

// The rows below the heading row.
std::string linesOf(const std::string& templateText, const std::string& partsText)
{
    const std::string rows = rowsOfWorkbook(workbookOf(templateText, partsText));
    const std::size_t headings = rows.rfind('\n', rows.find(" bold", rows.find("\n0  A3")));
    return rows.substr(rows.find('\n', headings + 1) + 1);
}

const std::string kWeights = details(R"({ "token": "%PNum" }, { "token": "%Weight" })", R"("title": "Weights")");

// Details of marks and weights, the column of the latter in this style.
std::string weightsIn(const std::string& style)
{
    return details(R"({ "token": "%PNum" }, { "token": "%Weight" })",
                   R"("title": "Weights", "columns": [ { "token": "%PNum" }, { "token": "%Weight", )" + style + " } ]");
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}
}

// A cell of two decimals that the list prints with one would be read as another number than is on paper.
TEST(ListSheetsTest, EachCellShowsWhatTheListPrints)
{
    EXPECT_EQ("0  A4 \"P1\"  B4 8.5625 as 0.00 right\n"
              "0  A5 \"P2\"  B5 2.5 as 0.0 right\n"
              "0  A6 \"P3\"  B6 -12 as 0 right\n"
              "0  A7 \"P4\"  B7 0.001 as 0 right\n"
              "0  A8 \"P5\"  B8 0 as 0 right\n"
              "0  A9 \"P6\"  B9 1234567.5 as 0.0 right\n",
              linesOf(kWeights, "PNum,Quantity,Weight [kg]\nP1,1,8.5625\nP2,1,2.5\nP3,1,-12\nP4,1,0.001\nP5,1,-0.001\n"
                                "P6,1,1234567.5\n"));
}

TEST(ListSheetsTest, ThousandsAndUnitsAreThoseOfTheColumn)
{
    EXPECT_EQ("0  A4 \"P1\"  B4 -1234567.5 as #\\ ###\\ ##0.0 right\n"
              "0  A5 \"P2\"  B5 999 as 0 right\n",
              linesOf(weightsIn(R"("thousands": true)"), "PNum,Quantity,Weight [kg]\nP1,1,-1234567.5\nP2,1,999\n"));
    EXPECT_EQ("0  A4 \"P1\"  B4 1.2345 as 0.00 right\n",
              linesOf(weightsIn(R"("unit": "t/2")"), "PNum,Quantity,Weight [kg]\nP1,1,1234.5\n"));
}

// A sum of them would add millimetres and kilograms.
TEST(ListSheetsTest, NumbersOfSeveralUnitsAreTexts)
{
    const std::string workbook =
        workbookOf(R"({ "title": "Sizes", "equalLines": "keep", "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Length", "column": "%Size" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "column": "%Size" } ] } ],
        "columns": [ { "token": "%PNum" }, { "token": "%Size" } ] })",
                   "PNum,Quantity,Length [mm],Weight [kg]\nP1,1,2286,10\n");

    EXPECT_TRUE(contains(workbook, "A4 \"P1\"  B4 \"2286 mm\"")) << workbook;
    EXPECT_TRUE(contains(workbook, "B5 \"10 kg\"")) << workbook;
}

TEST(ListSheetsTest, MarksThatLookLikeNumbersAndDatesAreTexts)
{
    EXPECT_EQ("0  A4 \"0417\"  B4 1 as 0 right\n"
              "0  A5 \"3-5\"  B5 1 as 0 right\n"
              "0  A6 \"2026-11-22\"  B6 1 as 0 right\n"
              "0  A7 \"1E5\"  B7 1 as 0 right\n"
              "0  A8 \"=B4\"  B8 1 as 0 right\n",
              linesOf(kWeights, "PNum,Quantity,Weight [kg]\n0417,1,1\n3-5,1,1\n2026-11-22,1,1\n1E5,1,1\n=B4,1,1\n"));
}

TEST(ListSheetsTest, GroupsFoldBelowBandsAndTheTotalOfTheListHasARule)
{
    EXPECT_EQ("0  A4 \"S235\" bold banded\n"
              "1  B5 \"L50\"  C5 -2 as 0 right\n"
              "0  C6 -2 as 0 bold right\n"
              "0  A7 \"S355\" bold banded\n"
              "1  B8 \"HEA200\"  C8 10.5 as 0.0 right\n"
              "0  C9 10.5 as 0.0 bold right\n"
              "0  A10 \"Total\" bold ruled  B10 empty bold ruled  C10 8.5 as 0.0 bold ruled right\n",
              linesOf(weightsByMaterial(), "Name,Material,Quantity,Weight [kg]\nHEA200,S355,1,10.5\nL50,S235,1,-2\n"));
}

TEST(ListSheetsTest, SectionsOfPagesStandAtTopAndBottom)
{
    const std::string page = R"({ "title": "List", "equalLines": "keep", "sections": [
        { "type": "kPageHeader", "tuples": [ { "token": "%Phase" } ], "children": [
          { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Weight" } ] } ] },
        { "type": "kPageFooter", "label": "Sum", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })";

    EXPECT_EQ("0  A4 \"Phase 1\" bold banded\n"
              "0  B5 \"P1\"  C5 3 as 0 right\n"
              "0  B6 \"P2\"  C6 4 as 0 right\n"
              "0  A7 \"Sum\" bold ruled  B7 empty bold ruled  C7 7 as 0 bold ruled right\n",
              linesOf(page, "PNum,Phase,Quantity,Weight [kg]\nP1,Phase 1,1,3\nP2,Phase 1,1,4\n"));
}

TEST(ListSheetsTest, ATextKeepsOffTheNumberBeforeIt)
{
    const std::string rows = rowsOfWorkbook(workbookOf(
        details(R"({ "token": "%Weight" }, { "token": "%Name" }, { "token": "%PNum" })", R"("title": "Weights")"),
        "PNum,Name,Quantity,Weight [kg]\nP1,HEA200,1,3\n"));

    EXPECT_TRUE(contains(rows, "A4 3 as 0 right  B4 \"HEA200\" indented  C4 \"P1\"\n")) << rows;
}

TEST(ListSheetsTest, TheHeadingRowStandsBelowWhatIsToldFirst)
{
    const std::string workbook = workbookOf(kWeights, "PNum,Quantity,Weight [kg]\nP1,1,3\n");

    EXPECT_TRUE(contains(workbook, ", 3 rows stay in sight, on each page Weights!$3:$3,")) << workbook;
    EXPECT_TRUE(contains(workbook, "0  A1 \"Weights\" bold\n"
                                   "0  A2 \"1 row read, 1 listed\"\n"
                                   "0  A3 \"PNum\" bold banded  B3 \"Weight [kg]\" bold banded right\n"))
        << workbook;
}

TEST(ListSheetsTest, AListWithoutRowsHasItsHeadings)
{
    EXPECT_TRUE(
        contains(workbookOf(kWeights, "PNum,Quantity,Weight [kg]\n"),
                 "0  A2 \"0 rows read, 0 listed\"\n0  A3 \"PNum\" bold banded  B3 \"Weight [kg]\" bold banded"));
}

// Whatever the limit, each line is on one of the sheets, and none twice.
TEST(ListSheetsTest, SheetsShareTheLinesOutAmongThem)
{
    std::string parts = "PNum,Quantity,Weight [kg]\n";
    for (int i = 1; i <= 40; ++i)
        parts += "P" + std::to_string(i) + ",1," + std::to_string(i) + "\n";
    const EvaluatedList list(kWeights, parts);
    for (const std::uint32_t mostRows : { 6u, 7u, 19u, 43u, 44u, 45u })
    {
        XlsxSettings settings;
        settings.mostRows = mostRows;

        const std::string workbook = workbookOf(list.report(), settings);

        std::size_t at = 0;
        for (int i = 1; i <= 40; ++i)
        {
            const std::string mark = " \"P" + std::to_string(i) + "\" ";
            at = workbook.find(mark, at);
            ASSERT_NE(std::string::npos, at) << mark << mostRows;
            EXPECT_EQ(at, workbook.find(mark)) << mark << mostRows;
        }
        const std::string last = "A" + std::to_string(mostRows + 1) + " ";
        EXPECT_FALSE(contains(workbook, last)) << mostRows;
        EXPECT_EQ(mostRows < 44, contains(workbook, "Continued on the sheet \"Weights 2\"")) << mostRows;
    }
}

TEST(ListSheetsTest, MoreColumnsThanASheetHasAreRefused)
{
    std::string tuples = R"({ "token": "%PNum" })";
    for (int i = 0; i < 16384; ++i)
        tuples += R"(, { "token": "%PNum" })";

    EXPECT_EQ("4 found a list of 16385 columns, expected at most 16384, which a workbook holds\n",
              faultOf([&] { workbookOf(details(tuples), "PNum,Quantity,Weight [kg]\nP1,1,1\n"); }));
}
}
