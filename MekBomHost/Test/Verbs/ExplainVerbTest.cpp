#include "ExplainVerb.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// Two kinds of parts of the hall by profile, with a line for each mark.
const char* const kMembers = R"({ "title": "Members", "queryFilter": "%Role = Rafter or %Role = 'Gable post'",
  "equalLines": "merge",
  "columns": [ { "token": "%Name", "label": "Profile" }, { "token": "%PNum", "label": "Mark" },
               { "token": "%Quantity", "label": "Pieces" }, { "token": "%Weight", "label": "Each" },
               { "token": "%Formula:%Weight*%Quantity", "label": "Weight" } ],
  "sections": [
    { "type": "kReportHeader", "children": [
      { "type": "kGroupHeader",
        "tuples": [ { "token": "%GroupBy:%Name" }, { "token": "%SortAscBy:%Name,%PNum" }, { "token": "%Name" } ],
        "children": [ { "type": "kDetails",
          "tuples": [ { "token": "%PNum" }, { "token": "%Quantity" }, { "token": "%Weight" },
                      { "token": "%Formula:%Weight*%Quantity" } ] } ] },
      { "type": "kGroupFooter",
        "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 },
                    { "token": "%SumBy:%Formula:%Weight*%Quantity", "value": 0.0 } ] } ] },
    { "type": "kReportFooter", "label": "Total",
      "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 },
                  { "token": "%SumBy:%Formula:%Weight*%Quantity", "value": 0.0 } ] } ] })";

const char* const kWordsAboutMembers =
    "Members\n"
    "The list is about the rows where %Role = Rafter or %Role = 'Gable post'\n"
    "A line that reads as the one before it is merged into that, and its row is in no total\n"
    "\n"
    "Level 0, the whole list\n"
    "  header  has no line\n"
    "  footer  is labelled \"Total\"; adds up %Quantity, from 0; adds up %Weight*%Quantity, from 0\n"
    "Level 1, a group for each different %Name, sorted by %Name and %PNum, ascending, in natural order\n"
    "  header  shows %Name, of the row that opens it\n"
    "  footer  adds up %Quantity, from 0; adds up %Weight*%Quantity, from 0\n"
    "Level 2, a line for each row\n"
    "  line    shows %PNum, %Quantity and %Weight; computes %Weight*%Quantity\n";

ProgramRun explain(std::vector<std::string> options)
{
    const ScratchFolder folder;
    options.insert(options.begin(), { "explain", folder.file("members.json", kMembers) });
    return runHere(options);
}

// What is said of one line of the members of the hall.
std::string wordsAbout(int line, std::vector<std::string> options = {})
{
    options.insert(options.end(), { "--data", "hall", "--allow", "MB307", "--line", std::to_string(line) });
    const ProgramRun run = explain(options);
    EXPECT_EQ(0, run.status) << run.errors;
    return run.output;
}
}

TEST(ExplainVerbTest, ATemplateIsToldWithoutData)
{
    const ProgramRun run = explain({});

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ(kWordsAboutMembers, run.output);
    EXPECT_EQ("", run.errors);
}

