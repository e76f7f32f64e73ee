#include "Program.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// What ordinary files and habits once did to a list without a word.

namespace mekbom
{
namespace
{
ProgramRun report(const std::string& parts, const std::string& details, const std::string& footer = "",
                  const std::vector<std::string>& options = {})
{
    const ScratchFolder folder;
    const std::string list =
        "{ \"sections\": [ { \"type\": \"kReportHeader\", \"children\": [ { \"type\": \"kDetails\", "
        "\"tuples\": [ " +
        details + " ] } ] }, { \"type\": \"kReportFooter\", \"tuples\": [ " + footer + " ] } ] }";
    std::vector<std::string> arguments = { "report", "--data", folder.file("parts.csv", parts), "--template",
                                           folder.file("list.json", list) };
    arguments.insert(arguments.end(), options.begin(), options.end());
    Program program;
    return runHere(program, arguments);
}

bool holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}
}

// Ordered from such a list, all but one of the pieces would be missing.
TEST(OrdinaryFilesTest, LinesThatShowPiecesDoNotMergeWithoutAWord)
{
    const char* const details = R"({ "token": "%PNum" }, { "token": "%Quantity" })";

    const ProgramRun run = report("PNum,Quantity\nP1,1\nP1,1\nP1,1\n", details);
    const ProgramRun withoutPieces = report("PNum,Quantity\nP1,1\nP1,1\nP1,1\n", R"({ "token": "%PNum" })");

    EXPECT_EQ(1, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_TRUE(holds(run.errors,
                      "error MB307: 2 rows read like those before them and are merged into their lines, which "
                      "do not show their pieces"))
        << run.errors;
    EXPECT_EQ(0, withoutPieces.status) << withoutPieces.errors;
}

TEST(OrdinaryFilesTest, AHeadingsUnitSaysOfWhatKindAColumnIs)
{
    const char* const details = R"({ "token": "%PNum" }, { "token": "%Gap" }, { "token": "%Slope" })";
    const char* const parts = "PNum,Gap [ft],Slope [deg]\nP1,3,90\nP2,1,45\n";

    const ProgramRun metric = report(parts, details);
    const ProgramRun imperial = report(parts, details, "", { "--units", "imperial", "--where", "%Gap > 2 ft" });

    EXPECT_TRUE(holds(metric.output, "PNum  Gap [mm]  Slope [")) << metric.output;
    EXPECT_TRUE(holds(metric.output, "P1       914.4"));
    EXPECT_TRUE(holds(imperial.output, "Gap [ft-in]")) << imperial.output << imperial.errors;
    EXPECT_TRUE(holds(imperial.output, " 3'"));
    EXPECT_FALSE(holds(imperial.output, "P2"));
}

TEST(OrdinaryFilesTest, TextsAreNotOrderedByANumber)
{
    const char* const parts = "PNum,Gap\nP1,0.25\nP2,10.75\nP3,n/a\n";
    const char* const details = R"({ "token": "%PNum" })";

    const ProgramRun refused = report(parts, details, "", { "--where", "%Gap > 0.3" });

    EXPECT_EQ(2, refused.status);
    EXPECT_TRUE(holds(refused.errors,
                      "--where: found the number 0.3, expected a text in quotes, since some cells of %Gap "
                      "are no numbers"))
        << refused.errors;
    EXPECT_EQ(0, report(parts, details, "", { "--where", "%Gap = 0.25" }).status);
    EXPECT_EQ(0, report("PNum,Gap\nP1,0.25\nP2,10.75\n", details, "", { "--where", "%Gap > 0.3" }).status);
}

TEST(OrdinaryFilesTest, RowsWithoutAnyCellAreNoPieces)
{
    const ProgramRun run =
        report("PNum,Quantity\nP1,4\n,\nP2,1\n,\n", R"({ "token": "%PNum" }, { "token": "%Quantity" })",
               R"({ "token": "%SumBy:%Quantity", "value": 0 })");

    EXPECT_TRUE(holds(run.output, "\n             5\n")) << run.output;
    EXPECT_TRUE(holds(run.output, "\n2 rows read, 2 listed\n2 rows without any cell passed over\n")) << run.output;
}

TEST(OrdinaryFilesTest, AListWithTotalsSaysThatRowsCountAsPieces)
{
    const char* const weights = R"({ "token": "%PNum" }, { "token": "%Weight" })";
    const char* const total = R"({ "token": "%SumBy:%Weight", "value": 0.0 })";
    const std::string words = "\nEach row counts as one piece: there is no column %Quantity\n";

    EXPECT_TRUE(holds(report("PNum,Sets,Weight\nP1,4,10\n", weights, total).output, words));
    EXPECT_FALSE(holds(report("PNum,Quantity,Weight\nP1,1,10\n", weights, total).output, words));
    EXPECT_FALSE(holds(report("PNum,Sets,Weight\nP1,4,10\n", weights).output, words));
}

// Every row would be filtered out for want of a profile.
TEST(OrdinaryFilesTest, NoListIsChosenWhoseFilterTakesAllRows)
{
    const ScratchFolder folder;
    const std::string parts =
        folder.file("parts.csv", "Handle,Color,Quantity,Length,Weight,Paint [m2]\n1,red,2,100,3,1\n2,blue,1,50,2,1\n");
    Program program;

    const ProgramRun run = runHere(program, { "report", "--data", parts });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_TRUE(holds(run.output, "blue") || holds(run.output, "2 listed")) << run.output;
    EXPECT_FALSE(holds(run.output, "0 listed")) << run.output;
}
}
