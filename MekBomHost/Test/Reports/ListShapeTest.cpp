#include "PageParts.h"

#include "Support/HostTestSupport.h"
#include "Support/ProgramRun.h"
#include "Support/WorkbookText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

// Lists of one peculiarity each, in every format, as folders of plain text: see Shapes/README.md.

namespace mekbom
{
namespace
{
namespace fs = std::filesystem;

const char* const kFormats[] = { "txt", "csv", "json", "html", "xlsx" };

std::string replaced(std::string text, std::string_view word, std::string_view by)
{
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + by.size()))
        text.replace(at, word.size(), by);
    return text;
}

// A workbook is bytes, and the style and the script of pages are files of their own: what is left is the list.
std::string asText(const std::string& format, const std::string& content)
{
    if (format == "xlsx")
        return WorkbookText::of(content);
    if (format == "html")
        return replaced(replaced(content, PageParts::kStyle, ""), PageParts::kScript, "");
    return content;
}

void expectText(const fs::path& path, const std::string& text)
{
    const char* const pRewrite = std::getenv("MEK_REWRITE_CASES");
    if (pRewrite != nullptr && std::string(pRewrite) == "1")
        writeFile(path, text);
    EXPECT_EQ(readFile(path), text) << path;
}

// The status is 0, or for lists of changes 1: something has changed.
void expectShape(const std::string& name, int status = 0)
{
    const fs::path folder = fs::path(MEK_TEST_DIR) / "Reports" / "Shapes" / name;
    const ScratchFolder scratch;
    std::string command = replaced(readFile(folder / "command.txt"), "{here}", folder.string());
    command.erase(command.find_last_not_of('\n') + 1);
    for (const std::string format : kFormats)
        command += " -o \"" + (scratch / ("list." + format)).string() + "\"";

    const ProgramRun run = runProgram(command);

    ASSERT_EQ(status, run.status) << run.errors;
    for (const std::string format : kFormats)
        expectText(folder / ("expected." + format + (format == "xlsx" ? ".txt" : "")),
                   asText(format, readFile(scratch / ("list." + format))));
}
}

TEST(ListShapeTest, GroupsWithinGroupsHaveSubtotals)
{
    expectShape("groups-with-subtotals");
}

TEST(ListShapeTest, AListNeedsNoGroups)
{
    expectShape("no-groups");
}

TEST(ListShapeTest, GroupsArePrintedWithoutTheirLines)
{
    expectShape("groups-without-lines");
}

TEST(ListShapeTest, FeetAndInchesStandBesideTheirNumbers)
{
    expectShape("feet-and-inches");
}

TEST(ListShapeTest, FormulasAndDatesAreTexts)
{
    expectShape("formulas-and-dates");
}

TEST(ListShapeTest, AnEmptyListHasHeadingsAndAFoot)
{
    expectShape("no-rows");
}

TEST(ListShapeTest, SectionsOfPagesStandOnEachPage)
{
    expectShape("sections-of-pages");
}

TEST(ListShapeTest, MarkupIsText)
{
    expectShape("markup");
}

TEST(ListShapeTest, TextsRunFromTheRightAndCombineCharacters)
{
    expectShape("scripts-of-the-world");
}

TEST(ListShapeTest, ChangesAreAList)
{
    expectShape("changes", 1);
}
}
