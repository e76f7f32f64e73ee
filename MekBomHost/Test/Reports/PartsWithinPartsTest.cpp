#include "Program.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Parts lists whose rows are parts of other rows, and lists for several sets.

namespace mekbom
{
namespace
{
const char* const kTotals = R"({ "equalLines": "count", "sections": [
  { "type": "kReportHeader", "children": [
    { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Quantity" },
      { "token": "%Formula:%Weight*%Quantity" } ] } ] },
  { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 },
    { "token": "%SumBy:%Formula:%Weight*%Quantity", "value": 0.0 } ] } ] })";

const char* const kFactors = R"({ "equalLines": "count", "sections": [
  { "type": "kReportHeader", "children": [
    { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%QuantityFactors" } ] } ] } ] })";

const char* const kNested =
    "Handle,Parent,PNum,Quantity,Weight\nA1,,,4,100\nP1,A1,P1,2,30\nP2,A1,P2,1,40\nP3,,P3,5,1\n";

// Paths are left out of what it prints.
ProgramRun listOf(const std::string& parts, const std::vector<std::string>& options,
                  const std::string& listText = kTotals)
{
    const ScratchFolder folder;
    std::vector<std::string> arguments = { "report", "--data", folder.file("parts.csv", parts), "--template",
                                           folder.file("list.json", listText) };
    arguments.insert(arguments.end(), options.begin(), options.end());
    Program program;
    ProgramRun run = runHere(program, arguments);
    const std::string path = folder.path().string() + "/";
    for (std::size_t at = run.errors.find(path); at != std::string::npos; at = run.errors.find(path))
        run.errors.erase(at, path.size());
    return run;
}

bool has(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}
}

TEST(PartsWithinPartsTest, RowsWithinRowsAreNoListWithoutFlatten)
{
    const ProgramRun run = listOf(kNested, {});

    EXPECT_EQ(3, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_EQ("mekbom: parts.csv: column \"Parent\": row 2 and 1 other are parts of another row, such as row 1 \"A1\": "
              "give --flatten to multiply pieces along parents, or --map if the column means something else\n",
              run.errors);
}

TEST(PartsWithinPartsTest, AColumnParentThatNamesNoRowMeansSomethingElse)
{
    const ProgramRun run = listOf("Handle,Parent,PNum,Quantity,Weight\n1,Storey 1,P1,2,30\n2,Storey 1,P2,1,40\n", {});

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(has(run.output, "2 rows read, 2 listed\n")) << run.output;
}

TEST(PartsWithinPartsTest, AColumnParentThatMeansSomethingElseCanBeCalledSo)
{
    const ProgramRun run = listOf(kNested, { "--map", "Parent=%UserAttr1" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(has(run.output, "4 rows read, 4 listed\n")) << run.output;
}

TEST(PartsWithinPartsTest, FlattenedPartsStandInPlaceOfTheirParents)
{
    const ProgramRun run = listOf(kNested, { "--flatten" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ("", run.errors);
    EXPECT_TRUE(has(run.output, " 405\n")) << run.output; // 4*2*30 + 4*40 + 5
    EXPECT_TRUE(has(run.output, "4 rows read, 1 replaced by their parts, 3 listed\n")) << run.output;
}

TEST(PartsWithinPartsTest, SetsAreSaidBelowTheList)
{
    const ProgramRun run = listOf("PNum,Quantity,Weight\nP1,2,30\nP2,,40\n", { "--sets", "3" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(has(run.output, " 300\n")) << run.output;
    EXPECT_TRUE(has(run.output, "Pieces are those of 3 sets\n")) << run.output;
}

TEST(PartsWithinPartsTest, SetsOfRowsThatAreOnePieceEachAreMultipliedToo)
{
    const ProgramRun run = listOf("PNum,Weight\nP1,30\nP2,40\n", { "--sets", "3" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(has(run.output, " 210\n")) << run.output;
}

// A total of %Weight alone would stay the same however many sets there are.
TEST(PartsWithinPartsTest, ATotalThatDoesNotCountPiecesIsToldOfSets)
{
    const std::string list = R"({ "equalLines": "keep", "sections": [
      { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Weight" } ] } ] },
      { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

    EXPECT_FALSE(has(listOf("PNum,Weight\nP1,30\nP2,40\n", {}, list).errors, "MB106"));
    EXPECT_TRUE(has(listOf("PNum,Weight\nP1,30\nP2,40\n", { "--sets", "3" }, list).errors, "%Quantity"));
}

TEST(PartsWithinPartsTest, FilteredAreThePiecesThatAreMultiplied)
{
    const ProgramRun run = listOf(kNested, { "--flatten", "--where", "%Quantity = 8" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(
        has(run.output, "4 rows read, 1 replaced by their parts, 2 filtered out by \"%Quantity = 8\", 1 listed\n"))
        << run.output;
}

TEST(PartsWithinPartsTest, WeightsOfAllPiecesAreThoseWithinTheParent)
{
    const ProgramRun run =
        listOf("Handle,Parent,PNum,Quantity,Total weight\nA1,,,4,\nP1,A1,P1,2,60\n", { "--flatten" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(has(run.output, " 240\n")) << run.output;
}

TEST(PartsWithinPartsTest, MistakesNameTheFileAndTheColumn)
{
    EXPECT_EQ("mekbom: parts.csv: column \"Parent\": found \"A9\" in row 1, expected the handle of a row, or nothing\n",
              listOf("Handle,Parent,PNum,Quantity,Weight\nP1,A9,P1,2,30\n", { "--flatten" }).errors);
    EXPECT_EQ(
        "mekbom: parts.csv: column \"Parent\": found row 1 \"A1\" as a part of itself, expected parents that lead "
        "to a row without one\n",
        listOf("Handle,Parent,PNum,Quantity,Weight\nA1,A2,P1,2,30\nA2,A1,P1,2,30\n", { "--flatten" }).errors);
}

TEST(PartsWithinPartsTest, AParentOfAnotherWeightIsAWarning)
{
    const ProgramRun run = listOf("Handle,Parent,PNum,Quantity,Weight\nA1,,B1,4,500\nP1,A1,P1,2,30\n", { "--flatten" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(has(run.errors, "does not weigh what the parts weigh: \"A1\" 500 kg, its parts 60 kg")) << run.errors;
    EXPECT_TRUE(has(run.output, "\n1 warning\n")) << run.output;
}

TEST(PartsWithinPartsTest, OptionsWithoutUseAreWrongUsage)
{
    EXPECT_EQ("mekbom: --flatten: parts.csv has no column \"%Parent\", and so nothing tells which row is a part of "
              "which: give --map \"HEADING=%Parent\" for the column that does\n",
              listOf("Handle,PNum,Quantity,Weight\nP1,P1,2,30\n", { "--flatten" }).errors);
    EXPECT_EQ(2, listOf("Parent,PNum,Quantity,Weight\nP1,P1,2,30\n", { "--flatten" }).status);
    EXPECT_EQ(2, listOf(kNested, { "--sets", "0" }).status);
    EXPECT_EQ(2, listOf(kNested, { "--sets", "1.5" }).status);
    for (const char* const option : { "--flatten", "--sets=2" })
    {
        Program program;
        EXPECT_EQ(2, runHere(program, { "report", "--data", "sample", option }).status);
    }
}

TEST(PartsWithinPartsTest, FactorsOfOneRowAreNotShownForSeveral)
{
    const std::string twice = "Handle,Parent,PNum,Quantity\nA1,,,4\nP1,A1,P1,2\nP2,A1,P1,2\n";
    const std::string once = "Handle,Parent,PNum,Quantity\nA1,,,4\nP1,A1,P1,2\nP2,A1,P2,2\n";

    EXPECT_TRUE(has(listOf(once, { "--flatten" }, kFactors).output, "P1    4 \u00D7 2\n"));
    const ProgramRun run = listOf(twice, { "--flatten" }, kFactors);
    EXPECT_EQ(1, run.status);
    EXPECT_TRUE(has(run.errors, "lines stand for several rows and show the %QuantityFactors of one")) << run.errors;
}
}
