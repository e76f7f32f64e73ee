#include "AboutSheet.h"

#include "Support/EvaluatedList.h"
#include "Support/EvaluatedParts.h"
#include "Support/WrittenWorkbook.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace mekbom
{
namespace
{
std::string aboutOf(const EvaluatedReport& report)
{
    return rowsOfWorkbook(
        writtenWorkbook([&](WorkbookFile& file, CellFormats& formats) { AboutSheet::write(report, file, formats); }));
}

std::string aboutOf(const std::string& templateText, const std::string& partsText,
                    const VorUnitsManager& units = VorUnitsManager::metric())
{
    return aboutOf(EvaluatedList(templateText, partsText, units).report());
}

bool contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// What is told before the first heading, the row of the title left out.
std::string rowsAboutRows(const std::string& about)
{
    const std::size_t begin = about.find("0  A2 ");
    const std::size_t heading = about.find("\" bold", begin);
    return about.substr(begin, about.rfind('\n', heading) + 1 - begin);
}
}

TEST(AboutSheetTest, ItTellsHowManyRowsTheListIsMadeOf)
{
    const std::string about = aboutOf(weightsByMaterial(), "Name,Material,Quantity,Weight [kg]\n"
                                                           "HEA200,S355,1,10.5\n"
                                                           "L50,S235,1,\n");

    EXPECT_EQ("0  A1 \"List\" bold banded  B1 \"Weights\" bold banded\n"
              "0  A2 \"Rows read\"  B2 2 as 0\n"
              "0  A3 \"Rows listed\"  B3 2 as 0\n"
              "0  A4 \"Lines\"  B4 2 as 0\n"
              "0  A6 \"Total\" bold banded  B6 \"Listed rows that have a value\" bold banded\n"
              "0  A7 \"Weight\"  B7 1 as 0\n"
              "0  A9 \"In words\" bold banded  B9 empty bold banded\n"
              "0  A10 \"2 rows read, 2 listed\"\n"
              "0  A11 \"Weight: 1 of 2 rows\"\n"
              "0  A13 \"Column\" bold banded  B13 \"Unit\" bold banded\n"
              "0  A14 \"Material\"  B14 empty\n"
              "0  A15 \"Name\"  B15 empty\n"
              "0  A16 \"Weight [kg]\"  B16 \"kg (weight)\"\n"
              "0  A18 \"Numbers\" bold banded  B18 empty bold banded\n"
              "0  A19 \"Cells show what the list prints and hold more decimals where there are more.\"\n"
              "0  A20 \"Totals are values, as they were computed when the list was made: they follow no change of a "
              "cell.\"\n",
              about);
}

TEST(AboutSheetTest, WhatTheListLeavesOutIsCounted)
{
    const std::string about =
        aboutOf(R"({ "equalLines": "merge", "queryFilter": "%Weight > 3", "sections": [ { "type": "kReportHeader",
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Weight" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })",
                "Handle,PNum,Weight [kg]\n2A0,B1,10.5\n2A1,B1,10.5\n2A2,P1,2\n");

    EXPECT_EQ("0  A2 \"Rows read\"  B2 3 as 0\n"
              "0  A3 \"Filtered out by %Weight > 3\"  B3 1 as 0\n"
              "0  A4 \"Merged into equal lines\"  B4 1 as 0\n"
              "0  A5 \"Rows listed\"  B5 1 as 0\n"
              "0  A6 \"Lines\"  B6 1 as 0\n",
              rowsAboutRows(about))
        << about;
    EXPECT_TRUE(contains(about, "\"Left out with merged rows\" bold banded\n")) << about;
    EXPECT_TRUE(contains(about, "\"Weight\"  B12 \"10.5 kg\"\n")) << about;
}

TEST(AboutSheetTest, WhatWasAssumedAndPassedOverIsTold)
{
    const std::unique_ptr<Report> pReport =
        reportOf(weightsByMaterial(), "Name,Material,Weight\nL50,S235,3\n", VorUnitsManager::metric(), { true, false });
    pReport->evaluate();
    pReport->facts().numEmptyRows = 2;
    pReport->facts().numWarnings = 3;
    pReport->facts().countsRowsAsPieces = true;
    pReport->facts().areUnitsAssumed = true;

    EXPECT_EQ("0  A2 \"Rows read\"  B2 1 as 0\n"
              "0  A3 \"Rows listed\"  B3 1 as 0\n"
              "0  A4 \"Lines\"  B4 1 as 0\n"
              "0  A5 \"Rows without any cell, passed over\"  B5 2 as 0\n"
              "0  A6 \"Warnings\"  B6 3 as 0\n"
              "0  A7 \"Pieces\"  B7 \"each row counts as one: there is no column %Quantity\"\n"
              "0  A8 \"Units of the data\"  B8 \"lengths and weights without a unit were read as mm and kg\"\n",
              rowsAboutRows(aboutOf(pReport->evaluated())));
}

TEST(AboutSheetTest, UnitsAreThoseThatTheListShows)
{
    const std::string about =
        aboutOf(details(R"({ "token": "%Length" }, { "token": "%Weight" }, { "token": "%Quantity" })"),
                "Length [mm],Weight [kg],Quantity\n1,1,1\n", VorUnitsManager::imperial());

    EXPECT_TRUE(contains(about, "\"Length [ft-in]\"  B10 \"ft-in (length)\"\n")) << about;
    EXPECT_TRUE(contains(about, "\"Weight [lb]\"  B11 \"lb (weight)\"\n")) << about;
    EXPECT_TRUE(contains(about, "\"Quantity\"  B12 empty\n")) << about;
}

TEST(AboutSheetTest, TitlesAndConditionsAreTexts)
{
    const std::string about = aboutOf(
        R"({ "title": "=1+1", "queryFilter": "%PNum = '=A1'", "sections": [ { "type": "kDetails",
        "tuples": [ { "token": "%PNum" } ] } ] })",
        "PNum,Quantity\n=A1,1\n");

    EXPECT_TRUE(contains(about, "A1 \"List\" bold banded  B1 \"=1+1\" bold banded\n")) << about;
    EXPECT_TRUE(contains(about, "\"Filtered out by %PNum = '=A1'\"  B3 0 as 0\n")) << about;
}

TEST(AboutSheetTest, WhereNobodyHasCountedNothingIsTold)
{
    const std::string about = aboutOf(EvaluatedParts(kMaterials, { { L"L50", L"S235", 2 } }, { true, false }).report());

    EXPECT_FALSE(contains(about, "Rows read")) << about;
    EXPECT_FALSE(contains(about, "Total\"")) << about;
    EXPECT_TRUE(contains(about, "\"Material\"")) << about;
}
}
