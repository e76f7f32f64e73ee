#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The same parts list as spreadsheets and programs of several countries write it: one list comes of all.

namespace mekbom
{
namespace
{
const std::string kFolder = MEK_TEST_DIR "/Reports/Lists/spreadsheets-write-it-otherwise/";

ProgramRun report(const std::string& parts, const std::vector<std::string>& options = {})
{
    std::vector<std::string> arguments = { "report", "--data", parts, "--template", kFolder + "list.json" };
    arguments.insert(arguments.end(), options.begin(), options.end());
    return runHere(arguments);
}

// The notes without the folder of the file.
std::string notesOn(const std::string& name)
{
    std::string notes = report(kFolder + name).errors;
    for (std::size_t at = notes.find(kFolder); at != std::string::npos; at = notes.find(kFolder))
        notes.erase(at, kFolder.size());
    return notes;
}
}

TEST(DialectTest, OneListComesOfAllDialects)
{
    const std::string expected = report(kFolder + "plain.csv").output;

    EXPECT_NE(std::string::npos, expected.find("1504382.85")) << expected;
    for (const char* const pName : { "german.csv", "german-windows-1252.csv", "german-utf-16.csv", "german-commas.csv",
                                     "swiss.csv", "french.csv", "american.csv", "announced.csv" })
        EXPECT_EQ(expected, report(kFolder + pName).output) << pName;
}

TEST(DialectTest, OneListComesOfTheExportsOfAllPrograms)
{
    const std::string folder = MEK_TEST_DIR "/Reports/Lists/exports-of-several-programs/";
    const std::string expected = runHere({ "report", "--data", folder + "pandas.csv" }).output;

    EXPECT_NE(std::string::npos, expected.find("16730.45")) << expected;
    for (const char* const pName :
         { "libreoffice.csv", "libreoffice-german.csv", "libreoffice-german.xlsx", "openpyxl.csv", "openpyxl.xlsx",
           "pandas-german.csv", "pandas.json", "pandas.jsonl", "pandas.xlsx" })
        EXPECT_EQ(expected, runHere({ "report", "--data", folder + pName }).output) << pName;
}

TEST(DialectTest, WhatIsNotPlainIsSaid)
{
    EXPECT_EQ("", notesOn("plain.csv"));
    EXPECT_EQ(
        "mekbom: note: german-windows-1252.csv: read as windows-1252; give --encoding if it is in another one\n"
        "mekbom: note: german-windows-1252.csv: columns are separated by a semicolon; give --delimiter if that is "
        "wrong\n"
        "mekbom: note: german-windows-1252.csv: numbers have a decimal comma, as \"3.185,50\" on line 2 shows\n"
        "mekbom: note: german-windows-1252.csv:2: column \"Length\": \"3.185,50\" is read as 3185.50\n",
        notesOn("german-windows-1252.csv"));
    EXPECT_EQ("mekbom: note: american.csv:2: column \"Length\": \"3,185.50\" is read as 3185.50\n",
              notesOn("american.csv"));
}

TEST(DialectTest, OptionsWinOverWhatIsFound)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "PNum;Quantity;Length;Weight\nB1;2;6000;1.234\n");

    EXPECT_EQ(3, report(parts).status);
    EXPECT_NE(std::string::npos, report(parts, { "--decimal", "," }).output.find(" 2468\n"));
    EXPECT_NE(std::string::npos, report(parts, { "--decimal", "." }).output.find(" 2.468\n"));
    EXPECT_EQ("mekbom: note: " + parts + " has no column for %Name, which the template asks for\n" +
                  "mekbom: note: " + parts + ":2: column \"Weight\": \"1.234\" is read as 1234\n",
              report(parts, { "--decimal", ",", "--delimiter", ";" }).errors);
}

TEST(DialectTest, FilesOfOneReportAgreeWhereANumberMayBeTwo)
{
    const ScratchFolder folder;
    const std::string german = folder.file("german.csv", "PNum;Quantity;Weight\nB1;1;12,5\n");
    const std::string germanToo = folder.file("german-too.csv", "PNum;Quantity;Weight\nB2;1;1.234,5\n");
    const std::string plain = folder.file("plain.csv", "PNum,Quantity,Weight\nB3,1,1.234\n");

    const ProgramRun ofGerman = report(german, { "--data", germanToo });
    const ProgramRun ofBoth = report(german, { "--data", plain });

    EXPECT_NE(std::string::npos, ofGerman.output.find(" 1247\n")) << ofGerman.output << ofGerman.errors;
    EXPECT_EQ(3, ofBoth.status);
    EXPECT_NE(
        std::string::npos,
        ofBoth.errors.find("plain.csv:2: column \"Weight\": \"1.234\" is 1.234 with a decimal point and 1234 with "
                           "a decimal comma, and nothing tells which is meant"))
        << ofBoth.errors;
}

TEST(DialectTest, AssembliesAreReadInTheirDialect)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Handle;PNum;Assembly;Weight;Quantity\nP1;B1;A7;12,5;1\n");
    const std::string assemblies = folder.file("assemblies.csv", "Handle;Weight\nA7;1.234,5\n");
    const std::string list = folder.file("list.json", R"({ "equalLines": "keep", "sections": [
      { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%AssemblyWeight" } ] } ] } ] })");

    const ProgramRun run = runHere({ "report", "--data", parts, "--assemblies", assemblies, "--template", list });

    EXPECT_NE(std::string::npos, run.output.find("1234.5")) << run.output << run.errors;
}

TEST(DialectTest, ANewTemplateKnowsNumbersWithDecimalCommas)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "PNum;Price;Weight;Strength\nB1;2,10;134,4;8.8\n");

    const ProgramRun run = runHere({ "new-list", parts });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_NE(std::string::npos, run.output.find("\"%Price\": \"number\"")) << run.output;
    EXPECT_NE(std::string::npos, run.output.find("\"%Strength\": \"text\"")) << run.output;
}
}
