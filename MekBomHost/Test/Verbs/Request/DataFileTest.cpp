#include "DataFile.h"

#include "ShippedFiles.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(DataFileTest, WordsStandForWhatHasNoPath)
{
    EXPECT_EQ("standard input", DataFile::open("-")->name());
    EXPECT_EQ(ShippedFiles::find(ShippedFiles::kPartsList), DataFile::open("hall")->name());
}

TEST(DataFileTest, AnythingElseIsAFile)
{
    EXPECT_EQ("parts.csv", DataFile::open("parts.csv")->name());
    EXPECT_EQ("./hall", DataFile::open("./hall")->name());
}
}
