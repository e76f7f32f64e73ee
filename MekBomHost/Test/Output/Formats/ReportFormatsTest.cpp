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
}
