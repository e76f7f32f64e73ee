#include "Program.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// What a file means by its numbers, seen in whole lists.

namespace mekbom
{
namespace
{
const char* const kDetailsAndTotals = R"({ "sections": [
  { "type": "kReportHeader", "children": [
    { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Quantity" }, { "token": "%Weight" },
      { "token": "%Paint" }, { "token": "%Price" } ] } ] },
  { "type": "kReportFooter", "label": "Total", "tuples": [ { "token": "%SumBy:%Quantity", "value": 0 },
    { "token": "%SumBy:%Weight", "value": 0.0 }, { "token": "%SumBy:%Paint", "value": 0.0 },
    { "token": "%SumBy:%Price", "value": 0.0 } ] } ] })";

ProgramRun listOf(const std::string& parts, const std::vector<std::string>& options = {})
{
    const ScratchFolder folder;
    std::vector<std::string> arguments = { "report", "--data", folder.file("parts.csv", parts), "--template",
                                           folder.file("list.json", kDetailsAndTotals) };
    arguments.insert(arguments.end(), options.begin(), options.end());
    Program program;
    ProgramRun run = runHere(program, arguments);
    for (std::size_t at = run.errors.find(folder.path().string()); at != std::string::npos;
         at = run.errors.find(folder.path().string()))
        run.errors.erase(at, folder.path().string().size() + 1);
    return run;
}
}

TEST(UnitsAndPiecesTest, AFileOfRowTotalsGivesTheListOfOneOfPieces)
{
    const ProgramRun ofPieces = listOf("PNum,Quantity,Weight [kg],Paint [m2],Price\n"
                                       "P1,4,134.4,6.25,10.5\nP2,,20.5,1.5,3\nP3,8,0.25,0.5,0.25\n");

    const ProgramRun ofTotals = listOf("PNum,Quantity,Weight [kg],Paint [m2],Price\n"
                                       "P1,4.0,537.6,25,42\nP2,1,20.5,1.5,3\nP3,8,2,4,2\n",
                                       { "--row-totals", "%Weight,Paint,%Price" });

    EXPECT_EQ(0, ofPieces.status) << ofPieces.errors;
    EXPECT_EQ(0, ofTotals.status) << ofTotals.errors;
    EXPECT_NE(std::string::npos, ofTotals.output.find("155.15")) << ofTotals.output;
    EXPECT_EQ(ofPieces.output, ofTotals.output);
}

TEST(UnitsAndPiecesTest, AnAreaWithoutAUnitIsRefusedWithTwoRemediesThatWork)
{
    const std::string rows = "\nP1,1,2,3.2,1\n";

    const ProgramRun refused = listOf("PNum,Quantity,Weight,Paint,Price" + rows);
    const ProgramRun withHeading = listOf("PNum,Quantity,Weight,Paint [m2],Price" + rows);
    const ProgramRun withOption = listOf("PNum,Quantity,Weight,Paint,Price" + rows, { "--input-unit", "%Paint=m2" });

    EXPECT_EQ(3, refused.status);
    EXPECT_EQ("", refused.output);
    EXPECT_NE(
        std::string::npos,
        refused.errors.find("parts.csv:2: column \"Paint\": found \"3.2\", expected a number with its unit: write "
                            "the heading \"Paint [m2]\", or give --input-unit %Paint=m2\n"))
        << refused.errors;
    EXPECT_EQ(0, withHeading.status) << withHeading.errors;
    EXPECT_EQ(withHeading.output, withOption.output);
}

TEST(UnitsAndPiecesTest, ACellThatIsNoNumberIsNamedInsteadOfEndingUpAsTheTotal)
{
    for (const char* const cell : { "n/a", "\"1,2,3\"", "NaN", "inf", "1e999" })
    {
        const ProgramRun run =
            listOf("PNum,Quantity,Weight,Paint [m2],Price\nP1,1,2,3,4\nP2,1,2,3," + std::string(cell) + "\n");

        EXPECT_EQ(3, run.status) << cell;
        EXPECT_EQ("", run.output);
        EXPECT_NE(std::string::npos, run.errors.find("parts.csv:3: error MB60")) << run.errors;
        EXPECT_NE(std::string::npos, run.errors.find(", expected a number; help: the list computes with %Price\n"));
    }
}

TEST(UnitsAndPiecesTest, WholeNumbersBeyondThirtyTwoBitsAreAddedUp)
{
    const ProgramRun run =
        listOf("PNum,Quantity,Weight,Paint [m2],Price\nP1,1,2,3,1\nP2,1,2,3,3000000000\nP3,1,2,3,2\n");

    EXPECT_EQ(0, run.status) << run.errors;
    const std::string total = run.output.substr(run.output.rfind("\nTotal"));
    EXPECT_TRUE(total.find("3000000003") != std::string::npos || total.find("3e+09") != std::string::npos) << total;
}

TEST(UnitsAndPiecesTest, ColumnsThatTheListDoesNotUseStopNothing)
{
    const ProgramRun run = listOf("PNum,Quantity,Weight,Paint [m2],Price,Length,%AssemblyWeight,Density,Note [see p]\n"
                                  "P1,1,2,3,1,long,-,7850,x\n");

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ("", run.errors);
}

TEST(UnitsAndPiecesTest, AHandleThatComesAgainIsTold)
{
    const ProgramRun run = listOf("Handle,PNum,Quantity,Weight,Paint [m2],Price\n2A0,P1,1,2,3,1\n2A0,P2,1,2,3,1\n");

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_NE(std::string::npos,
              run.errors.find("parts.csv: warning MB606: handle \"2A0\" stands in rows 1 and 2; help: "))
        << run.errors;
}

TEST(UnitsAndPiecesTest, TheFrameNeedsAUnitForItsSurfaces)
{
    if (std::string(MEK_REAL_DATA_DIR).empty())
        GTEST_SKIP() << "no real data: configure with -DMEK_REAL_DATA_DIR=<folder of steel-frame.csv>";

    const ProgramRun run = runProgram("report --data \"" MEK_REAL_DATA_DIR "/steel-frame.csv\"");

    EXPECT_EQ(3, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_NE(std::string::npos, run.errors.find("steel-frame.csv:3: column \"%Paint\": found \"0.0321999999999998\""));
    EXPECT_NE(std::string::npos, run.errors.find("or give --input-unit %Paint=m2\n"));
}
}
