#include "ReportFormats.h"

#include "CsvWriter.h"
#include "JsonListWriter.h"
#include "TextTableWriter.h"
#include "XlsxWriter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mekbom
{
namespace
{
template <class Writer>
bool isOf(const std::string& format)
{
    return dynamic_cast<Writer*>(ReportFormats::createWriter(format).get()) != nullptr;
}
}

TEST(ReportFormatsTest, AFormatIsFoundByItsName)
{
    EXPECT_TRUE(isOf<TextTableWriter>("text"));
    EXPECT_TRUE(isOf<CsvWriter>("csv"));
    EXPECT_TRUE(isOf<TsvWriter>("tsv"));
    EXPECT_TRUE(isOf<JsonListWriter>("json"));
    EXPECT_TRUE(isOf<XlsxWriter>("xlsx"));
}

TEST(ReportFormatsTest, EachFormatHasAWriterAndAnEnding)
{
    for (const std::string& name : ReportFormats::names())
        EXPECT_NE(nullptr, ReportFormats::createWriter(name)) << name;
    EXPECT_EQ("text", ReportFormats::formatOf("list.txt"));
    EXPECT_EQ("csv", ReportFormats::formatOf("lists.d/LIST.CSV"));
    EXPECT_EQ("tsv", ReportFormats::formatOf("list.tsv"));
    EXPECT_EQ("json", ReportFormats::formatOf("list.txt.json"));
    EXPECT_EQ("xlsx", ReportFormats::formatOf("LIST.XLSX"));
}

TEST(ReportFormatsTest, AnyOtherNameIsNone)
{
    for (const char* const name : { "", "Text", "text ", "txt" })
        EXPECT_EQ(nullptr, ReportFormats::createWriter(name)) << name;
}

TEST(ReportFormatsTest, NamesMayAskForNoFormat)
{
    for (const char* const name : { "list.lst", "list", "list.", "", "csv", "list.csv/list", "list.csv2", "list.cs" })
    {
        EXPECT_EQ("", ReportFormats::formatOf(name)) << name;
        EXPECT_FALSE(ReportFormats::promisesOtherFormat(name)) << name;
    }
}

TEST(ReportFormatsTest, EndingsPromiseFormatsThatThereAreNot)
{
    for (const char* const name : { "list.xls", "LIST.PDF", "a/b.c/list.docx", "list.txt.ods", ".xml" })
        EXPECT_TRUE(ReportFormats::promisesOtherFormat(name)) << name;
}

TEST(ReportFormatsTest, NoEndingOfAFormatPromisesAnother)
{
    for (const char* const ending : { "txt", "csv", "tsv", "json" })
        EXPECT_FALSE(ReportFormats::promisesOtherFormat("list." + std::string(ending))) << ending;
}

TEST(ReportFormatsTest, FormatsTellWhatTheyTake)
{
    EXPECT_TRUE(ReportFormats::takes("csv", OutputChoices::kDelimiter));
    EXPECT_FALSE(ReportFormats::takes("tsv", OutputChoices::kDelimiter));
    EXPECT_FALSE(ReportFormats::takes("text", OutputChoices::kValues));
    EXPECT_FALSE(ReportFormats::takes("none", OutputChoices::kValues));
    EXPECT_EQ((std::vector<std::string>{ "csv", "tsv" }), ReportFormats::namesTaking(OutputChoices::kFoot));
}
}
