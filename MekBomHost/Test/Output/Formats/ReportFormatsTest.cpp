#include "ReportFormats.h"

#include "TextTableWriter.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(ReportFormatsTest, AFormatIsFoundByItsName)
{
    const std::unique_ptr<ReportWriter> pWriter = ReportFormats::createWriter(ReportFormats::kText);

    EXPECT_NE(nullptr, dynamic_cast<TextTableWriter*>(pWriter.get()));
}

TEST(ReportFormatsTest, AnyOtherNameIsNone)
{
    for (const char* const name : { "", "Text", "text ", "csv" })
        EXPECT_EQ(nullptr, ReportFormats::createWriter(name)) << name;
}

TEST(ReportFormatsTest, EndingsPromiseFormats)
{
    for (const char* const name : { "list.xlsx", "LIST.XLSX", "a/b.c/list.csv", "list.txt.html", ".json", "list.pdf" })
        EXPECT_TRUE(ReportFormats::promisesOtherFormat(name)) << name;
    for (const char* const name : { "list.txt", "list.lst", "list", "list.", "", "csv", "list.csv/list", "list.csv2" })
        EXPECT_FALSE(ReportFormats::promisesOtherFormat(name)) << name;
}
}
