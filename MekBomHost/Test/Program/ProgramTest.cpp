#include "Program.h"

#include "Support/ProgramRun.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define MEK_TEST_IS_SANITIZED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define MEK_TEST_IS_SANITIZED
#endif
#endif

// The whole program, run as its users run it.

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

const char* const kParts = "%Name,%Weight\nHEA200,2.5\nHEA200,2.5\nIPE360,4\n";

const char* const kTemplate = R"({ "equalLines": "merge", "sections": [
    { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [ { "token": "%Name" }, { "token": "%Weight" } ] } ] },
    { "type": "kReportFooter", "tuples": [ { "token": "%SumBy:%Weight", "value": 0.0 } ] } ] })";

const char* const kTable = "Name    Weight [kg]\n"
                           "------  -----------\n"
                           "HEA200          2.5\n"
                           "IPE360          4\n"
                           "------  -----------\n"
                           "                6.5\n"
                           "\n"
                           "3 rows read, 1 merged into equal lines, 2 listed\n"
                           "Merged rows are in no total: Weight 2.5 kg\n"
                           "Each row counts as one piece: there is no column %Quantity\n"
                           "Lengths and weights without a unit were read as mm and kg\n";

// A folder with a parts list and a template.
class Job
{
public:
    Job(const std::string& parts, const std::string& templateText)
        : m_parts(m_folder.file("parts.csv", parts)), m_template(m_folder.file("list.json", templateText))
    {
    }

    ProgramRun run(const std::string& options = std::string()) const
    {
        return runProgram("report --data \"" + m_parts + "\" --template \"" + m_template + "\" " + options);
    }

    const ScratchFolder& folder() const { return m_folder; }
    const std::string& parts() const { return m_parts; }
    const std::string& templateFile() const { return m_template; }

private:
    ScratchFolder m_folder;
    std::string m_parts;
    std::string m_template;
};

std::string firstLine(const std::string& text)
{
    return text.substr(0, text.find('\n'));
}
}

TEST(ProgramTest, AReportIsPrinted)
{
    const ProgramRun run = Job(kParts, kTemplate).run();

    EXPECT_EQ(0, run.status);
    EXPECT_EQ(kTable, run.output);
    EXPECT_EQ("", run.errors);
}

TEST(ProgramTest, TotalsThatWouldLoseRowsAreRefusedUnlessThatIsWanted)
{
    std::string open = kTemplate;
    open.erase(open.find("\"equalLines\""), std::string("\"equalLines\": \"merge\", ").size());
    const Job job("%Name,%Weight\nA,1\nA,1\nA,1\n", open);
    const std::string path = (job.folder() / "list.txt").string();

    const ProgramRun refused = job.run("-o \"" + path + "\"");
    const ProgramRun allowed = job.run("--allow MB307");

    EXPECT_EQ(1, refused.status);
    EXPECT_NE(std::string::npos, refused.errors.find("2 rows read like the one before them, are merged into its line "
                                                     "and are in no total: Weight 2 kg"))
        << refused.errors;
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(0, allowed.status) << allowed.errors;
    EXPECT_NE(std::string::npos, allowed.output.find("Merged rows are in no total: Weight 2 kg\n")) << allowed.output;
}

TEST(ProgramTest, AReportIsWrittenToAFile)
{
    const Job job(kParts, kTemplate);
    const std::string path = (job.folder() / "list.txt").string();

    const ProgramRun run = job.run("-o \"" + path + "\"");

    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_EQ(kTable, readFile(path));
}

TEST(ProgramTest, StandardInputIsRead)
{
    const Job job(kParts, kTemplate);

    const ProgramRun run =
        runProgram("report --data - --template \"" + job.templateFile() + "\" <\"" + job.parts() + "\"");

    EXPECT_EQ(0, run.status);
    EXPECT_EQ(kTable, run.output);
}

TEST(ProgramTest, FaultsOfStandardInputNameIt)
{
    const Job job("%Weight\nabc\n", kTemplate);

    const ProgramRun run =
        runProgram("report --data - --template \"" + job.templateFile() + "\" <\"" + job.parts() + "\"");

    EXPECT_EQ(3, run.status);
    EXPECT_EQ("mekbom: standard input:2: column \"%Weight\": found \"abc\", expected a number\n", run.errors);
}

