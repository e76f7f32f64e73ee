#include "Program.h"

#include "Support/ProgramRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
const char* const kParts = "%PNum,%Material,%Length [mm],%Weight [kg],%Cost code\n"
                           "B1,S355,6000,250,X1\n"
                           "B2,S355,6100.5,254,X2\n"
                           "B3,S235,7000,290,X10\n";

// A list of marks with what `members` say of the template, of the rows that meet `where`.
ProgramRun list(const std::string& members, const std::vector<std::string>& options)
{
    const ScratchFolder folder;
    const std::string parts = folder.file("parts.csv", kParts);
    const std::string file = folder.file("list.json", "{ " + members + R"(
  "sections": [ { "type": "kReportHeader", "children": [
    { "type": "kDetails", "tuples": [ { "token": "%PNum" } ] } ] } ] })");
    std::vector<std::string> arguments = { "report", "--data", parts, "--template", file };
    arguments.insert(arguments.end(), options.begin(), options.end());
    Program program;
    return runHere(program, arguments);
}

std::string withoutFolder(const std::string& text)
{
    const std::size_t end = text.find("list.json");
    return end == std::string::npos ? text : "mekbom: " + text.substr(end);
}
}

TEST(FilteredListTest, ItSaysAboveWhichRowsItIsAbout)
{
    const ProgramRun run = list("", { "--where", "%Material = 'S355' and %Length > 6 m" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ("Rows where %Material = 'S355' and %Length > 6 m\n\nPNum\n----\nB2\n",
              run.output.substr(0, run.output.find("B2\n") + 3));
}

TEST(FilteredListTest, BothFiltersCount)
{
    const ProgramRun run = list("\"queryFilter\": \"%Material = S355\",", { "--where", "%{Cost code} > X1" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ("Rows where %Material = S355\nRows where %{Cost code} > X1\n\nPNum\n----\nB2\n",
              run.output.substr(0, run.output.find("B2\n") + 3));
}

TEST(FilteredListTest, AMistakeInTheOptionIsWrongUsage)
{
    const ProgramRun operatorMissing = list("", { "--where", "%Material 'S355'" });
    EXPECT_EQ(2, operatorMissing.status);
    EXPECT_EQ("mekbom: --where: found \"'S355'\", expected \"and\", \"or\", a comma or the end\n",
              operatorMissing.errors);
    EXPECT_EQ("", operatorMissing.output);

    const ProgramRun unitWrong = list("", { "--where", "%Length > 6 kg" });
    EXPECT_EQ(2, unitWrong.status);
    EXPECT_EQ("mekbom: --where: found \"6 kg\", expected a number with or without a unit of distance such as mm, m, in "
              "or ft for %Length\n",
              unitWrong.errors);
}

TEST(FilteredListTest, ATokenThatNobodyKnowsIsAMistakeWhereverItStands)
{
    const ProgramRun inOption = list("", { "--where", "%Materal = 'S355'" });
    EXPECT_EQ(2, inOption.status);
    EXPECT_EQ(
        0U, inOption.errors.find("mekbom: --where: found \"%Materal\", expected a token of the catalogue or a column"))
        << inOption.errors;
    EXPECT_NE(std::string::npos, inOption.errors.find("did you mean \"%Material\"?")) << inOption.errors;

    const ProgramRun inTemplate = list("\"queryFilter\": \"!%Lenght\",", {});
    EXPECT_EQ(3, inTemplate.status);
    EXPECT_EQ(0U,
              withoutFolder(inTemplate.errors)
                  .find("mekbom: list.json:1:18: /queryFilter: found \"%Lenght\", expected a token of the catalogue"))
        << inTemplate.errors;
    EXPECT_NE(std::string::npos, inTemplate.errors.find("did you mean \"%Length\"?")) << inTemplate.errors;
}

// That no row has a coating is no mistake: the list is empty, and says why.
TEST(FilteredListTest, ATokenOfTheCatalogueThatNoRowHasLeavesAllRowsOut)
{
    const ProgramRun run = list("", { "--where", "%Coating" });

    EXPECT_EQ(0, run.status) << run.errors;
    EXPECT_EQ(0U, run.output.find("Rows where %Coating\n\nPNum\n----\n"));
    EXPECT_EQ(std::string::npos, run.output.find("B1"));
}
}
