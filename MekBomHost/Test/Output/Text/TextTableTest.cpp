#include "TextTable.h"

#include "Support/ReportTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// Details that show these tuples, and nothing else.
std::string details(const std::string& tuples, const std::string& members = std::string())
{
    return "{ " + members + (members.empty() ? "" : ", ") +
           "\"sections\": [ { \"type\": \"kReportHeader\", \"children\": [ " +
           "{ \"type\": \"kDetails\", \"tuples\": [ " + tuples + " ] } ] } ] }";
}

const char* const kName = R"({ "token": "%Name" })";
const char* const kNameAndWeight = R"({ "token": "%Name" }, { "token": "%Weight" })";

// Groups by material, with details, and totals at both levels.
const char* const kGrouped = R"({
  "title": "Weights",
  "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

const char* const kParts = "%Name,%Material,%Weight\n"
                           "HEA200,S355,10.5\n"
                           "IPE360,S235,2\n"
                           "IPE450,S355,100\n";

// The same without details lines.
const char* const kSummary = R"({
  "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Material" }, { "token": "%SortAscBy:%Material" }, { "token": "%Material" } ],
        "children": [ { "type": "kDetails", "print": false, "tuples": [ { "token": "%Name" } ] } ] },
      { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";
}

TEST(TextTableTest, TextsStandLeftAndNumbersRight)
{
    EXPECT_EQ("Name    Weight [kg]\n"
              "------  -----------\n"
              "HEA200          2.5\n"
              "L50           100.5\n",
              tableOf(details(kNameAndWeight), "%Name,%Weight\nHEA200,2.5\nL50,100.5\n"));
}

TEST(TextTableTest, GroupsOfSeveralLinesAreSetApart)
{
    EXPECT_EQ("Weights\n"
              "\n"
              "Material  Name    Weight [kg]\n"
              "--------  ------  -----------\n"
              "S235\n"
              "          IPE360          2\n"
              "                          2\n"
              "\n"
              "S355\n"
              "          HEA200         10.5\n"
              "          IPE450        100\n"
              "                        110.5\n"
              "--------  ------  -----------\n"
              "Total                   112.5\n",
              tableOf(kGrouped, kParts));
}

TEST(TextTableTest, HeaderAndFooterShareALineWhenNothingStandsBetween)
{
    EXPECT_EQ("Material  Weight [kg]\n"
              "--------  -----------\n"
              "S235              2\n"
              "S355            110.5\n"
              "--------  -----------\n"
              "                112.5\n",
              tableOf(kSummary, kParts));
}

TEST(TextTableTest, HeaderAndFooterThatWantTheSameColumnDoNotShareALine)
{
    std::string both = kSummary;
    both.replace(both.find("{ \"token\": \"%Material\" }"), 24,
                 "{ \"token\": \"%Material\" }, { \"token\": \"%Weight\" }");

    EXPECT_EQ("Material  Weight [kg]\n"
              "--------  -----------\n"
              "S235              2\n"
              "                  2\n"
              "\n"
              "S355             10.5\n"
              "                110.5\n"
              "--------  -----------\n"
              "                112.5\n",
              tableOf(both, kParts));
}

TEST(TextTableTest, ATotalCanHaveAColumnOfItsOwn)
{
    const std::string own =
        R"({ "columns": [ { "token": "%SumBy:%Weight", "label": "Sum" }, { "token": "%Name" } ],
        "sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ )" +
        std::string(kNameAndWeight) +
        R"( ] } ] }, { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

    EXPECT_EQ("Sum [kg]  Name  Weight [kg]\n"
              "--------  ----  -----------\n"
              "          A               1\n"
              "          B               2\n"
              "--------  ----  -----------\n"
              "       3\n",
              tableOf(own, "%Name,%Weight\nA,1\nB,2\n"));
}

TEST(TextTableTest, ATupleCanBeShownInAColumnThatItsTemplateNames)
{
    EXPECT_EQ("Name  Pieces\n"
              "----  ------\n"
              "A          4\n",
              tableOf(details(R"({ "token": "%Name" }, { "token": "%Quantity", "column": "%Pieces" })",
                              R"("columns": [ { "token": "%Name" }, { "token": "%Pieces", "align": "right" } ])"),
                      "%Name,%Quantity\nA,4\n"));
}