TEST(ProgramTest, TheShippedHallIsPrintedAsACuttingList)
{
    for (const char* const arguments : { "demo", "report --data hall" })
    {
        const ProgramRun run = runProgram(arguments);
        EXPECT_EQ(0, run.status);
        EXPECT_EQ("Cutting list", firstLine(run.output));
        EXPECT_NE(std::string::npos, run.output.find("\nHEA200  "));
        EXPECT_EQ("mekbom: note: list cutting-list (Cutting list), which suits these columns; --template NAME takes "
                  "another\n",
                  run.errors);
    }
}

TEST(ProgramTest, AReportWithoutDataNamesTheTwoWays)
{
    for (const char* const arguments : { "report", "report --template default" })
    {
        const ProgramRun run = runProgram(arguments);
        EXPECT_EQ(2, run.status);
        EXPECT_EQ("", run.output);
        EXPECT_EQ("mekbom: report: found no --data, expected a parts list: mekbom report --data FILE lists its parts, "
                  "mekbom demo those of the shipped hall\n",
                  run.errors);
    }
}

TEST(ProgramTest, EveryShippedTemplatePrintsTheHall)
{
    for (const std::string name : { "cutting-list", "assembly-list", "bolt-list", "parts-list" })
    {
        const ProgramRun run = runProgram("demo --template " + name);
        EXPECT_EQ(0, run.status) << run.errors;
        EXPECT_EQ("", run.errors);
        EXPECT_EQ(run.output,
                  runProgram("demo --template \"" MEK_EXAMPLES_DIR "/Templates/" + name + ".json\"").output);
    }
}

TEST(ProgramTest, DataThatSuitNoListArePrintedAsTheyAre)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", "Unit,Note\nB10,x\nB2,y\n");

    const ProgramRun run = runProgram("report --data \"" + parts + "\"");

    EXPECT_EQ(0, run.status);
    EXPECT_EQ(0u, run.output.find("Unit  Note\n----  ----\n")) << run.output;
    EXPECT_NE(std::string::npos, run.output.find("\nB10   x\n"));
    EXPECT_EQ("mekbom: note: " + parts +
                  " suits no shipped list and is printed as it is; begin a list of your own with "
                  "mekbom new-list DATA > list.json\n",
              run.errors);
}

TEST(ProgramTest, SampleDataAndDefaultTemplateAreBuiltIn)
{
    for (const char* const arguments :
         { "report --data sample", "report --data sample --template default", "demo --template default" })
    {
        const ProgramRun run = runProgram(arguments);
        EXPECT_EQ(0, run.status) << run.errors;
        EXPECT_EQ(0u, firstLine(run.output).find("PosNum  Material  posNum  ")) << firstLine(run.output);
    }
}

TEST(ProgramTest, SampleDataGoWithTemplatesOfTheUser)
{
    const ScratchFolder folder;
    const std::string path = folder.file("list.json", R"({ "sections": [ { "type": "kDetails", "tuples": [
        { "token": "PosNum" }, { "token": "Weight" }, { "token": "Material" } ] } ] })");

    const ProgramRun run = runProgram("report --data sample --template \"" + path + "\"");

    EXPECT_EQ(0u, run.output.find("PosNum  Weight  Material\n"
                                  "------  ------  --------\n"
                                  "     1   200.2  Mat1\n"
                                  "     1   100.1  Mat1\n"));
}

TEST(ProgramTest, UnitsAreThoseAskedFor)
{
    const Job job("%Name,%Weight\nA,10\n", kTemplate);

    EXPECT_NE(std::string::npos, job.run("--units metric").output.find("A              10\n"));
    EXPECT_NE(std::string::npos, job.run("--units imperial").output.find("A              22\n"));
}

TEST(ProgramTest, UnitsAndSettingsOfTheUserAreTaken)
{
    const char* const details = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] })";
    const Job job("%Length\n2286\n152.4\n", details);
    const std::string settings = job.folder().file("settings.ini", "C40_SuppressZeroFeet=0\nC7_Other=1\n");
    const std::string units = job.folder().file("units.ini", "length=ft/3\n");

    EXPECT_EQ("Length [m]\n----------\n     2.286\n     0.152\n", withoutFoot(job.run("--unit length=m/3").output));
    EXPECT_EQ("Length [ft]\n-----------\n        7.5\n        0.5\n",
              withoutFoot(job.run("--units \"" + units + "\"").output));
    EXPECT_EQ("Length [ft-in]\n--------------\n         7'-6\"\n            6\"\n",
              withoutFoot(job.run("--units imperial --setting C40_ShowMinusBetweenFeetAndInch=1").output));
    const ProgramRun run = job.run("--units imperial --settings \"" + settings + "\"");
    EXPECT_EQ("Length [ft-in]\n--------------\n         7' 6\"\n         0' 6\"\n", withoutFoot(run.output));
    EXPECT_EQ("mekbom: note: " + settings + " sets C7_Other, which lists do not use\n", run.errors);
}

