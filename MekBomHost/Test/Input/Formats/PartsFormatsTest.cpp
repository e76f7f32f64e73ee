#include "PartsFormats.h"

#include "MemorySource.h"

#include "Support/HostTestSupport.h"
#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// The cells of the first record.
std::string headerOf(const std::string& bytes, const std::string& sheet = std::string())
{
    MemorySource source("parts", bytes);
    InputChoices choices;
    choices.sheet = sheet;
    FindingList notes;
    const auto pRecords = PartsFormats::open(source, choices, notes);
    std::string cells;
    for (const RecordCell& cell : *pRecords->next())
        cells += "[" + cell.asText() + "]";
    return cells;
}
}

TEST(PartsFormatsTest, TheFirstBytesTellTheFormat)
{
    EXPECT_EQ("[Name][Length]", headerOf("Name,Length\nHEA200,6000\n"));
    EXPECT_EQ("[Name][Length]", headerOf(BuiltWorkbook::ofRows(textRow({ "Name", "Length" })).bytes()));
    EXPECT_EQ("[Name][Length]", headerOf("[ { \"Name\": \"HEA200\", \"Length\": 6000 } ]"));
    EXPECT_EQ("[Name][Length]", headerOf("{\"Name\":\"HEA200\"}\n{\"Length\":6000}\n"));
    EXPECT_EQ("[[mm]][Name]", headerOf("[mm],Name\n"));
    EXPECT_EQ("3 parts: found a workbook of an old kind (.xls), expected a workbook (.xlsx) or CSV: save it as .xlsx\n",
              faultOf([] { headerOf("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 and more"); }));
}

TEST(PartsFormatsTest, OnlyAWorkbookHasSheets)
{
    EXPECT_EQ("[a]", headerOf(BuiltWorkbook::ofRows(textRow({ "a" })).bytes(), "Parts"));
    EXPECT_EQ("2 --sheet: parts is no workbook\n", faultOf([] { headerOf("Name\nHEA200\n", "Parts"); }));
}
}