TEST(TextTableTest, TwoTuplesOfOneSectionNeverShareAColumn)
{
    EXPECT_EQ(
        "Weight [kg]  Weight [kg]\n"
        "-----------  -----------\n"
        "          1            1\n",
        tableOf(details(R"({ "token": "%Weight" }, { "token": "%SumBy:%Weight", "value": 1.0 })"), "%Weight\n1\n"));
    EXPECT_EQ("Name  Name\n"
              "----  ----\n"
              "A     A\n",
              tableOf(details(std::string(kName) + "," + kName), "%Name\nA\n"));
}

TEST(TextTableTest, ColumnsStandInTheTemplatesOrder)
{
    EXPECT_EQ(
        "kg  Profile  Material\n"
        "--  -------  --------\n"
        " 1  A        S355\n",
        tableOf(
            details(
                R"({ "token": "%Name" }, { "token": "%Material" }, { "token": "%Weight" })",
                R"("columns": [ { "token": "%Weight", "label": "kg" }, { "token": "%Name", "label": "Profile" } ])"),
            "%Name,%Material,%Weight\nA,S355,1\n"));
}

TEST(TextTableTest, ColumnsOfUnknownTokensAreAlignedByTheirData)
{
    EXPECT_EQ(
        "Count  Note  Length/1000\n"
        "-----  ----  -----------\n"
        "    7  x             1.5\n",
        tableOf(
            details(R"({ "token": "%Count" }, { "token": "%Note" }, { "token": "%Formula:%Length/1000" })",
                    R"("tokenUnits": { "%Length": "kNoUnit" }, "columns": [ { "token": "%Count" }, { "token": "%Note" },
                                  { "token": "%Formula:%Length/1000", "label": "Length/1000" } ])"),
            "%Count,%Note,%Length\n7,x,1500\n"));
}

TEST(TextTableTest, TextsWiderThanTheirColumnGoOnBelow)
{
    EXPECT_EQ("Name of   Weight [kg]\n"
              "the part\n"
              "--------  -----------\n"
              "Base                1\n"
              "plate,\n"
              "corner\n"
              "PL20*300            2\n"
              "*400\n",
              tableOf(details(kNameAndWeight,
                              R"("columns": [ { "token": "%Name", "label": "Name of the part", "width": 8 } ])"),
                      "%Name,%Weight\n\"Base plate, corner\",1\nPL20*300*400,2\n"));
}

TEST(TextTableTest, NumbersAreNeverCut)
{
    EXPECT_EQ("     kg\n"
              "-------\n"
              "1234.56\n"
              "  12\n",
              tableOf(details(R"({ "token": "%Weight" })",
                              R"("columns": [ { "token": "%Weight", "label": "kg", "width": 3 } ])"),
                      "%Weight\n1234.56\n12\n"));
}

TEST(TextTableTest, DecimalPointsStandBelowEachOther)
{
    EXPECT_EQ("Name    Weight [kg]  Length [mm]\n"
              "------  -----------  -----------\n"
              "HEA200        12.25      12345.5\n"
              "IPE360         2.5           1\n"
              "Träger       100             0.2\n"
              "L50                          7\n",
              tableOf(details(R"({ "token": "%Name" }, { "token": "%Weight" }, { "token": "%Length" })"),
                      "%Name,%Weight,%Length\nHEA200,12.25,12345.5\nIPE360,2.5,1\nTräger,100,0.2\nL50,,7\n"));
}

TEST(TextTableTest, UnitsInHeadingsAreNeverCut)
{
    EXPECT_EQ("   W\n"
              "[kg]\n"
              "----\n"
              "   1\n",
              tableOf(details(R"({ "token": "%Weight" })",
                              R"("columns": [ { "token": "%Weight", "label": "W", "width": 2 } ])"),
                      "%Weight\n1\n"));
}

TEST(TextTableTest, FixedColumnsKeepTheirWidth)
{
    EXPECT_EQ("Name            kg\n"
              "----------  ------\n"
              "A                1\n",
              tableOf(details(kNameAndWeight, R"("columns": [ { "token": "%Name", "width": 10 },
                                                              { "token": "%Weight", "label": "kg", "width": 6 } ])"),
                      "%Name,%Weight\nA,1\n"));
}

