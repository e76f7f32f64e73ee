#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>

// Lists that are written as workbooks are parts lists again.

namespace mekbom
{
namespace
{
// Every row of a parts list in a line, without totals, which would be rows, too.
const char* const kEveryRow = R"({
  "equalLines": "keep",
  "columns": [ { "token": "%MNum" }, { "token": "%Name" }, { "token": "%Material" }, { "token": "%Quantity" },
               { "token": "%Length" }, { "token": "%Weight" }, { "token": "%Paint" } ],
  "sections": [ { "type": "kReportHeader", "children": [ { "type": "kDetails", "tuples": [
    { "token": "%MNum" }, { "token": "%Name" }, { "token": "%Material" }, { "token": "%Quantity" },
    { "token": "%Length" }, { "token": "%Weight" }, { "token": "%Paint" } ] } ] } ] })";

const std::string kHall = MEK_EXAMPLES_DIR "/hall.csv";

std::string cuttingListOf(const std::string& data)
{
    const ProgramRun run = runProgram("report --template cutting-list --data \"" + data + "\"");
    EXPECT_EQ(0, run.status) << run.errors;
    return run.output;
}

// The cutting list of the hall's rows, written as a workbook and read again.
std::string cuttingListByWayOfAWorkbook(const std::string& options)
{
    const ScratchFolder folder;
    const std::string list = folder.file("every-row.json", kEveryRow);
    const std::string workbook = (folder / "rows.xlsx").string();
    const ProgramRun run = runProgram("report --data \"" + kHall + "\" --template \"" + list + "\" " + options +
                                      " -o \"" + workbook + "\"");
    EXPECT_EQ(0, run.status) << run.errors;
    return cuttingListOf(workbook);
}
}

TEST(WorkbookRoundTripTest, AListIsReadBackWithTheSameTotals)
{
    EXPECT_EQ(cuttingListOf(kHall), cuttingListByWayOfAWorkbook("--units metric"));
}

// Its cells hold more digits than they show.
TEST(WorkbookRoundTripTest, OtherUnitsCostNoDigits)
{
    EXPECT_EQ(cuttingListOf(kHall),
              cuttingListByWayOfAWorkbook("--unit weight=lb/1 --unit length=in/2 --unit area=ft2/1"));
}

// Those of a list in feet and inches are texts, which parts lists may have, and are read as precisely as they are shown.
TEST(WorkbookRoundTripTest, FeetAndInchesAreReadAsTheyAreShown)
{
    const std::string list = cuttingListByWayOfAWorkbook("--unit length=ft-in/256");

    EXPECT_NE(std::string::npos, list.find("670 rows read, 106 filtered out by \"%Name\", 564 listed")) << list;
    EXPECT_NE(std::string::npos, list.find("26290.78")) << list;
}
}
