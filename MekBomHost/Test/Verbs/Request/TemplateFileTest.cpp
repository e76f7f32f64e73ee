#include "TemplateFile.h"

#include "Support/HostTestSupport.h"

#include <gtest/gtest.h>

namespace mekbom
{
TEST(TemplateFileTest, AShippedListIsCalledByItsName)
{
    EXPECT_EQ("bolt-list", TemplateFile::open("bolt-list", "--template")->name());
    EXPECT_NE("", TemplateFile::open("bolt-list", "--template")->readAll());
}

TEST(TemplateFileTest, AnythingElseIsAFile)
{
    EXPECT_EQ("list.json", TemplateFile::open("list.json", "--template")->name());
    EXPECT_EQ("./bolt-list", TemplateFile::open("./bolt-list", "--template")->name());
}

TEST(TemplateFileTest, AWordThatIsNeitherAsksWhatWasMeant)
{
    const std::string fault = faultOf([] { TemplateFile::open("bolt-lst", "template"); });

    EXPECT_EQ(0U, fault.find("2 template: found \"bolt-lst\"")) << fault;
    EXPECT_NE(std::string::npos, fault.find("did you mean \"bolt-list\"?")) << fault;
}
}
