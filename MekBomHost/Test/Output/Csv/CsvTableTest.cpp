#include "CsvWriter.h"

#include "Support/EvaluatedParts.h"
#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

// What CSV of a list holds, record by record; CsvColumnsTest says which fields a record has.

namespace mekbom
{
namespace
{
std::string csvOf(const std::string& templateText, const std::string& parts,
                  const OutputChoices& choices = OutputChoices(),
                  const VorUnitsManager& units = VorUnitsManager::metric())
{
    return writtenBy(CsvWriter(choices), templateText, parts, units);
}

OutputChoices plainValues()
{
    OutputChoices choices;
    choices.hasPlainValues = true;
    return choices;
}

// One column for each of `tokens`, in records of details.
std::string listOf(const std::string& tuples, const std::string& members = std::string())
{
    return "{ " + members + R"("sections": [ { "type": "kDetails", "tuples": [ )" + tuples + " ] } ] }";
}
}

TEST(CsvTableTest, ALineHasTheValuesOfItsGroup)
{
    EXPECT_EQ("Material,Name,Weight [kg]\r\n"
              "S235,L50,2\r\n"
              "S355,HEA200,10.5\r\n"
              "S355,HEB220,20\r\n",
              csvOf(kPartsByMaterial, "Name,Material,Weight\nHEA200,S355,10.5\nL50,S235,2\nHEB220,S355,20\n"));
}

TEST(CsvTableTest, WhoAddsUpAColumnGetsTheTotal)
{
    const std::string parts = "Name,Material,Weight\nA,S355,10.5\nB,S235,2\nC,S355,20.25\nD,S235,0.125\n";
    const std::string csv = csvOf(kPartsByMaterial, parts, plainValues());

    double sum = 0;
    std::istringstream lines(csv);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line))
        sum += std::stod(line.substr(line.rfind(',') + 1));
    EXPECT_EQ(10.5 + 2 + 20.25 + 0.125, sum);
}

TEST(CsvTableTest, GroupsWithoutTheirLinesAreTheRecords)
{
    EXPECT_EQ("Material,Weight [kg]\r\nS235,2\r\nS355,30.5\r\n",
              csvOf(kMaterials, "Name,Material,Weight\nA,S355,10.5\nB,S235,2\nC,S355,20\n"));
}

TEST(CsvTableTest, TextsThatRunAreDefusedAndNegativeNumbersAreNot)
{
    const std::string list = listOf(R"({ "token": "%PNum" }, { "token": "%Length" })",
                                    R"("columns": [ { "token": "%PNum", "label": "=Mark" } ], )");

    EXPECT_EQ("'=Mark,Length [mm]\r\n'=1+1,-5\r\n'-P1,6\r\n", csvOf(list, "PNum,Length\n=1+1,-5\n-P1,6\n"));
}

// A minus in front of feet and inches is one of a number; the same characters in a mark are a text.
TEST(CsvTableTest, NegativeFeetAndInchesAreNumbersAndAMarkThatReadsSoIsNone)
{
    const std::string list = listOf(R"({ "token": "%PNum" }, { "token": "%Length" })");

    EXPECT_EQ("PNum,Length [ft-in]\r\n\"'-7' 6\"\"\",\"-7' 6\"\"\"\r\n",
              csvOf(list, "PNum,Length\n\"-7' 6\"\"\",-2286\n", OutputChoices(), VorUnitsManager::imperial()));
}

TEST(CsvTableTest, PlainNumbersAreInFullAndInTheUnitOfTheHeading)
{
    const std::string list = listOf(R"({ "token": "%Length" }, { "token": "%Weight" }, { "token": "%Quantity" })",
                                    R"("columns": [ { "token": "%Weight", "unit": "t/2" } ], )");
    const std::string parts = "Length,Weight,Quantity\n2286.04,134.4,3\n-0,0.1,4\n";

    EXPECT_EQ("Weight [t],Length [mm],Quantity\r\n0.13,2286,3\r\n0,0,4\r\n", csvOf(list, parts));
    EXPECT_EQ("Weight [t],Length [mm],Quantity\r\n0.1344,2286.04,3\r\n0.0001,0,4\r\n",
              csvOf(list, parts, plainValues()));
}