TEST(TextTableTest, WidthsAreThoseOfATerminal)
{
    EXPECT_EQ("Name    Weight [kg]\n"
              "------  -----------\n"
              "柱脚板            1\n"
              "Träger            2\n"
              "e\xCC\x81                 3\n",
              tableOf(details(kNameAndWeight), "%Name,%Weight\n柱脚板,1\nTräger,2\ne\xCC\x81,3\n"));
}

TEST(TextTableTest, LineBreaksInACellStayInItsColumn)
{
    EXPECT_EQ("Name  Weight [kg]\n"
              "----  -----------\n"
              "one             1\n"
              "two\n"
              "a b             2\n",
              tableOf(details(kNameAndWeight), "%Name,%Weight\n\"one\r\ntwo\",1\na\tb,2\n"));
}

TEST(TextTableTest, ControlCharactersReachNoTerminal)
{
    EXPECT_EQ("Name\n"
              "------\n"
              "a\xEF\xBF\xBD[31m\n",
              tableOf(details(kName), "%Name\na\x1B[31m\n"));
}

// Shown by a program that knows of directions, the weight would stand before the letters, or be turned round itself.
TEST(TextTableTest, TextsFromTheRightLeaveNumbersInTheirColumns)
{
    EXPECT_EQ("Name  Weight [kg]\n"
              "----  -----------\n"
              "\xE2\x81\xA8קו\xE2\x81\xA9           12.5\n"
              "a\xEF\xBF\xBD            3.5\n",
              tableOf(details(kNameAndWeight), "%Name,%Weight\nקו,12.5\na\xE2\x80\xAE,3.5\n"));
}

