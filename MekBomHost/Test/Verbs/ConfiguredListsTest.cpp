#include "Support/EnvironmentVariable.h"
#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

// Lists of users who have configuration files, through all verbs that make some.

namespace mekbom
{
namespace
{
class ConfiguredListsTest : public testing::Test
{
protected:
    ConfiguredListsTest() : m_home("XDG_CONFIG_HOME", m_folder.path().string())
    {
        std::filesystem::create_directories(m_folder / "mekbom");
    }

    void configureUser(const std::string& text) const { writeFile(m_folder / "mekbom" / "config.ini", text); }
    void configureFolder(const std::string& text) const { writeFile(m_folder / "mekbom.ini", text); }
    std::string userFile() const { return (m_folder / "mekbom" / "config.ini").string(); }

    // A part of 10 kg and of seven and a half feet.
    ProgramRun report(const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> arguments = { "report", "--data", m_parts, "--template", m_template };
        arguments.insert(arguments.end(), options.begin(), options.end());
        return runHere(arguments);
    }

    ScratchFolder m_folder;
    EnvironmentVariable m_home;
    std::string m_parts = m_folder.file("parts.csv", "%Handle,%Weight,%Length\n1,10.5,2286\n");
    std::string m_template = m_folder.file("list.json", R"({ "sections": [ { "type": "kDetails", "tuples": [
        { "token": "%Weight" }, { "token": "%Length" } ] } ] })");
};

const char* const kMetric = "Weight [kg]  Length [mm]\n-----------  -----------\n       10.5         2286\n";
const char* const kFeet = "Weight [kg]  Length [ft-in]\n-----------  --------------\n       10.5           7' 6\"\n";
}

TEST_F(ConfiguredListsTest, UnitsStandInHeadingsAndTheirFileIsTold)
{
    configureUser("length = ft-in/16\n");

    const ProgramRun run = report();

    EXPECT_EQ(kFeet, withoutFoot(run.output));
    EXPECT_EQ("mekbom: note: units of " + userFile() +
                  ": length = ft-in/16: --units takes others, --no-config reads no such file\n",
              run.errors);
}

// "--units metric" must not leave lengths in feet that a file asks for.
TEST_F(ConfiguredListsTest, UnitsOfTheCommandLineLeaveNothingOfThoseOfFiles)
{
    configureUser("units = imperial\nlength = ft-in/16\n");

    const ProgramRun metric = report({ "--units", "metric" });
    const ProgramRun single = report({ "--unit", "weight=kg" });

    EXPECT_EQ(kMetric, withoutFoot(metric.output));
    EXPECT_EQ("", metric.errors);
    EXPECT_EQ(kFeet, withoutFoot(single.output));
    EXPECT_NE("", single.errors);
}

TEST_F(ConfiguredListsTest, TheFolderOfTheTemplateWinsOverTheUser)
{
    configureUser("units = imperial\nC40_ShowMinusBetweenFeetAndInch = 1\n");
    configureFolder("units = metric\nlength = ft-in/16\n");

    EXPECT_NE(std::string::npos, report().output.find("7'-6\"")) << report().output;
    EXPECT_NE(std::string::npos, report().output.find("Weight [kg]"));
    EXPECT_NE(std::string::npos, runHere({ "demo" }).output.find("[lb]")) << "a shipped list has no such folder";
}

TEST_F(ConfiguredListsTest, SettingsOfTheEnvironmentAndOptionsComeOverFiles)
{
    configureUser("length = ft-in/16\nC40_ShowMinusBetweenFeetAndInch = 1\n");

    EXPECT_NE(std::string::npos, report().output.find("7'-6\""));
    EXPECT_NE(std::string::npos, report({ "--setting", "C40_ShowMinusBetweenFeetAndInch=0" }).output.find("7' 6\""));
    const EnvironmentVariable variable("C40_ShowMinusBetweenFeetAndInch", "0");
    EXPECT_NE(std::string::npos, report().output.find("7' 6\""));
}

TEST_F(ConfiguredListsTest, CsvIsWrittenAsFilesSayAndTabsStayTabs)
{
    configureUser("output-delimiter = ;\noutput-decimal = ,\n");

    EXPECT_EQ("Weight [kg];Length [mm]\r\n10,5;2286\r\n", report({ "--to", "csv" }).output);
    EXPECT_EQ("Weight [kg]\tLength [mm]\r\n10,5\t2286\r\n", report({ "--to", "tsv" }).output);
    EXPECT_EQ("Weight [kg];Length [mm]\r\n10.5;2286\r\n", report({ "--to", "csv", "--output-decimal", "." }).output);
    EXPECT_EQ(kMetric, withoutFoot(report().output)) << "text is not csv";
}

TEST_F(ConfiguredListsTest, PagesAreForTheConfiguredPaper)
{
    configureUser("paper = letter\n");

    EXPECT_NE(std::string::npos, report({ "--to", "html" }).output.find("@page{size:letter}"));
    EXPECT_NE(std::string::npos, report({ "--to", "html", "--paper", "a4" }).output.find("@page{size:A4}"));
}

TEST_F(ConfiguredListsTest, NoFileIsReadOnRequest)
{
    configureUser("units = imperial\n");
    configureFolder("nonsense\n");

    const ProgramRun run = report({ "--no-config" });

    EXPECT_EQ(kMetric, withoutFoot(run.output));
    EXPECT_EQ("", run.errors);
}

TEST_F(ConfiguredListsTest, MistakesInFilesEndTheRun)
{
    configureFolder("units = imperial\npaper = a3\n");

    const ProgramRun run = report();

    EXPECT_EQ(kInvalidInput, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_EQ("mekbom: " + (m_folder / "mekbom.ini").string() +
                  ":2: found \"a3\" for paper, expected one of a4 letter\n",
              run.errors);
}

TEST_F(ConfiguredListsTest, AFileIsNotOverwrittenByAList)
{
    configureFolder("units = imperial\n");
    const std::string path = (m_folder / "mekbom.ini").string();

    EXPECT_EQ(kWrongUsage, report({ "-o", path }).status);
    EXPECT_EQ("units = imperial\n", readFile(path));
}

// A line that is explained in other units than it is printed in would be another line.
TEST_F(ConfiguredListsTest, ListsAreExplainedAndComparedInTheSameUnits)
{
    configureFolder("units = imperial\n");

    const ProgramRun explained = runHere({ "explain", m_template, "--data", m_parts, "--line", "1" });
    const ProgramRun compared = runHere({ "diff", m_parts, m_parts, "--template", m_template });

    EXPECT_NE(std::string::npos, explained.output.find("7' 6\"")) << explained.output;
    EXPECT_NE(std::string::npos, explained.errors.find("note: units of ")) << explained.errors;
    EXPECT_EQ(kDone, compared.status) << compared.errors;
    EXPECT_NE(std::string::npos, compared.errors.find("note: units of ")) << compared.errors;
}
}
