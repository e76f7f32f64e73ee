#include "UnitsFile.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
TEST(UnitsFileTest, AWordIsLeftToTheJob)
{
    for (const char* const word : { "metric", "imperial", "imprial" })
    {
        ReportRequest request;

        UnitsFile::setIn(request, word);

        EXPECT_EQ(word, request.units);
        EXPECT_EQ(nullptr, request.pUnits);
    }
}

TEST(UnitsFileTest, AFileIsASource)
{
    const ScratchFolder folder;
    const std::string file = folder.file("house.ini", "length = ft-in/16\n");
    ReportRequest request;

    UnitsFile::setIn(request, file);

    ASSERT_NE(nullptr, request.pUnits);
    EXPECT_EQ(file, request.pUnits->name());
}
}