TEST(TextTableTest, ALabelStandsInTheFirstColumnThatIsFree)
{
    const char* const labelled = R"({ "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Weight" }, { "token": "%Name" } ] } ] },
        { "type": "kReportFooter", "label": "All of it", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

    EXPECT_EQ("Weight [kg]  Name\n"
              "-----------  ---------\n"
              "          1  A\n"
              "-----------  ---------\n"
              "          1  All of it\n",
              tableOf(labelled, "%Name,%Weight\nA,1\n"));
}

TEST(TextTableTest, ALabelWithoutFreeColumnStandsAbove)
{
    const char* const labelled = R"({ "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Weight" } ] } ] },
        { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

    EXPECT_EQ("Weight [kg]\n"
              "-----------\n"
              "          1\n"
              "-----------\n"
              "Total\n"
              "          1\n",
              tableOf(labelled, "%Weight\n1\n"));
}

TEST(TextTableTest, ARowWithoutAnyDatumIsALineAllTheSame)
{
    EXPECT_EQ("Name\n"
              "----\n"
              "A\n"
              "\n"
              "B\n",
              tableOf(details(kName), "%Name,%Weight\nA,1\n,2\nB,3\n"));
}

TEST(TextTableTest, AListWithoutRowsHasItsHeading)
{
    EXPECT_EQ("Weights\n"
              "\n"
              "Material  Name  Weight [kg]\n"
              "--------  ----  -----------\n",
              tableOf(kGrouped, "%Name,%Material,%Weight\n"));
}

TEST(TextTableTest, AListThatShowsNothingHasItsTitle)
{
    EXPECT_EQ("Nothing\n\n",
              tableOf(R"({ "title": "Nothing", "sections": [ { "type": "kDetails" } ] })", "%Name\nA\n"));
}

TEST(TextTableTest, AFooterWhoseHeaderWasMergedAwayHasALineOfItsOwn)
{
    // The second details line equals the footer before it: one details line, two footers.
    const char* const footered = R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%Weight" } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0, "column": "%Sum" } ] } ] } ] })";

    EXPECT_EQ("Weight [kg]  Sum [kg]\n"
              "-----------  --------\n"
              "          1         1\n"
              "                    1\n",
              tableOf(footered, "%Name,%Weight\nA,1\nB,1\n"));
}

TEST(TextTableTest, WhatTheListIsMadeOfStandsBelowABlankLine)
{
    const std::string foot = details(kNameAndWeight);

    EXPECT_EQ("Name    Weight [kg]\n"
              "------  -----------\n"
              "HEA200          2.5\n"
              "\n"
              "1 row read, 1 listed\n",
              tableOf(*evaluatedReport(foot, "%Name,%Weight\nHEA200,2.5\n")));
    EXPECT_EQ("Name  Weight [kg]\n"
              "----  -----------\n"
              "\n"
              "0 rows read, 0 listed\n",
              tableOf(*evaluatedReport(foot, "%Name,%Weight\n")));
}

TEST(TextTableTest, ControlCharactersOfTheFootReachNoTerminal)
{
    const std::string list = R"({ "columns": [ { "token": "%Weight", "label": "We\u001bight" } ], "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

    const std::string table = tableOf(*evaluatedReport(list, "%Name,%Weight\nA,\n"));

    EXPECT_EQ(std::string::npos, table.find('\x1B'));
    EXPECT_NE(std::string::npos, table.find("ight: 0 of 1 row\n")) << table;
}

TEST(TextTableTest, LinesHaveNoBlanksAtTheirEnd)
{
    EXPECT_EQ("Weight [kg]  Name\n"
              "-----------  ----\n"
              "          1\n",
              tableOf(details(R"({ "token": "%Weight" }, { "token": "%Name" })"), "%Name,%Weight\n,1\n"));
}

TEST(TextTableTest, BlanksAtTheEndOfATextAreNotAtTheEndOfALine)
{
    EXPECT_EQ("Name\n"
              "----\n"
              "L50\n"
              "Tür\n",
              tableOf(details(kName), "%Name\n\"L50 \"\n\"Tür \"\n"));
}

TEST(TextTableTest, TextsBeyondAsciiAreWrittenInTheirPlaces)
{
    EXPECT_EQ("Name    Material  Weight [kg]\n"
              "------  --------  -----------\n"
              "Träger  S355              2.5\n"
              "柱脚板  柱              100.5\n"
              "L50     é                10\n",
              tableOf(details(R"({ "token": "%Name" }, { "token": "%Material" }, { "token": "%Weight" })"),
                      "%Name,%Material,%Weight\nTräger,S355,2.5\n柱脚板,柱,100.5\nL50,é,10\n"));
}

TEST(TextTableTest, TheTableIsFinishedInItsSink)
{
    const std::unique_ptr<Report> pReport = evaluatedReport(details(kName), "%Name\nA\n");
    StringSink sink;

    TextTableWriter().write(pReport->evaluated(), sink);

    EXPECT_TRUE(sink.isFinished);
}

TEST(TextTableTest, DeepTemplatesAreWrittenWithoutRecursion)
{
    std::string text = R"({ "type": "kDetails", "tuples": [ { "token": "%Name" } ] })";
    for (int i = 0; i < 200; ++i)
        text = R"({ "type": "kGroupHeader", "children": [ )" + text + " ] }";

    EXPECT_EQ("Name\n----\nA\nB\n", tableOf("{ \"sections\": [ " + text + " ] }", "%Name\nA\nB\n"));
}

namespace
{
std::string tableOf(const OutputChoices& choices, const std::string& templateText, const std::string& parts)
{
    return writtenBy(TextTableWriter(choices), templateText, parts);
}
}

TEST(TextTableTest, EverythingFitsIntoTheWidth)
{
    OutputChoices choices;
    choices.width = 20;
    const std::string list = details(kNameAndWeight, R"("title": "A title that is wider")");
    const std::string parts = "%Name,%Weight\n\"Base plate, corner\",1\nPL20*300*400,2\n";

    EXPECT_EQ("A title that is\n"
              "wider\n"
              "\n"
              "Name          Weight\n"
              "                [kg]\n"
              "---------  ---------\n"
              "Base               1\n"
              "plate,\n"
              "corner\n"
              "PL20*300*          2\n"
              "400\n",
              withoutFoot(tableOf(choices, list, parts)));
    choices.cutsTexts = true;
    EXPECT_NE(std::string::npos, tableOf(choices, list, parts).find("\nBase pla…          1\nPL20*300…          2\n"));
}

TEST(TextTableTest, AsciiAloneIsWrittenWhereThatIsWanted)
{
    OutputChoices choices;
    choices.isAscii = true;

    EXPECT_EQ("Name     Paint [m2]\n"
              "-------  ----------\n"
              "Traeger           1\n",
              withoutFoot(tableOf(choices, details(R"({ "token": "%Name" }, { "token": "%Paint" })"),
                                  "%Name,Paint [m2]\nTräger,1\n")));
}
}
