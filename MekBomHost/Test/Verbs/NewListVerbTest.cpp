#include "CsvReader.h"
#include "PartsList.h"
#include "ReportJob.h"
#include "TextTableWriter.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace mekbom
{
namespace
{
// Prints the file when no list suits it; %Paint is in m2 where its heading does not say so.
std::string printedAsItIs(const std::string& path)
{
    const std::string parts = readFile(path);
    ReportRequest request;
    request.parts.push_back(std::make_unique<MemorySource>(path, parts));
    if (parts.find("%Paint,") != std::string::npos)
        request.inputUnits = { { "%Paint", "m2" } };
    request.candidates.push_back(std::make_unique<MemorySource>(
        "none", R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%None" } ] } ] })"));
    ReportJob job(std::move(request));
    EXPECT_EQ(kDone, job.run());
    StringSink sink;
    TextTableWriter().write(job.report(), sink);
    return sink.text;
}

std::string printedWithNewList(const std::string& path)
{
    const ScratchFolder folder;
    const ProgramRun newList = runHere({ "new-list", path });
    EXPECT_EQ(kDone, newList.status) << newList.errors;
    std::vector<std::string> report = { "report", "--data", path, "--template",
                                        folder.file("list.json", newList.output) };
    if (readFile(path).find("%Paint,") != std::string::npos)
        report.insert(report.end(), { "--input-unit", "%Paint=m2" });
    const ProgramRun run = runHere(report);
    EXPECT_EQ(kDone, run.status) << run.errors;
    return run.output;
}
}

TEST(NewListVerbTest, TheListPrintsWhatIsPrintedWhenNoListSuits)
{
    const std::string hall = MEK_EXAMPLES_DIR "/hall.csv";

    EXPECT_EQ(printedAsItIs(hall), printedWithNewList(hall));
    EXPECT_NE(std::string::npos, printedAsItIs(hall).find("26290.78\n")); // as the cutting list has it
}

TEST(NewListVerbTest, SoItDoesForDataOfOthers)
{
    const std::string folder = MEK_REAL_DATA_DIR;
    if (folder.empty())
        GTEST_SKIP() << "no real data: configure with -DMEK_REAL_DATA_DIR=<folder of steel-frame.csv>";
    for (const char* const name : { "/steel-frame.csv", "/profiles.csv", "/steel-frame-assemblies.csv" })
        EXPECT_EQ(printedAsItIs(folder + name), printedWithNewList(folder + name)) << name;
    const ProgramRun run = runHere({ "report", "--data", folder + "/profiles.csv" });
    EXPECT_EQ(printedWithNewList(folder + "/profiles.csv"), run.output);
    EXPECT_NE(std::string::npos, run.errors.find("profiles.csv suits no shipped list and is printed as it is"));
}

TEST(NewListVerbTest, TheHallMayBeNamed)
{
    EXPECT_EQ(runHere({ "new-list", MEK_EXAMPLES_DIR "/hall.csv" }).output, runHere({ "new-list", "hall" }).output);
}

TEST(NewListVerbTest, WhatColumnsOfOnesOwnHoldIsSeenInAllCells)
{
    const ScratchFolder folder;
    const std::string parts =
        folder.file("parts.csv", "%Name,Order,Grip,Thread [mm],Bay\nA,7,4,1.5,\nB,0012,12.5,,\nC,9,,2,\n");

    EXPECT_NE(std::string::npos, runHere({ "new-list", parts })
                                     .output.find("\"tokens\": {\n"
                                                  "    \"%Order\": \"text\",\n"
                                                  "    \"%Grip\": \"number\",\n"
                                                  "    \"%Thread\": \"number\",\n"
                                                  "    \"%Bay\": \"text\"\n"
                                                  "  },\n"));
}

TEST(NewListVerbTest, TheListOfMappedHeadingsNeedsNoMappings)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Mark,Cost code,Position\nB1,X,7\n");

    const ProgramRun newList = runHere({ "new-list", parts, "--map", "Cost code=UserAttr1" });
    const ProgramRun run =
        runHere({ "report", "--data", parts, "--template", folder.file("list.json", newList.output) });

    EXPECT_EQ("Mark  Cost code  Position\n----  ---------  --------\nB1    X                 7\n",
              withoutFoot(run.output));
    EXPECT_NE(std::string::npos, newList.errors.find("note: " + parts + ": column \"Position\": may be"))
        << newList.errors;
    EXPECT_EQ(kWrongUsage, runHere({ "new-list", parts, "--map", "Cots code=%UserAttr1" }).status);
}

TEST(NewListVerbTest, DataThatCannotBeReadAreRefused)
{
    const ScratchFolder folder;

    EXPECT_EQ(kInvalidInput, runHere({ "new-list", "missing.csv" }).status);
    EXPECT_EQ(kInvalidInput, runHere({ "new-list", folder.file("empty.csv", "") }).status);
    EXPECT_EQ(kInvalidInput, runHere({ "new-list", folder.file("broken.csv", "%Name\n\"A\n") }).status);
    EXPECT_EQ(kWrongUsage, runHere({ "new-list" }).status);
    EXPECT_EQ(kWrongUsage, runHere({ "new-list", "a.csv", "b.csv" }).status);
}
}
