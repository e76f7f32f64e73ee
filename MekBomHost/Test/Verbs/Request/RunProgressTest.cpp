#include "RunProgress.h"

#include "ReportOutputs.h"

#include "Support/DiffSupport.h"
#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mekbom
{
namespace
{
class RunProgressTest : public testing::Test
{
protected:
    // A look at the clock takes as long as the line is to wait, so that all is due.
    ProgressLine::Terminal terminal(bool isThere = true)
    {
        return { isThere, [this] { return m_now += ProgressLine::kWait; },
                 [this](std::string_view text) { written += text; } };
    }

    std::string written;

private:
    ProgressLine::Clock::time_point m_now;
};

const char* const kTemplate = R"({ "sections": [ { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] })";

std::string partsOf(int numRows)
{
    std::string parts = "PNum\n";
    for (int i = 0; i < numRows; ++i)
        parts += "P" + std::to_string(i) + "\n";
    return parts;
}

ExitStatus runOn(const std::string& parts, RowProgress* pProgress)
{
    ReportRequest request = ListOfParts::requestOf(kTemplate, parts);
    request.pProgress = pProgress;
    ReportJob job(std::move(request));
    return job.run();
}
}

TEST_F(RunProgressTest, StepsAreTold)
{
    RunProgress progress(terminal());

    progress.take(RowProgress::kReading, 512);
    progress.take(RowProgress::kEvaluating, 1024);
    progress.takeWritten("list.csv", 31'900'000);
    progress.end();

    EXPECT_EQ("\rmekbom: 512 rows read\033[K\rmekbom: 1024 rows placed in the list\033[K"
              "\rmekbom: 31 MB of list.csv written\033[K\r\033[K",
              written);
}

TEST_F(RunProgressTest, WithoutATerminalNobodyCounts)
{
    EXPECT_EQ(nullptr, RunProgress(terminal(false)).ofRows());
}

TEST_F(RunProgressTest, AJobTellsHowManyRowsItHasReadAndPlaced)
{
    RunProgress progress(terminal());

    EXPECT_EQ(kDone, runOn(partsOf(3000), progress.ofRows()));

    EXPECT_NE(std::string::npos, written.find("mekbom: 512 rows read"));
    EXPECT_NE(std::string::npos, written.find("mekbom: 3000 rows read"));
    EXPECT_NE(std::string::npos, written.find("mekbom: 2048 rows placed in the list"));
    EXPECT_LT(written.find("3000 rows read"), written.find("rows placed"));
}

// Progress is for eyes: a list is the same whether somebody looks on or not.
TEST_F(RunProgressTest, ListsAreTheSameWithAndWithoutProgress)
{
    const std::string parts = partsOf(3000);
    const auto textOf = [&parts](RunProgress* pProgress, const std::string& path)
    {
        ReportRequest request = ListOfParts::requestOf(kTemplate, parts);
        request.pProgress = pProgress == nullptr ? nullptr : pProgress->ofRows();
        ReportJob job(std::move(request));
        EXPECT_EQ(kDone, job.run());
        ReportOutputs({ { path, "csv" } }, OutputChoices()).write(job.report(), pProgress);
        return readFile(path);
    };
    const ScratchFolder folder;
    RunProgress progress(terminal());

    const std::string watched = textOf(&progress, (folder / "a.csv").string());

    EXPECT_EQ(textOf(nullptr, (folder / "b.csv").string()), watched);
    EXPECT_NE("", watched);
}

TEST_F(RunProgressTest, FilesTellWhatIsWrittenAndStandardOutputTakesTheLineAway)
{
    const ListOfParts list(kTemplate, partsOf(20000));
    const ScratchFolder folder;
    const ReportOutputs outputs({ { "-", "csv" }, { (folder / "list.csv").string(), "csv" } }, OutputChoices());
    RunProgress progress(terminal());

    testing::internal::CaptureStdout();
    outputs.write(list.job.report(), &progress);
    const std::string printed = testing::internal::GetCapturedStdout();

    EXPECT_NE(std::string::npos, written.find(" written\033[K")) << written;
    EXPECT_EQ(written.size() - 4, written.rfind("\r\033[K")) << "nothing is shown once the list is printed";
    EXPECT_EQ(readFile(folder / "list.csv"), printed);
}
}