TEST(ProgramTest, SettingsOfTheEnvironmentAreTaken)
{
    const char* const details = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Length" } ] } ] })";
    const Job job("%Length\n2286\n", details);

    const ProgramRun run =
        runProgram("report --data \"" + job.parts() + "\" --template \"" + job.templateFile() + "\" --units imperial",
                   "C40_ShowMinusBetweenFeetAndInch=1 ");

    EXPECT_EQ("Length [ft-in]\n--------------\n         7'-6\"\n", withoutFoot(run.output));
}

TEST(ProgramTest, UnitsOfTheDataConvert)
{
    EXPECT_NE(
        std::string::npos,
        Job("%Name,%Weight\nA,10\n", kTemplate).run("--input-unit %Weight=lb").output.find("A            4.54\n"));
    EXPECT_NE(std::string::npos,
              Job("%Name,%Weight\nA,10\n", kTemplate).run("--input-unit Weight=lb").output.find("A            4.54\n"));
    EXPECT_NE(std::string::npos, Job("%Name,Weight [lb]\nA,10\n", kTemplate).run().output.find("A            4.54\n"));
}

TEST(ProgramTest, DataThatTheTemplateAsksForInVainAreNoted)
{
    EXPECT_EQ("mekbom: note: ", Job("%Name\nA\n", kTemplate).run().errors.substr(0, 14));
    EXPECT_NE(std::string::npos,
              Job("%Name,%Lenght\nA,1\n", kTemplate)
                  .run()
                  .errors.find("parts.csv has no column for %Weight, which the template asks for\n"));
}

TEST(ProgramTest, AMistakeOfTheAuthorStopsTheReportUnlessItIsExcused)
{
    const Job job(kParts, R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%Name" } ] },
        { "type": "kReportFooter" }, { "type": "kPageFooter" } ] })");

    const ProgramRun refused = job.run();
    EXPECT_EQ(kMistakes, refused.status);
    EXPECT_EQ("", refused.output);
    EXPECT_NE(std::string::npos, refused.errors.find("list.json:2:9: warning MB109: ")); // told beside the error
    EXPECT_NE(std::string::npos, refused.errors.find("list.json:2:38: error MB102: "));

    const ProgramRun excused = job.run("--allow MB102");
    EXPECT_EQ(kDone, excused.status);
    EXPECT_EQ("Name", firstLine(excused.output).substr(0, 4));
    EXPECT_EQ(std::string::npos, excused.errors.find("MB102"));
}

TEST(ProgramTest, WrongUsageIsStatusTwo)
{
    const Job job(kParts, kTemplate);
    for (const std::string arguments : { "", "print", "demo --units metres", "report --dta x", "report extra", "report",
                                         "demo --input-unit Paint", "report --data sample --input-unit %Paint=m2" })
    {
        const ProgramRun run = runProgram(arguments);
        EXPECT_EQ(2, run.status) << arguments;
        EXPECT_EQ("", run.output) << arguments;
        EXPECT_EQ("mekbom: ", run.errors.substr(0, 8)) << arguments;
    }
    EXPECT_EQ(2, job.run("--input-unit %Paint=m2").status);
    EXPECT_EQ(2, job.run("--input-unit %Weight=m2").status);
}

TEST(ProgramTest, InputIsNotOverwritten)
{
    const Job job(kParts, kTemplate);

    const ProgramRun run = job.run("-o \"" + job.parts() + "\"");

    EXPECT_EQ(2, run.status);
    EXPECT_EQ("mekbom: --output " + job.parts() + ": is the same file as the input " + job.parts() + "\n", run.errors);
    EXPECT_EQ(kParts, readFile(job.parts()));
    EXPECT_EQ(2, job.run("-o \"" + job.templateFile() + "\"").status);
}

