#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The options of `mekbom report`; ProgramTest shows what reports look like.

namespace mekbom
{
namespace
{
class ReportVerbTest : public testing::Test
{
protected:
    // Reports on one part of one weight and the length of seven and a half feet.
    ProgramRun report(const std::vector<std::string>& options) const
    {
        std::vector<std::string> arguments = { "report", "--data", m_parts, "--template", m_template };
        arguments.insert(arguments.end(), options.begin(), options.end());
        return runHere(arguments);
    }

    ScratchFolder m_folder;
    std::string m_parts = m_folder.file("parts.csv", "%Weight,%Length\n10,2286\n");
    std::string m_template = m_folder.file("list.json", R"({ "sections": [ { "type": "kDetails", "tuples": [
        { "token": "%Weight" }, { "token": "%Length" } ] } ] })");
};
}

TEST_F(ReportVerbTest, WithoutOptionsUnitsAreMetric)
{
    EXPECT_EQ("Weight [kg]  Length [mm]\n-----------  -----------\n         10         2286\n",
              withoutFoot(report({}).output));
}

TEST_F(ReportVerbTest, OptionsMayBeRepeatedAndJoinedToTheirValues)
{
    EXPECT_EQ(
        "Weight [lb]  Length [m]\n-----------  ----------\n       22.0        2.29\n",
        withoutFoot(
            report({ "--unit", "weight=lb/1", "--unit=length=m/2", "--setting=C0_BOMSuppressLastZeros=0" }).output));
    EXPECT_EQ("Weight [kg]  Length [mm]\n-----------  -----------\n       4.54     696772.8\n",
              withoutFoot(report({ "--input-unit", "%Weight=lb", "--input-unit=Length=ft" }).output));
}

TEST_F(ReportVerbTest, TheListGoesToAFileUnderEitherName)
{
    const std::string path = (m_folder / "list.txt").string();
    for (const std::vector<std::string>& options :
         { std::vector<std::string>{ "-o", path }, { "--output", path }, { "--output=" + path } })
    {
        writeFile(path, "old");
        EXPECT_EQ("", report(options).output);
        EXPECT_EQ("Weight", readFile(path).substr(0, 6));
    }
}

TEST_F(ReportVerbTest, HelpShowsExamplesAndStatuses)
{
    for (const std::vector<std::string>& arguments :
         { std::vector<std::string>{ "--help" }, { "report", "--help" }, { "-h" }, { "report", "-h" } })
    {
        const ProgramRun run = runHere(arguments);
        EXPECT_EQ(kDone, run.status);
        for (const char* const text :
             { "mekbom report --data parts.csv", "Exit status", " 70  internal fault", "cutting-list" })
            EXPECT_NE(std::string::npos, run.output.find(text)) << text;
    }
    EXPECT_NE(std::string::npos, runHere({ "report", "--help" }).output.find("Usage: mekbom report [OPTIONS]"));
}

// Options are looked at when the report is made, so who asks how they are written need not write them well.
TEST_F(ReportVerbTest, HelpIsShownBesideAnOptionThatIsWrong)
{
    const std::string help = runHere({ "report", "--help" }).output;
    for (const std::vector<std::string>& arguments : { std::vector<std::string>{ "report", "--unit", "x", "--help" },
                                                       { "report", "--data", "nowhere.csv", "--help" },
                                                       { "report", "--help", "--setting", "=1" } })
    {
        const ProgramRun run = runHere(arguments);
        EXPECT_EQ(kDone, run.status);
        EXPECT_EQ(help, run.output);
        EXPECT_EQ("", run.errors);
    }
}

TEST_F(ReportVerbTest, TextsThatAreNoPairsAreRefused)
{
    for (const char* const text : { "Paint", "=m2", "Paint=", "=" })
        EXPECT_EQ("mekbom: --input-unit: found \"" + std::string(text) + "\", expected TOKEN=UNIT such as %Paint=m2\n",
                  report({ "--input-unit", text }).errors);
    EXPECT_EQ("mekbom: --unit: found \"length\", expected KIND=UNIT such as length=ft-in/16\n",
              report({ "--unit", "length" }).errors);
    EXPECT_EQ("mekbom: --setting: found \"=1\", expected NAME=NUMBER such as C40_SuppressZeroFeet=0\n",
              report({ "--setting", "=1" }).errors);
}

TEST_F(ReportVerbTest, WrongUsageIsStatusTwo)
{
    for (const std::vector<std::string>& arguments : { std::vector<std::string>{ "report", "--dta", "x" },
                                                       { "report", "parts.csv" },
                                                       { "report", "--data" },
                                                       { "report", "--input-unit", "%Paint=m2", "b" } })
        EXPECT_EQ(kWrongUsage, runHere(arguments).status);
}

TEST_F(ReportVerbTest, PartsOfSeveralFilesAreListedInTheirOrder)
{
    const std::string more = m_folder.file("more.json", R"([ { "%Length": 1000, "%Weight": 5 }, { "%Weight": 2.5 } ])");

    EXPECT_EQ("Weight [kg]  Length [mm]\n-----------  -----------\n       10           2286\n        5           1000\n"
              "        2.5\n",
              withoutFoot(report({ "--data", more }).output));
}

TEST_F(ReportVerbTest, OneTemplateIsTaken)
{
    EXPECT_EQ("mekbom: --template: found \"b.json\" beside \"" + m_template + "\", expected one file\n",
              report({ "--template", "b.json" }).errors);
}