TEST(ExplainVerbTest, WithDataTheLinesFollow)
{
    const ProgramRun run = explain({ "--data", "hall", "--allow", "MB307" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ(std::string(kWordsAboutMembers) +
                  "\n"
                  "Line 1, level 1, header: Profile \"IPE240\"\n"
                  "Line 2, level 2, details: Mark \"m3\", Pieces \"1\", Each [kg] \"366.59\", Weight [kg] \"366.59\"\n"
                  "Line 3, level 2, details: Mark \"m4\", Pieces \"1\", Each [kg] \"200.78\", Weight [kg] \"200.78\"\n"
                  "Line 4, level 2, details: Mark \"m5\", Pieces \"1\", Each [kg] \"220.15\", Weight [kg] \"220.15\"\n"
                  "Line 5, level 1, footer: Pieces \"3\", Weight [kg] \"787.52\"\n"
                  "Line 6, level 1, header: Profile \"IPE360\"\n"
                  "Line 7, level 2, details: Mark \"m12\", Pieces \"1\", Each [kg] \"673.78\", Weight [kg] \"673.78\"\n"
                  "Line 8, level 1, footer: Pieces \"1\", Weight [kg] \"673.78\"\n"
                  "Line 9, level 0, footer: \"Total\", Pieces \"4\", Weight [kg] \"1461.3\"\n",
              run.output);
}

TEST(ExplainVerbTest, AHeaderOfTheHall)
{
    EXPECT_EQ("Line 6, level 1, header: Profile \"IPE360\"\nOpened by row 145 (330).\n", wordsAbout(6));
}

TEST(ExplainVerbTest, ALineOfTheHallIntoWhichOthersAreMerged)
{
    EXPECT_EQ("Line 3, level 2, details: Mark \"m4\", Pieces \"1\", Each [kg] \"200.78\", Weight [kg] \"200.78\"\n"
              "Made by row 48 (2CF).\n"
              "Merged into it, and in no total: row 66 (2E1), row 632 (517) and row 650 (529).\n"
              "Weight: %Weight*%Quantity, with %Weight 200.78 kg and %Quantity 1, is 200.78 kg\n"
              "The line before it, line 2, differs in %PNum: \"m3\", here \"m4\", %Weight: \"366.59\", here \"200.78\" "
              "and %Formula:%Weight*%Quantity: \"366.59\", here \"200.78\".\n"
              "The line after it, line 4, differs in %PNum: \"m5\", here \"m4\", %Weight: \"220.15\", here \"200.78\" "
              "and %Formula:%Weight*%Quantity: \"220.15\", here \"200.78\".\n",
              wordsAbout(3));
}

TEST(ExplainVerbTest, AFooterOfTheHall)
{
    EXPECT_EQ("Line 5, level 1, footer: Pieces \"3\", Weight [kg] \"787.52\"\n"
              "Counts row 25 (2B8), row 48 (2CF) and row 57 (2D8).\n"
              "Pieces, %Quantity added up: 1 + 1 + 1 = 3\n"
              "Weight, %Weight*%Quantity added up: 366.59 + 200.78 + 220.15 = 787.52 kg\n",
              wordsAbout(5));
}

TEST(ExplainVerbTest, AFooterOfTheHallInPounds)
{
    EXPECT_EQ("Line 5, level 1, footer: Pieces \"3\", Weight [lb] \"1736.2\"\n"
              "Counts row 25 (2B8), row 48 (2CF) and row 57 (2D8).\n"
              "Pieces, %Quantity added up: 1 + 1 + 1 = 3\n"
              "Weight, %Weight*%Quantity added up: 808.2 + 442.6 + 485.3 = 1736.2 lb (the numbers are rounded for the "
              "list; the total is the sum of those behind them)\n",
              wordsAbout(5, { "--units", "imperial" }));
}

TEST(ExplainVerbTest, AGroupWithHeaderAndFooterOnOneLine)
{
    const ScratchFolder folder;
    const std::string bolts = folder.file("bolts.json", R"({ "queryFilter": "%BoltName", "sections": [
        { "type": "kGroupHeader", "summary": true,
          "tuples": [ { "token": "%GroupBy:%BoltName" }, { "token": "%SortAscBy:%BoltName" }, { "token": "%BoltName" } ],
          "children": [ { "type": "kDetails", "tuples": [ { "token": "%Handle" } ] } ] },
        { "type": "kGroupFooter", "tuples": [ { "token": "%SumBy:%Quantity" } ] } ] })");

    const ProgramRun run = runHere({ "explain", bolts, "--data", "hall", "--line", "2" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ(0U, run.output.find("Line 2, level 0, header and footer: BoltName \"Anchor M24*600\", ")) << run.output;
    EXPECT_NE(std::string::npos, run.output.find("\nOpened by row 131 (322).\nCounts row 131 (322), row 142 (32D)"))
        << run.output;
    EXPECT_NE(std::string::npos, run.output.find("added up: 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 = 48\n"))
        << run.output;
}

TEST(ExplainVerbTest, ALineThatCountsRows)
{
    const ProgramRun run = runHere({ "explain", "bolt-list", "--data", "hall", "--line", "2" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ(0U, run.output.find("Line 2, level 1, details: Bolt \"Anchor M24*600\", ")) << run.output;
    EXPECT_NE(std::string::npos, run.output.find("\nMade by row 131 (322).\nCounted into it: row 142 (32D), row 206"))
        << run.output;
    EXPECT_NE(std::string::npos, run.output.find("added up: 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 + 4 = 48\n"))
        << run.output;
}

TEST(ExplainVerbTest, ALineThatIsNotThereIsWrongUsage)
{
    const ProgramRun run = explain({ "--data", "hall", "--allow", "MB307", "--line", "10" });

    EXPECT_EQ(2, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_NE(std::string::npos,
              run.errors.find("mekbom: --line: found 10, expected a line of the list, from 1 to 9\n"))
        << run.errors;
}

TEST(ExplainVerbTest, ATemplateAloneHasNoLines)
{
    const ProgramRun run = explain({ "--line", "1" });

    EXPECT_EQ(2, run.status);
    EXPECT_EQ("mekbom: --line: a template alone has no lines; give --data\n", run.errors);
}

TEST(ExplainVerbTest, TheBuiltInTemplateAndShippedListsGoByName)
{
    EXPECT_EQ(0, runHere({ "explain", "default" }).status);
    EXPECT_EQ(0U, runHere({ "explain", "cutting-list" }).output.find("Cutting list\n"));
    EXPECT_EQ(2, runHere({ "explain", "cutting" }).status);
}
}
