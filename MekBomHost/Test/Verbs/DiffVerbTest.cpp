#include "Program.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const std::string kHeader = "Handle,PNum,Name,Material,Length [mm],Quantity,Weight [kg]\n";
const std::string kOld = kHeader + "h1,B1,IPE300,S355,3185,4,134.4\nh2,P1,PL10*120,S235,240,16,2.26\n"
                                   "h3,P2,PL8*100,S235,150,7,0.94\n";

struct Diff
{
    ProgramRun run;

    bool prints(const std::string& text) const { return run.output.find(text) != std::string::npos; }
};

Diff diffOf(const std::string& oldParts, const std::string& newParts, const std::vector<std::string>& options = {})
{
    const ScratchFolder folder;
    std::vector<std::string> arguments = { "diff", folder.file("old.csv", oldParts), folder.file("new.csv", newParts) };
    arguments.insert(arguments.end(), options.begin(), options.end());
    Program program;
    return { runHere(program, arguments) };
}
}

TEST(DiffVerbTest, EqualListsEndWithZero)
{
    const Diff diff = diffOf(kOld, kOld);
    EXPECT_EQ(0, diff.run.status) << diff.run.errors;
    EXPECT_TRUE(diff.prints("Nothing has changed: 3 lines as before\n")) << diff.run.output;
}

TEST(DiffVerbTest, AddedRemovedAndChangedLinesEndWithOne)
{
    const Diff diff = diffOf(kOld, kHeader + "h1,B1,IPE300,S355,3185,6,134.4\nh2,P7,PL10*120,S235,240,16,2.26\n"
                                             "h4,P3,PL8*100,S235,155,7,0.97\n");

    EXPECT_EQ(1, diff.run.status) << diff.run.errors;
    EXPECT_TRUE(diff.prints("1 line added, 1 line removed, 2 lines changed, 0 lines as before\n")) << diff.run.output;
    EXPECT_TRUE(diff.prints("4 \u2192 6")) << diff.run.output;
    EXPECT_TRUE(diff.prints("P1 \u2192 P7")) << diff.run.output;
    // Two beams of 134.4 kg and seven plates of 0.97 kg more; a new mark is no new steel.
    EXPECT_TRUE(diff.prints("Order in addition: Pieces 9, Weight 275.59 kg\n")) << diff.run.output;
    EXPECT_TRUE(diff.prints("Send back: Pieces 7, Weight 6.58 kg\n")) << diff.run.output;
}

TEST(DiffVerbTest, OtherSteelIsOrderedWholly)
{
    const Diff diff = diffOf(kOld, kHeader + "h1,B1,IPE330,S355,3185,4,156.4\nh2,P1,PL10*120,S235,240,16,2.26\n"
                                             "h3,P2,PL8*100,S235,150,7,0.94\n");

    EXPECT_TRUE(diff.prints("IPE300 \u2192 IPE330")) << diff.run.output;
    EXPECT_TRUE(diff.prints("Order in addition: Pieces 4, Weight 625.6 kg\n")) << diff.run.output;
    EXPECT_TRUE(diff.prints("Send back: Pieces 4, Weight 537.6 kg\n")) << diff.run.output;
}

TEST(DiffVerbTest, GroupsTellTheChangeOfTheirTotals)
{
    const Diff diff = diffOf(kOld,
                             kHeader + "h1,B1,IPE300,S355,3185,6,134.4\nh2,P1,PL10*120,S235,240,16,2.26\n"
                                       "h3,P2,PL8*100,S235,150,5,0.94\n",
                             { "--template", "cutting-list" });

    EXPECT_EQ(1, diff.run.status) << diff.run.errors;
    EXPECT_TRUE(diff.prints("Changes: Cutting list\n")) << diff.run.output;
    EXPECT_TRUE(diff.prints("268.8")) << diff.run.output;
    EXPECT_TRUE(diff.prints("-1.88")) << diff.run.output;
    EXPECT_TRUE(diff.prints("266.92")) << diff.run.output; // both together
}

TEST(DiffVerbTest, ALineOfAnotherGroupIsRemovedThereAndAddedHere)
{
    const Diff diff = diffOf(kOld,
                             kHeader + "h1,B1,IPE330,S355,3185,4,156.4\nh2,P1,PL10*120,S235,240,16,2.26\n"
                                       "h3,P2,PL8*100,S235,150,7,0.94\n",
                             { "--template", "cutting-list" });

    EXPECT_TRUE(diff.prints("changed, old")) << diff.run.output;
    EXPECT_TRUE(diff.prints("changed, new")) << diff.run.output;
    EXPECT_TRUE(diff.prints("0 lines added, 0 lines removed, 1 line changed, 2 lines as before\n")) << diff.run.output;
}

TEST(DiffVerbTest, ChangesAreInTheUnitsOfTheReader)
{
    const Diff diff = diffOf(kOld,
                             kHeader + "h1,B1,IPE300,S355,3185,6,134.4\nh2,P1,PL10*120,S235,240,16,2.26\n"
                                       "h3,P2,PL8*100,S235,150,7,0.94\n",
                             { "--units", "imperial" });

    EXPECT_TRUE(diff.prints("Weight change [lb]")) << diff.run.output;
    EXPECT_TRUE(diff.prints("Order in addition: Pieces 2, Weight 592.6 lb\n")) << diff.run.output;
}

TEST(DiffVerbTest, LinesWithoutAWeightAreTold)
{
    const Diff diff = diffOf(kOld, kOld + "h5,P5,PL8*80,S235,150,7,\nh6,P6,PL8*80,S235,150,2,1\n");

    EXPECT_TRUE(diff.prints("Order in addition: Pieces 9, Weight 2 kg\n")) << diff.run.output;
    EXPECT_TRUE(diff.prints("Weight: 1 of 2 lines that differ\n")) << diff.run.output;
    EXPECT_FALSE(diff.prints("Pieces: ")) << diff.run.output;
}

TEST(DiffVerbTest, AListThatWouldBeWrongIsNoDifference)
{
    const Diff diff = diffOf(kOld, "Handle,PNum,Quantity,Weight\nh1,B1,x,3\n");
    EXPECT_EQ(3, diff.run.status);
    EXPECT_EQ("", diff.run.output);
}

TEST(DiffVerbTest, DataThatSuitNoListNeedATemplate)
{
    const Diff diff = diffOf("A,B\n1,2\n", "A,B\n1,3\n");
    EXPECT_EQ(2, diff.run.status);
    EXPECT_NE(std::string::npos, diff.run.errors.find("no shipped list suits")) << diff.run.errors;
}

TEST(DiffVerbTest, ColumnsInTwoUnitsAreNotCompared)
{
    const std::string list = R"({ "equalLines": "keep", "sections": [ { "type": "kReportHeader", "children": [
      { "type": "kDetails", "tuples": [ { "token": "%PNum" }, { "token": "%Gap" } ] } ] } ] })";
    const ScratchFolder folder;
    const Diff diff =
        diffOf("PNum,Gap [in]\nP1,2\n", "PNum,Gap\nP1,2\n", { "--template", folder.file("list.json", list) });
    EXPECT_EQ(3, diff.run.status);
    EXPECT_NE(std::string::npos, diff.run.errors.find("found a column \"Gap [mm]\" in the old list and \"Gap\" in the "
                                                      "new one, expected the same units"))
        << diff.run.errors;
}
}