TEST(ProgramTest, UnreadableInputIsStatusThree)
{
    const ScratchFolder folder;
    const std::string missing = (folder / "missing.csv").string();

    const ProgramRun run = runProgram("report --data \"" + missing + "\"");
    EXPECT_EQ(3, run.status);
    EXPECT_EQ("mekbom: " + missing + ": cannot be read: No such file or directory\n", run.errors);

    EXPECT_EQ(3, runProgram("demo --template \"" + missing + "\"").status);

    const ProgramRun folderRun = runProgram("report --data \"" + folder.path().string() + "\"");
    EXPECT_EQ(3, folderRun.status);
    EXPECT_EQ("mekbom: " + folder.path().string() + ": cannot be read: Is a directory\n", folderRun.errors);
}

TEST(ProgramTest, InvalidInputIsStatusThree)
{
    const Job badParts("%Name,%Weight\nA,abc\nB\n", kTemplate);
    const ProgramRun run = badParts.run();
    EXPECT_EQ(3, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_EQ("mekbom: " + badParts.parts() + ":2: column \"%Weight\": found \"abc\", expected a number\n" +
                  "mekbom: " + badParts.parts() + ":3: found 1 field, expected 2 as in the header row\n",
              run.errors);

    const Job badTemplate(kParts, "{ \"sections\": [ { \"type\": \"kNone\" } ] }");
    EXPECT_EQ(3, badTemplate.run().status);
    EXPECT_EQ(0u, badTemplate.run().errors.find("mekbom: " + badTemplate.templateFile() +
                                                ":1:27: /sections/0/type: found \"kNone\""));
}

TEST(ProgramTest, NothingIsWrittenOnBadInput)
{
    const Job job("%Name,%Weight\nA,abc\n", kTemplate);
    const std::string path = job.folder().file("list.txt", "old");

    EXPECT_EQ(3, job.run("-o \"" + path + "\"").status);

    EXPECT_EQ("old", readFile(path));
    EXPECT_EQ(3, std::distance(fs::directory_iterator(job.folder().path()), fs::directory_iterator()));
}

TEST(ProgramTest, OutputThatCannotBeWrittenIsStatusFour)
{
    const Job job(kParts, kTemplate);
    const std::string path = (job.folder() / "missing" / "list.txt").string();

    const ProgramRun run = job.run("-o \"" + path + "\"");

    EXPECT_EQ(4, run.status);
    EXPECT_EQ("mekbom: " + path + ": cannot be written: No such file or directory\n", run.errors);
}

TEST(ProgramTest, AFullDeviceIsStatusFour)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";

    const Job job(kParts, kTemplate);
    const ScratchFolder folder;
    const std::string errors = (folder / "errors").string();
    const std::string command = "\"" MEK_PROGRAM "\" report --data \"" + job.parts() + "\" --template \"" +
                                job.templateFile() + "\" >/dev/full 2>\"" + errors + "\"";

    const int result = std::system(command.c_str());

    EXPECT_EQ(4, statusOf(result));
    EXPECT_EQ("mekbom: standard output: cannot be written: No space left on device\n", readFile(errors));
}

