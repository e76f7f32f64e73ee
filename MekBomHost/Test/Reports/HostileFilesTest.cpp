#include "InputLimits.h"
#include "PartsFormats.h"
#include "PartsList.h"
#include "Report.h"
#include "TemplateReader.h"

#include "Support/HostTestSupport.h"
#include "Support/RepeatingSource.h"
#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

// Files that are damaged, or made to do harm, end in a message that says where and what, before they have taken the
// memory of the machine. What workbooks may hold is tested with their reader, too.

namespace mekbom
{
namespace
{
const std::string kKilobyte(1000, 'x');
constexpr std::size_t kHundredMegabytes = 100'000; // of these
constexpr std::size_t kMillion = 1'000'000;

const char* const kTooLarge =
    "found a row of more than 8 MB, expected less: a field without its closing quote takes in all that follows\n";

std::string faultIn(ByteSource& source)
{
    const char* const pList = R"({ "sections": [ { "type": "kReportHeader", "children": [
        { "type": "kDetails", "tuples": [ { "token": "%Name" } ] } ] } ] })";
    Report report(TemplateReader::read("list.json", pList), VorUnitsManager::metric());
    FindingList notes;
    return faultOf(
        [&]
        {
            const std::unique_ptr<RecordSource> pRecords = PartsFormats::open(source, InputChoices(), notes);
            PartsList(*pRecords).readRows(report.engineTemplate(), report.filterTokens());
        });
}

std::string repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}
}

TEST(HostileFilesTest, ACellOfAHundredMegabytesIsGivenUpEarly)
{
    for (const char* const pStart :
         { "Name,Length\nHEA200,", "Name,Length\n\"", "Name,Length\n\"a\n", "Name;L\xE4nge\n" })
    {
        RepeatingSource source("parts.csv", pStart, kKilobyte, kHundredMegabytes, "\n");

        EXPECT_EQ(std::string("3 parts.csv:2: ") + kTooLarge, faultIn(source));
        EXPECT_LE(source.numGiven, 3 * InputLimits::kMostRecordBytes) << pStart;
    }
}

// A single quote too many makes one field of all lines up to the next one.
TEST(HostileFilesTest, AQuoteThatNobodyClosesTakesNoFileOfAnySize)
{
    RepeatingSource source("parts.csv", "Name,Length\nHEA200,\"6000\n", repeated("HEA200,6000\n", 100), kMillion);

    EXPECT_EQ(std::string("3 parts.csv:2: ") + kTooLarge, faultIn(source));
    EXPECT_LE(source.numGiven, 3 * InputLimits::kMostRecordBytes);
}

TEST(HostileFilesTest, AMillionEmptyColumnsAreRefused)
{
    RepeatingSource header("parts.csv", "Name", ",", kMillion, "\nHEA200\n");
    RepeatingSource row("parts.csv", "Name,Length\nHEA200", ",", kMillion, "\n");

    EXPECT_EQ("3 parts.csv:1: found 1000001 columns, expected 16384 at most\n", faultIn(header));
    EXPECT_EQ("3 parts.csv:2: found 1000001 fields, expected 2 as in the header row\n", faultIn(row));
}

TEST(HostileFilesTest, AValueOfAHundredMegabytesIsRefused)
{
    RepeatingSource array("parts.json", "[ {\"Name\":\"", kKilobyte, kHundredMegabytes, "\"} ]");
    RepeatingSource lines("parts.json", "{\"Name\":\"\"}\n{\"Name\":\"", kKilobyte, kHundredMegabytes, "\"}\n");
    const std::string tooLarge =
        "found an object of more than 8 MB, expected less: give each part an object of its own\n";

    EXPECT_EQ("3 parts.json:1:3: " + tooLarge, faultIn(array));
    EXPECT_EQ("3 parts.json:2:1: " + tooLarge, faultIn(lines));
}

TEST(HostileFilesTest, ValuesAHundredThousandDeepAreRefused)
{
    RepeatingSource objects("parts.json", "[", "{\"a\":", 100'000, "1" + repeated("}", 100'000) + "]");
    RepeatingSource arrays("parts.json", "{\"a\":", "[", 100'000, repeated("]", 100'000) + "}");

    EXPECT_EQ("3 parts.json:1:2502: found more than 500 levels of nesting\n", faultIn(objects));
    EXPECT_EQ("3 parts.json:1:505: found more than 500 levels of nesting\n", faultIn(arrays));
}

TEST(HostileFilesTest, AWorkbookThatUnpacksToAHundredMegabytesIsRefused)
{
    const std::string large(100'000'000, 'x');
    const std::string bytes = BuiltWorkbook::ofRows(textRow({ "Name", "Length" }) + textRow({ large })).bytes();
    MemorySource source("parts.xlsx", bytes);

    EXPECT_LT(bytes.size(), 1'000'000U);
    EXPECT_EQ(
        "3 parts.xlsx: xl/worksheets/sheet1.xml: found a row, a text or a tag of more than 8 MB, expected less: a "
        "file of parts this large is damaged, or made to do harm\n",
        faultIn(source));
}
}
