#include "StandardOutput.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(StandardOutputTest, TextsAreWrittenOneAfterTheOther)
{
    testing::internal::CaptureStdout();
    StandardOutput output;
    output.write("one\n");
    output.write("two\n");
    output.finish();

    EXPECT_EQ("one\ntwo\n", testing::internal::GetCapturedStdout());
}

TEST(StandardOutputTest, ATextIsPrintedWhole)
{
    testing::internal::CaptureStdout();

    StandardOutput::print("7' 6\"\n");

    EXPECT_EQ("7' 6\"\n", testing::internal::GetCapturedStdout());
}
}
