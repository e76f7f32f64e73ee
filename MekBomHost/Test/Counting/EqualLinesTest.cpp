#include "EqualLines.h"

#include "EvaluatedReport.h"

#include "Support/ReportTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// Groups by material; `tuples` are those of the details, `totals` those of both footers.
std::string countingList(const std::string& tuples, const std::string& totals = "")
{
    const std::string footer = "\"tuples\": [ " + totals + " ] }";
    return R"({ "equalLines": "count", "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kGroupHeader", "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" } ],
            "children": [ { "type": "kDetails", "tuples": [ )" +
           tuples + R"( ] } ] },
          { "type": "kGroupFooter", )" +
           footer + R"( ] }, { "type": "kReportFooter", )" + footer + " ] }";
}

const std::string kPieces = R"({ "token": "%PNum" }, { "token": "%Quantity" })";
const std::string kTotalPieces = R"({ "token": "%SumBy:%Quantity", "value": 0 })";

// The lines of the table, each word behind a blank, without heading, rules and blank lines.
std::vector<std::string> linesOf(const std::string& templateText, const std::string& partsText)
{
    std::istringstream table(tableOf(templateText, partsText));
    std::vector<std::string> lines;
    for (std::string line; std::getline(table, line);)
    {
        std::istringstream text(line);
        std::string words;
        for (std::string word; text >> word;)
            words += (words.empty() ? "" : " ") + word;
        if (!words.empty() && words.find("--") == std::string::npos)
            lines.push_back(words);
    }
    lines.erase(lines.begin());
    return lines;
}

using Lines = std::vector<std::string>;
}

TEST(EqualLinesTest, LinesThatReadAlikeBecomeOneWhereverInTheGroupTheyStand)
{
    EXPECT_EQ((Lines{ "P1 3", "P2 1", "4", "P1 5", "5", "9" }),
              linesOf(countingList(kPieces, kTotalPieces), "%PNum,%Quantity,%Material\n"
                                                           "P1,2,S235\nP2,1,S235\nP1,1,S235\nP1,5,S355\n"));
}

TEST(EqualLinesTest, AFormulaThatGrowsWithThePiecesIsAddedUpAndAWeightOfOneStays)
{
    const std::string details = kPieces + R"(, { "token": "%Weight" }, { "token": "%Formula:%Weight*%Quantity" })";
    const std::string totals = R"({ "token": "%SumBy:%Formula:%Weight*%Quantity", "value": 0.0 })";

    const Lines lines = linesOf(countingList(details, totals), "%PNum,%Quantity,%Weight,%Material\n"
                                                               "P1,2,2.5,S235\nP1,4,2.5,S235\nP1,1,3,S235\n");

    EXPECT_EQ((Lines{ "P1 6 2.5 15", "P1 1 3 3", "18", "18" }), lines);
}

TEST(EqualLinesTest, AColumnThatAFooterSumsHasToReadAlikeAndIsAddedUp)
{
    const std::string details = R"({ "token": "%PNum" }, { "token": "%Weight" })";
    const std::string totals = R"({ "token": "%SumBy:%Weight", "value": 0.0 })";

    EXPECT_EQ((Lines{ "P1 7.5", "P1 3", "10.5", "10.5" }),
              linesOf(countingList(details, totals),
                      "%PNum,%Weight,%Material\nP1,2.5,S235\nP1,2.5,S235\nP1,2.5,S235\nP1,3,S235\n"));
}

// A weight of all pieces divided by them is that of one: added up it would be nobody's.
TEST(EqualLinesTest, AFormulaThatDoesNotGrowWithThePiecesTellsLinesApart)
{
    const std::string details = kPieces + R"(, { "token": "%Formula:%Weight/%Quantity" })";

    EXPECT_EQ((Lines{ "P1 6 2.5", "P1 1 3" }),
              linesOf(countingList(details), "%PNum,%Quantity,%Weight,%Material\n"
                                             "P1,2,5,S235\nP1,4,10,S235\nP1,1,3,S235\n"));
    EXPECT_EQ((Lines{ "P1 4 3", "P1 1 2" }), linesOf(countingList(kPieces + R"(, { "token": "%Formula:%Quantity+1" })"),
                                                     "%PNum,%Quantity,%Material\nP1,2,S235\nP1,2,S235\nP1,1,S235\n"));
}

// Bolts of 9.5 and of 10 mm became one line, and nobody was told.
TEST(EqualLinesTest, NumbersThatRoundingAloneMakesAlikeAreToldOncePerColumn)
{
    const std::string list = countingList(kPieces + R"(, { "token": "%Diameter" })");
    const auto told = [&list](const std::string& rows)
    {
        const std::unique_ptr<Report> pReport =
            reportOf(list, "%PNum,%Quantity,%Diameter,%Material\n" + rows, VorUnitsManager::imperial());
        pReport->evaluate();
        std::string text;
        for (const Finding& finding : pReport->mistakes())
            text += finding.code + " " + finding.path + ": " + finding.statement + "\n";
        return text;
    };

    EXPECT_EQ("MB110 /sections/0/children/0/children/0/tuples/2/token: lines with 9.5 mm and 10 mm are counted as one: "
              "both are shown as \"3/8\"\"\n",
              told("M6,1,6,S235\nM,1,9.5,S235\nM,1,10,S235\nM,1,9.5,S235\nM,1,10,S235\n"));
    EXPECT_EQ("", told("M,1,9.5,S235\nM,1,9.500001,S235\nM,1,20,S235\nM,1,10,S355\n"));
}

TEST(EqualLinesTest, WhatStandsInPlaceOfAMissingNumberHasToReadAlike)
{
    const std::string details = R"({ "token": "%PNum" }, { "token": "%Formula:%Weight*%Quantity", "value": "none" })";

    EXPECT_EQ((Lines{ "P1 3", "P1 none" }),
              linesOf(countingList(details), "%PNum,%Weight,%Material\nP1,2,S235\nP1,,S235\nP1,1,S235\nP1,,S235\n"));
}

TEST(EqualLinesTest, ManyPiecesAreWritenInFull)
{
    EXPECT_EQ((Lines{ "P1 4000000000" }), linesOf(countingList(kPieces), "%PNum,%Quantity,%Material\n"
                                                                         "P1,2000000000,S235\n"
                                                                         "P1,2000000000,S235\n"));
}

TEST(EqualLinesTest, LinesThatStandUnderNothingAreOneGroup)
{
    const std::string list =
        R"({ "equalLines": "count", "sections": [ { "type": "kDetails", "tuples": [ )" + kPieces + " ] } ] }";

    EXPECT_EQ((Lines{ "P1 3", "P2 1" }), linesOf(list, "%PNum,%Quantity\nP1,2\nP2,1\nP1,1\n"));
}

TEST(EqualLinesTest, LinesWithFootersOfTheirOwnComeAsTheyAre)
{
    const std::string list = R"({ "equalLines": "count", "sections": [
        { "type": "kReportHeader", "children": [
          { "type": "kDetails", "tuples": [ )" +
                             kPieces + R"( ] }, { "type": "kGroupFooter", "tuples": [ )" + kTotalPieces +
                             " ] } ] } ] }";

    EXPECT_EQ((Lines{ "P1 2", "2", "P1 1", "1" }), linesOf(list, "%PNum,%Quantity\nP1,2\nP1,1\n"));
}

TEST(EqualLinesTest, HiddenColumnsOfTheDetailsTellLinesApart)
{
    const std::string details = R"({ "token": "%PNum" }, { "token": "%SortAscBy:%Handle" }, { "token": "%Quantity" })";

    EXPECT_EQ((Lines{ "P1 3" }),
              linesOf(countingList(details), "%PNum,%Quantity,%Material,%Handle\nP1,2,S235,1A\nP1,1,S235,1B\n"))
        << "what steers reads alike in all lines";
}

TEST(EqualLinesTest, WritersGetTheNumbersAndTheRowsOfAllThatWereCounted)
{
    LineContents wanted;
    wanted.values = true;
    wanted.rows = true;
    Report report(TemplateReader::read("list.json", countingList(kPieces, kTotalPieces)), VorUnitsManager::metric(),
                  DisplaySettings(), wanted);
    MemorySource source("parts.csv", "%PNum,%Quantity,%Material\nP1,2,S235\nP2,1,S235\nP1,1,S235\n");
    CsvReader records(source);
    PartsList(records).readRows(report.engineTemplate(), report.filterTokens());
    report.checkTotals();
    report.evaluate();

    const EvaluatedReport evaluated = report.evaluated();
    ReportLines lines = evaluated.lines();
    ReportLine line;
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ("P1", line.texts[0].view());
    EXPECT_EQ("3", line.texts[1].view());
    EXPECT_EQ(VorBomDataValue::kIntData, line.values[1].type);
    EXPECT_EQ(3, line.values[1].number);
    EXPECT_EQ(2U, line.headerRows.size());
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(1, line.values[1].number);
    EXPECT_EQ(1U, line.headerRows.size());
    ASSERT_TRUE(lines.next(line));
    EXPECT_EQ(4, line.values[1].number);
    EXPECT_EQ(3U, line.footerRows.size());
}

// A set that once held a large group must not make each small one after it pay for that.
TEST(EqualLinesTest, AHundredThousandGroupsBehindALargeOneAreCounted)
{
    std::string parts = "%PNum,%Quantity,%Material\n";
    for (int i = 0; i < 100000; ++i)
        parts += "P" + std::to_string(i / 2) + ",1,A\n";
    for (int i = 0; i < 100000; ++i)
        parts += "P,1,B" + std::to_string(i / 2) + "\n";

    const std::unique_ptr<Report> pReport = evaluatedReport(countingList(kPieces, kTotalPieces), parts);

    EXPECT_EQ(200000, pReport->facts().rows.numListed);
    EXPECT_EQ(100000, pReport->facts().numRowsInOtherLines);
}

TEST(EqualLinesTest, NothingIsLeaked)
{
    const auto count = []
    { return tableOf(countingList(kPieces, kTotalPieces), "%PNum,%Quantity,%Material\nP1,2,S235\nP1,1,S235\n"); };
    count(); // the engine keeps what it sorted by last
    const LeakCheck leakCheck;

    count();
}
}
