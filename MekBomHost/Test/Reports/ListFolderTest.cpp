#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

// Whole lists as folders of plain text: see Lists/README.md.

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

const std::string kExamples = "{examples}";
const std::string kRealData = "{real data}";
const std::string kHere = "{here}"; // the folder itself

std::string replaced(std::string text, const std::string& word, const std::string& by)
{
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + by.size()))
        text.replace(at, word.size(), by);
    return text;
}

// The text with the words in place of the folders that they stand for, or the other way round.
std::string withFolders(std::string text, const fs::path& here, bool byWords)
{
    const std::string folders[][2] = { { kHere, here.string() },
                                       { kExamples, MEK_EXAMPLES_DIR },
                                       { kRealData, MEK_REAL_DATA_DIR } };
    for (const auto& [word, folder] : folders)
        if (!folder.empty())
            text = replaced(text, byWords ? folder : word, byWords ? word : folder);
    return text;
}

// What the command lines of a folder print, each led by itself.
std::string printedBy(const fs::path& folder)
{
    std::istringstream commands(readFile(folder / "arguments.txt"));
    std::string text;
    for (std::string command; std::getline(commands, command);)
    {
        const ProgramRun run = runProgram(withFolders(command, folder, false));
        EXPECT_EQ(0, run.status) << run.errors;
        text += "$ mekbom " + command + "\n" + withFolders(run.output, folder, true) + "\n";
    }
    return text;
}

void expectList(const std::string& name)
{
    const fs::path folder = fs::path(MEK_TEST_DIR) / "Reports" / "Lists" / name;
    const std::string text = printedBy(folder);
    const char* const pRewrite = std::getenv("MEK_REWRITE_CASES");
    if (pRewrite != nullptr && std::string(pRewrite) == "1")
        writeFile(folder / "expected.txt", text);
    EXPECT_EQ(readFile(folder / "expected.txt"), text);
}

class RealListFolderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (std::string(MEK_REAL_DATA_DIR).empty())
            GTEST_SKIP() << "no real data: configure with -DMEK_REAL_DATA_DIR=<folder of steel-frame.csv>";
    }
};
}

TEST(ListFolderTest, EqualLinesBecomeWhatTheTemplateSays)
{
    expectList("equal-lines");
}

TEST(ListFolderTest, PartsStandInPlaceOfTheirParents)
{
    expectList("parts-within-parts");
}

TEST(ListFolderTest, TheHallPrintsInMetricUnits)
{
    expectList("hall-metric");
}

TEST(ListFolderTest, TheHallPrintsInImperialUnits)
{
    expectList("hall-imperial");
}

TEST(ListFolderTest, GroupsStandInTheOrderOfTotalsThatNeedBeNoSums)
{
    expectList("groups-in-the-order-of-totals");
}

TEST(ListFolderTest, EveryVerbPrints)
{
    expectList("every-verb");
}

TEST(ListFolderTest, PlainNumbersArePrintedInFull)
{
    expectList("plain-numbers-are-printed-in-full");
}

TEST(ListFolderTest, ColumnsHaveUnitsOfTheirOwn)
{
    expectList("columns-have-units-of-their-own");
}

TEST(ListFolderTest, FormulasAreShownByTheirDimension)
{
    expectList("formulas-are-shown-by-their-dimension");
}

TEST(ListFolderTest, ColumnsSayHowRowsAreSorted)
{
    expectList("columns-say-how-rows-are-sorted");
}

TEST(ListFolderTest, ColumnsOfSeveralKindsNameTheirUnits)
{
    expectList("columns-of-several-kinds-name-their-units");
}

TEST(ListFolderTest, SpreadsheetsWriteItOtherwise)
{
    expectList("spreadsheets-write-it-otherwise");
}

TEST(ListFolderTest, HeadingsOfTheTradeAreRead)
{
    expectList("headings-of-the-trade");
}

TEST(ListFolderTest, WorkbooksOfSeveralProgramsAreRead)
{
    expectList("workbooks-of-several-programs");
}

TEST(ListFolderTest, ExportsOfSeveralProgramsAreRead)
{
    expectList("exports-of-several-programs");
}

TEST(ListFolderTest, OneListIsWrittenInAllFormats)
{
    expectList("formats-of-one-list");
}

TEST(ListFolderTest, FilesAreDescribed)
{
    expectList("files-are-described");
}

TEST_F(RealListFolderTest, TheFrameIsDescribed)
{
    expectList("frame-described");
}

TEST_F(RealListFolderTest, TheFramePrintsInMetricUnits)
{
    expectList("frame-metric");
}

TEST_F(RealListFolderTest, TheFramePrintsInImperialUnits)
{
    expectList("frame-imperial");
}

TEST_F(RealListFolderTest, TheFrameIsWrittenInAllFormats)
{
    expectList("frame-formats");
}
}
