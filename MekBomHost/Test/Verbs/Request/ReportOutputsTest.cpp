#include "ReportOutputs.h"

#include "Support/EvaluatedParts.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

// A report on one part, written to these files.
class ReportOutputsTest : public testing::Test
{
protected:
    std::string path(const std::string& name) const { return (m_folder / name).string(); }

    static EvaluatedParts partsFor(const ReportOutputs& outputs)
    {
        return { kPartsByMaterial, { { L"HEA200", L"S355", 10.5 } }, outputs.contents() };
    }

    ScratchFolder m_folder;
};
}

TEST_F(ReportOutputsTest, AllOutputsComeFromOneReport)
{
    const ReportOutputs outputs({ { path("list.txt"), "text" }, { path("list.csv"), "csv" } }, OutputChoices());
    const EvaluatedParts parts = partsFor(outputs);

    outputs.write(parts.report());

    EXPECT_EQ("Weights\n", readFile(path("list.txt")).substr(0, 8));
    EXPECT_EQ("Material,Name,Weight [kg]\r\nS355,HEA200,10.5\r\n", readFile(path("list.csv")));
}

TEST_F(ReportOutputsTest, LinesHoldWhatAnyOutputWants)
{
    const LineContents ofText = ReportOutputs({ { "-", "text" } }, OutputChoices()).contents();
    const LineContents ofAll =
        ReportOutputs({ { path("a.json"), "json" }, { "-", "text" } }, OutputChoices()).contents();

    EXPECT_FALSE(ofText.values || ofText.rows);
    EXPECT_TRUE(ofAll.values && ofAll.rows);
}

TEST_F(ReportOutputsTest, StandardOutputIsWrittenBesideFiles)
{
    const ReportOutputs outputs({ { "-", "text" }, { path("list.csv"), "csv" } }, OutputChoices());
    const EvaluatedParts parts = partsFor(outputs);

    testing::internal::CaptureStdout();
    outputs.write(parts.report());

    EXPECT_EQ("Weights\n", testing::internal::GetCapturedStdout().substr(0, 8));
    EXPECT_EQ("Material,", readFile(path("list.csv")).substr(0, 9));
}

TEST_F(ReportOutputsTest, OneOutputThatFailsLeavesAllFilesAsTheyWere)
{
    writeFile(path("list.txt"), "old");
    const ReportOutputs outputs({ { path("list.txt"), "text" }, { path("missing/list.csv"), "csv" } }, OutputChoices());
    const EvaluatedParts parts = partsFor(outputs);

    EXPECT_EQ("4 " + path("missing/list.csv") + ": cannot be written: No such file or directory\n",
              faultOf([&] { outputs.write(parts.report()); }));

    EXPECT_EQ("old", readFile(path("list.txt")));
    EXPECT_EQ(1, std::distance(fs::directory_iterator(m_folder.path()), fs::directory_iterator()));
}

TEST_F(ReportOutputsTest, AFullDeviceLeavesTheFilesAsTheyWere)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    writeFile(path("list.txt"), "old");
    const ReportOutputs outputs({ { path("list.txt"), "text" }, { "/dev/full", "csv" } }, OutputChoices());
    const EvaluatedParts parts = partsFor(outputs);

    EXPECT_EQ("4 /dev/full: cannot be written: No space left on device\n",
              faultOf([&] { outputs.write(parts.report()); }));

    EXPECT_EQ("old", readFile(path("list.txt")));
}
}