TEST_F(ReportVerbTest, NoneOfSeveralPartsListsIsOverwritten)
{
    const std::string more = m_folder.file("more.csv", "Weight\n5\n");

    EXPECT_EQ(kWrongUsage, report({ "--data", more, "-o", more }).status);
    EXPECT_EQ("Weight\n5\n", readFile(more));
}

TEST_F(ReportVerbTest, NamesThatPromiseAnotherFormatAreRefused)
{
    const std::string path = (m_folder / "list.pdf").string();

    const ProgramRun run = report({ "-o", path });

    EXPECT_EQ(kWrongUsage, run.status);
    EXPECT_EQ(0u, run.errors.find("mekbom: --output " + path + ": promises a format that no list is written in"));
    EXPECT_EQ("", readFile(path));
    for (const char* const name : { "list.txt", "list.lst", "list", "list.mine" })
        EXPECT_EQ(kDone, report({ "-o", (m_folder / name).string() }).status) << name;
}

TEST_F(ReportVerbTest, SeveralOutputsComeFromOneRun)
{
    const std::string text = (m_folder / "list.txt").string();
    const std::string csv = (m_folder / "list.csv").string();

    const ProgramRun run = report({ "-o", text, "-o", csv, "-o", "-", "--to", "json" });

    EXPECT_EQ(kDone, run.status) << run.errors;
    EXPECT_EQ("Weight [kg]  Length [mm]\n", readFile(text).substr(0, 25));
    EXPECT_EQ("Weight [kg],Length [mm]\r\n10,2286\r\n", readFile(csv));
    EXPECT_EQ("{\n\"format\": \"mekbom-list\"", run.output.substr(0, 25));
}

TEST_F(ReportVerbTest, WhatAListIsMadeOfIsToldBesideCsv)
{
    const ProgramRun beside = report({ "--to", "csv" });
    const ProgramRun within = report({ "--to", "csv", "--foot" });

    EXPECT_EQ("Weight [kg],Length [mm]\r\n10,2286\r\n", beside.output);
    EXPECT_EQ("mekbom: note: 1 row read, 1 listed\n"
              "mekbom: note: Lengths and weights without a unit were read as mm and kg\n",
              beside.errors);
    EXPECT_EQ(beside.output + ",\r\n\"1 row read, 1 listed\",\r\n"
                              "Lengths and weights without a unit were read as mm and kg,\r\n",
              within.output);
    EXPECT_EQ("", within.errors);
}

TEST_F(ReportVerbTest, ASummaryIsPrintedInEveryFormat)
{
    const std::string list = m_folder.file("totals.json", R"({ "equalLines": "keep", "sections": [
        { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] },
        { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight" } ] } ] })");
    const std::vector<std::string> summary = { "--template", list, "--summary" };
    std::vector<std::string> arguments = { "report", "--data", m_parts };
    arguments.insert(arguments.end(), summary.begin(), summary.end());

    EXPECT_EQ("Weight [kg]\n-----------\n         10\n", withoutFoot(runHere(arguments).output));
    arguments.insert(arguments.end(), { "--to", "csv" });
    EXPECT_EQ("Weight [kg]\r\n10\r\n", runHere(arguments).output);
}

TEST_F(ReportVerbTest, TheListOfAssembliesIsNotOverwritten)
{
    const std::string assemblies = m_folder.file("assemblies.csv", "Handle,Name\n1,A\n");

    const ProgramRun run = report({ "--assemblies", assemblies, "-o", assemblies });

    EXPECT_EQ(kWrongUsage, run.status) << run.errors;
    EXPECT_EQ("Handle,Name\n1,A\n", readFile(assemblies));
}

TEST_F(ReportVerbTest, ShippedListsGoByName)
{
    const ProgramRun run = runHere({ "report", "--data", m_parts, "--template", "parts-list" });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ(0u, run.output.find("Parts list\n"));
    EXPECT_EQ(std::string::npos, run.errors.find("which suits")); // it was not chosen but named
}

TEST_F(ReportVerbTest, AWordThatIsNeitherListNorFileIsRefused)
{
    const ProgramRun run = runHere({ "report", "--data", m_parts, "--template", "cuting-list" });

    EXPECT_EQ(kWrongUsage, run.status);
    EXPECT_EQ("mekbom: --template: found \"cuting-list\", expected a file or one of cutting-list, assembly-list, "
              "bolt-list, parts-list, default: did you mean \"cutting-list\"?\n",
              run.errors);
    EXPECT_EQ(kInvalidInput, runHere({ "report", "--data", m_parts, "--template", "./cutting-list" }).status);
    EXPECT_EQ(kInvalidInput, runHere({ "report", "--data", m_parts, "--template", "cutting-list.json" }).status);
}

TEST_F(ReportVerbTest, WordsThatAreNearlyRightAreTold)
{
    EXPECT_EQ("mekbom: report: found unknown option \"--dat\": did you mean \"--data\"?\n",
              runHere({ "report", "--dat", "parts.csv" }).errors);
    EXPECT_EQ("mekbom: --units: found \"metrics\", expected metric, imperial or a file of units: did you mean "
              "\"metric\"?\n",
              report({ "--units", "metrics" }).errors);
    const auto endsWith = [](const std::string& text, const std::string& end)
    { return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0; };
    EXPECT_TRUE(endsWith(report({ "--unit", "lenght=m" }).errors, ": did you mean \"length\"?\n"));
    EXPECT_TRUE(endsWith(report({ "--setting", "C40_SupressZeroFeet=0" }).errors,
                         ": did you mean \"C40_SuppressZeroFeet\"?\n"));
}
}