// The program counts users of texts without locks, whatever threads it has.
TEST(ProgramTest, ALongPartsListIsReadAheadAndListedInFull)
{
    std::string parts = "%Name,%Weight\n";
    for (int i = 0; i < 20'000; ++i)
        parts += "a mark beyond a word " + std::to_string(100'000 + i / 2) + "," + std::to_string(i) + "\n";
    const Job job(parts, kTemplate);

    const ProgramRun run =
        runProgram("report --data \"" + job.parts() + "\" --template \"" + job.templateFile() + "\"");

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_NE(std::string::npos, run.output.find("a mark beyond a word 100000")) << run.output.substr(0, 1000);
    EXPECT_NE(std::string::npos, run.output.find("a mark beyond a word 109999"));
    EXPECT_NE(std::string::npos, run.output.find("20000 rows read"));
}

TEST(ProgramTest, RunningOutOfMemoryIsStatusSeventy)
{
#if defined(_WIN32) || defined(MEK_TEST_IS_SANITIZED)
    GTEST_SKIP() << "a process's memory cannot be limited here";
#endif
    std::string parts = "%Name,%Weight\n";
    for (int i = 0; i < 300'000; ++i)
        parts += "HEA200," + std::to_string(i) + "\n";
    const Job job(parts, kTemplate);
    const std::string path = job.folder().file("list.txt", "old");

    const ProgramRun run = runProgram("report --data \"" + job.parts() + "\" --template \"" + job.templateFile() +
                                          "\" -o \"" + path + "\"",
                                      "ulimit -v 60000; ");

    EXPECT_EQ(70, run.status);
    EXPECT_EQ("mekbom: internal fault: no memory left\n", run.errors);
    EXPECT_EQ("old", readFile(path));
}

TEST(ProgramTest, HelpIsNoFault)
{
    for (const char* const arguments : { "--help", "report --help", "--version" })
    {
        const ProgramRun run = runProgram(arguments);
        EXPECT_EQ(0, run.status);
        EXPECT_NE("", run.output);
        EXPECT_EQ("", run.errors);
    }
}

TEST(ProgramTest, TheOutputIsTheSameInEveryLocale)
{
    const Job job("%Name,%Weight\nTräger,2.5\n", kTemplate);

    for (const char* const locale : { "C", "de_DE.UTF-8", "tr_TR.UTF-8" })
    {
        const ScratchFolder folder;
        const std::string path = (folder / "list.txt").string();
        const std::string command = std::string("LC_ALL=") + locale + " \"" MEK_PROGRAM "\" report --data \"" +
                                    job.parts() + "\" --template \"" + job.templateFile() + "\" -o \"" + path + "\"";
        ASSERT_EQ(0, std::system(command.c_str()));
        EXPECT_EQ(
            "Name    Weight [kg]\n------  -----------\nTräger          2.5\n------  -----------\n                2.5\n",
            withoutFoot(readFile(path)));
    }
}

TEST(ProgramTest, TheCommandsAndTheVersionAreTold)
{
    const std::string help = runHere({ "--help" }).output;

    EXPECT_EQ("Bills of materials from the parts lists of steel structures\nUsage: mekbom [OPTIONS] SUBCOMMAND\n",
              help.substr(0, help.find("\nOptions:")));
    EXPECT_NE(std::string::npos, help.find("  report                      Print a list from a parts list and"));
    EXPECT_NE(std::string::npos, help.find("  units                       List the units, or convert a quantity"));
    EXPECT_EQ(0u, runHere({ "--version" }).output.find("mekbom "));
    EXPECT_EQ(0u, runHere({}).errors.find("mekbom: found no command, expected one of report, demo, "));
}

TEST(ProgramTest, OneProgramRunsManyTimes)
{
    const Job job(kParts, kTemplate);
    const std::vector<std::string> report = { "report", "--data", job.parts(), "--template", job.templateFile() };
    std::vector<std::string> imperial = report;
    imperial.insert(imperial.end(), { "--units", "imperial" });
    Program program;

    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(kTable, runHere(program, report).output);
        EXPECT_NE(std::string::npos, runHere(program, imperial).output.find("Weight [lb]"));
        EXPECT_EQ("", runHere(program, report).errors);
        EXPECT_EQ(kInvalidInput, runHere(program, { "report", "--data", "missing.csv" }).status);
        EXPECT_EQ("7.5\n", runHere(program, { "units", "convert", "2286", "mm", "ft" }).output);
        EXPECT_EQ(kWrongUsage, runHere(program, { "units", "converse" }).status);
        EXPECT_EQ(0u, runHere(program, { "--version" }).output.find("mekbom "));
    }
}

TEST(ProgramTest, WhatARunUsedIsFreed)
{
    const Job job(kParts, kTemplate);
    const std::vector<std::string> report = { "report", "--data", job.parts(), "--template", job.templateFile() };
    runHere(report); // the engine and the streams keep what they made for the first report
    const LeakCheck leakCheck;

    for (int i = 0; i < 3; ++i)
        runHere(report);
}

TEST(ProgramTest, OfManyErrorsTwentyAreShown)
{
    const auto errorsFor = [](int numRows)
    {
        std::string parts = "%Name,%Weight\n";
        for (int i = 0; i < numRows; ++i)
            parts += "A,abc\n";
        const Job job(parts, kTemplate);
        return runHere({ "report", "--data", job.parts(), "--template", job.templateFile() }).errors;
    };

    const std::string twenty = errorsFor(20);
    EXPECT_EQ(20, std::count(twenty.begin(), twenty.end(), '\n'));
    EXPECT_EQ(std::string::npos, twenty.find("more"));
    const std::string errors = errorsFor(27);
    EXPECT_EQ(21, std::count(errors.begin(), errors.end(), '\n'));
    EXPECT_NE(std::string::npos, errors.find(":21: column \"%Weight\": found \"abc\", expected a number\nmekbom: and "
                                             "7 more faults\n"));
}
}
