#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
bool holds(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// What mekbom report says that it takes for a file.
std::string listTakenFor(const std::string& path)
{
    const std::string errors = runHere({ "report", "--data", path }).errors;
    const std::string begin = "note: list ";
    const std::size_t at = errors.find(begin);
    return at == std::string::npos ? "" : errors.substr(at + begin.size(), errors.find(" (", at) - at - begin.size());
}
}

TEST(DescribeVerbTest, TheListThatAReportTakesComesFirst)
{
    const std::string folder = MEK_TEST_DIR "/Reports/Lists/files-are-described/";
    for (const std::string& path :
         { std::string(MEK_EXAMPLES_DIR "/hall.csv"), folder + "parts.csv", folder + "parts.json" })
        EXPECT_TRUE(holds(runHere({ "describe", path }).output,
                          "Without --template mekbom report takes " + listTakenFor(path) + ".\n"))
            << path;
}

// The weight of all pieces is that of a list's total.
TEST(DescribeVerbTest, SumsOfPiecesAreTheTotalsOfLists)
{
    EXPECT_TRUE(holds(runHere({ "describe", "hall" }).output, "26290.78       26290.78\n"));
    EXPECT_TRUE(holds(runHere({ "report", "--data", "hall" }).output, "26290.78"));
}

TEST(DescribeVerbTest, SeveralFilesAreDescribedOneAfterTheOther)
{
    const ScratchFolder folder;
    const std::string beams = folder.file("beams.csv", "Name,Length [m]\nHEA200,6\n");
    const std::string rails = folder.file("rails.json", R"([ { "Name": "R10", "Length [ft]": 6 } ])");

    const ProgramRun run = runHere({ "describe", beams, rails });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ(runHere({ "describe", beams }).output + "\n" + runHere({ "describe", rails }).output, run.output);
    EXPECT_TRUE(holds(run.output, beams + ": 1 row, 2 columns\n"));
    EXPECT_TRUE(holds(run.output, rails + ": 1 row, 2 columns\n"));
}

TEST(DescribeVerbTest, OptionsSayHowFilesAreRead)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Name\tCost code\tWeight\nA\tX\t1,234\n");

    const ProgramRun run =
        runHere({ "describe", parts, "--delimiter", "tab", "--decimal", ",", "--map", "Cost code=%UserAttr1" });

    EXPECT_TRUE(holds(run.output, "Cost code  %UserAttr1  text")) << run.output;
    EXPECT_TRUE(holds(run.output, "1.234        1.234\n")) << run.output;
    EXPECT_EQ(kWrongUsage, runHere({ "describe", parts, "--sheet", "Prices" }).status);
}

TEST(DescribeVerbTest, WhatIsNotPlainInAFileIsSaidAsAReportDoes)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Name;Weight\nA;1,5\n");

    const ProgramRun run = runHere({ "describe", parts });

    EXPECT_EQ("mekbom: note: " + parts +
                  ": columns are separated by a semicolon; give --delimiter if that is wrong\n"
                  "mekbom: note: " +
                  parts + ": numbers have a decimal comma, as \"1,5\" on line 2 shows\n",
              run.errors);
}

// A report of this file ends with an error for each of its oddities.
TEST(DescribeVerbTest, AFileThatNoListIsMadeOfIsDescribed)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Position,Name,Name,Paint,Weight [stone]\n1,A,B,2,3\n4\n");

    const ProgramRun run = runHere({ "describe", parts });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ("", run.errors);
    EXPECT_TRUE(holds(run.output, "\nOdd\n  " + parts + ":1: found column \"%Name\" a second time\n")) << run.output;
    EXPECT_EQ(kInvalidInput, runHere({ "report", "--data", parts }).status);
}

TEST(DescribeVerbTest, DataThatCannotBeReadAreRefused)
{
    const ScratchFolder folder;

    EXPECT_EQ(kInvalidInput, runHere({ "describe", "missing.csv" }).status);
    EXPECT_EQ(kInvalidInput, runHere({ "describe", folder.file("empty.csv", "") }).status);
    EXPECT_EQ(kInvalidInput, runHere({ "describe", folder.file("broken.csv", "%Name\n\"A\n") }).status);
    EXPECT_EQ(kWrongUsage, runHere({ "describe" }).status);
}
}