// 7' 6" is ninety inches or seven and a half feet, and no number at all of "ft-in".
TEST(CsvTableTest, PlainLengthsOfFeetAndInchesAreInFeetAndTheHeadingSaysSo)
{
    EXPECT_EQ("Length [ft]\r\n7.5\r\n",
              csvOf(listOf(R"({ "token": "%Length" })"), "Length\n2286\n", plainValues(), VorUnitsManager::imperial()));
    EXPECT_EQ("Cut [ft]\r\n7.5\r\n", csvOf(listOf(R"({ "token": "%Length" })",
                                                  R"("columns": [ { "token": "%Length", "label": "Cut [mm]" } ], )"),
                                           "Length\n2286\n", plainValues(), VorUnitsManager::imperial()));
}

TEST(CsvTableTest, NumbersOfAColumnOfSeveralUnitsKeepTheirs)
{
    const std::string list = R"({ "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [
            { "token": "%Name" }, { "token": "%Length", "column": "%Size" },
            { "token": "%Weight", "column": "%Weight" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0, "column": "%Size" } ] } ],
        "columns": [ { "token": "%Name" }, { "token": "%Size", "label": "Size" } ] })";

    EXPECT_EQ("Name,Size,Weight [kg]\r\nA,2286.04 mm,10\r\n",
              csvOf(list, "Name,Length,Weight\nA,2286.04,10\n", plainValues()));
}

TEST(CsvTableTest, TheDialectIsWhatIsAskedFor)
{
    OutputChoices choices;
    choices.delimiter = ';';
    choices.decimalSign = ',';
    const std::string list = listOf(R"({ "token": "%PNum" }, { "token": "%Weight" })");

    EXPECT_EQ("PNum;Weight [kg]\r\nP1.5;10,5\r\n\"a;b\";2\r\n",
              csvOf(list, "PNum,Weight\nP1.5,10.5\na;b,2\n", choices));
    choices.delimiter.reset();
    EXPECT_EQ("PNum,Weight [kg]\r\nP1.5,\"10,5\"\r\n", csvOf(list, "PNum,Weight\nP1.5,10.5\n", choices));
    EXPECT_EQ("PNum\tWeight [kg]\r\nP1\t10.5\r\n",
              writtenBy(TsvWriter(OutputChoices()), list, "PNum,Weight\nP1,10.5\n"));
}

TEST(CsvTableTest, ARecordOfOneEmptyFieldIsNoEmptyLine)
{
    EXPECT_EQ("PNum\r\nP1\r\n\"\"\r\nP2\r\n",
              csvOf(listOf(R"({ "token": "%PNum" })", R"("equalLines": "keep", )"), "PNum,Weight\nP1,1\n,2\nP2,3\n"));
}

TEST(CsvTableTest, WhatTheListIsMadeOfStandsBehindAnEmptyRecordOnRequest)
{
    OutputChoices choices;
    EXPECT_FALSE(CsvWriter(choices).tellsFoot());
    choices.hasFoot = true;

    EXPECT_TRUE(CsvWriter(choices).tellsFoot());
    EXPECT_EQ("PNum,Weight [kg]\r\nP1,10\r\n,\r\n\"1 row read, 1 listed\",\r\n",
              csvOf(listOf(R"({ "token": "%PNum" }, { "token": "%Weight" })"), "PNum,Weight\nP1,10\n", choices));
}

TEST(CsvTableTest, AListWithoutRowsIsItsHeadings)
{
    EXPECT_EQ("Material,Name,Weight [kg]\r\n", csvOf(kPartsByMaterial, "Name,Material,Weight\n"));
}
}
