#include "Support/ProgramRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
class CheckVerbTest : public testing::Test
{
protected:
    static std::string listBy(const std::string& group)
    {
        return R"({ "sections": [ { "type": "kGroupHeader", "tuples": [ { "token": ")" + group +
               R"(" }, { "token": "%SortAscBy:%Phase" }, { "token": "%Material" } ],
            "children": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] } ] })";
    }

    ScratchFolder m_folder;
    std::string m_parts = m_folder.file("parts.csv", "%PNum,%Phase,%Material\nP1,1,S235\nP2,1,S355\n");
    std::string m_good = m_folder.file("good.json", listBy("%GroupBy:%Phase"));
    std::string m_bad = m_folder.file("bad.json", listBy("%GroupBy:%Material"));
};
}

TEST_F(CheckVerbTest, ErrorsAreStatusOne)
{
    const ProgramRun run = runHere({ "check", m_bad });

    EXPECT_EQ(kMistakes, run.status);
    EXPECT_EQ(0u, run.output.find(m_bad + ":1:"));
    EXPECT_NE(std::string::npos, run.output.find(": error MB201: \"%GroupBy:%Material\" groups rows"));
    EXPECT_EQ("", run.errors);
}

TEST_F(CheckVerbTest, ATemplateBehindCodesWasTakenForOneOfThem)
{
    EXPECT_EQ(kDone, runHere({ "check", "--allow", "MB210,MB503", m_good }).status);
    EXPECT_EQ(kDone, runHere({ "explain", "--allow", "MB210,MB503", m_good }).status);
}

TEST_F(CheckVerbTest, WarningsAndNotesAreToldAndAreNoFailure)
{
    const ProgramRun run = runHere({ "check", m_good });

    EXPECT_EQ(kDone, run.status);
    EXPECT_NE(std::string::npos, run.output.find("note MB210: "));
    EXPECT_NE(std::string::npos, run.output.find("warning MB503: "));
}

TEST_F(CheckVerbTest, DataShowMore)
{
    const ProgramRun run = runHere({ "check", m_good, "--data", m_parts });

    EXPECT_EQ(kDone, run.status);
    EXPECT_NE(std::string::npos, run.output.find("warning MB503: \"%Material\" varies: S235, S355"));
}

TEST_F(CheckVerbTest, DataAreReadAsReportReadsThem)
{
    const std::string frame = m_folder.file("frame.csv", "Name,Material,Quantity,Length,Weight,Paint\n"
                                                         "HEA200,S355,4,3185,537.6,3.69\nHEA200,S355,1,6000,,6.96\n");

    const ProgramRun run = runHere({ "check", "cutting-list", "--data", frame });
    const ProgramRun withUnit = runHere({ "check", "cutting-list", "--data", frame, "--input-unit", "%Paint=m2" });
    const ProgramRun ofSome = runHere({ "check", "cutting-list", "--data", frame, "--input-unit", "%Paint=m2",
                                        "--where", "%Weight", "--row-totals", "%Weight" });

    EXPECT_EQ(kInvalidInput, run.status);
    EXPECT_EQ(kDone, withUnit.status) << withUnit.errors;
    EXPECT_NE(std::string::npos, withUnit.output.find("warning MB413: 1 of 2 rows have no number %Weight"));
    EXPECT_EQ("", ofSome.output + ofSome.errors);
}

TEST_F(CheckVerbTest, ShippedListsAndDataGoByName)
{
    for (const char* const name : { "cutting-list", "assembly-list", "bolt-list", "parts-list" })
    {
        const ProgramRun run = runHere({ "check", name, "--data", "hall" });
        EXPECT_EQ(kDone, run.status) << name;
        EXPECT_EQ("", run.output + run.errors) << name;
    }
}

TEST_F(CheckVerbTest, WhatIsAllowedIsNotTold)
{
    EXPECT_EQ("", runHere({ "check", m_good, "--allow", "MB210,MB503" }).output);
    EXPECT_EQ(kDone, runHere({ "check", m_bad, "--allow=MB201" }).status);
    EXPECT_EQ(kWrongUsage, runHere({ "check", m_bad, "--allow", "MB999" }).status);
}

TEST_F(CheckVerbTest, FindingsComeAsJson)
{
    const ProgramRun run = runHere({ "check", m_bad, "--format", "json" });

    EXPECT_EQ(kMistakes, run.status);
    EXPECT_EQ("", run.errors);
    EXPECT_EQ("MB201", nlohmann::json::parse(run.output)[0]["code"]);
    EXPECT_EQ("MB901",
              nlohmann::json::parse(runHere({ "check", "nowhere.json", "--format", "json" }).output)[0]["code"]);
    EXPECT_EQ(kWrongUsage, runHere({ "check", m_bad, "--format", "xml" }).status);
}

TEST_F(CheckVerbTest, AFileThatCannotBeReadIsNoMistake)
{
    const ProgramRun run = runHere({ "check", "nowhere.json" });

    EXPECT_EQ(kInvalidInput, run.status);
    EXPECT_EQ("", run.output);
    EXPECT_EQ(0u, run.errors.find("mekbom: nowhere.json: "));
}

TEST_F(CheckVerbTest, ARuleIsExplained)
{
    EXPECT_EQ(0u, runHere({ "check", "--explain", "MB105" }).output.find("# MB105: "));
    EXPECT_EQ(0u, runHere({ "check", "--explain", "all" }).output.find("# Mistakes in lists"));
    EXPECT_EQ(kWrongUsage, runHere({ "check", "--explain", "MB805" }).status);
    EXPECT_EQ(kWrongUsage, runHere({ "check" }).status);
}

TEST_F(CheckVerbTest, TheBuiltInTemplateExcusesWhatItDoes)
{
    const ProgramRun run = runHere({ "check", "default" });

    EXPECT_EQ(kDone, run.status);
    EXPECT_EQ("", run.output);
}
}
