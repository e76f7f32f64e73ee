#include "DisplaySettings.h"

#include "Support/HostTestSupport.h"

#include "MekRoots/Exp/KTRepositoryProxy.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
using Settings = std::vector<std::pair<std::string, std::string>>;

// The repository and the environment are shared by the process: every test ends with neither holding anything.
class DisplaySettingsTest : public testing::Test
{
protected:
    ~DisplaySettingsTest() override
    {
        unsetenv("C40_SuppressZeroFeet");
        KTRepositoryProxy::clear();
    }
};

int settingOf(const wchar_t* key)
{
    int value = 42;
    vor_odbc_getDefault(key, value);
    return value;
}

std::string faultWith(const std::string& file, const Settings& settings = Settings())
{
    return faultOf([&] { DisplaySettings::load(file, settings); });
}
}

TEST_F(DisplaySettingsTest, WithoutAnythingTheRepositoryStaysEmpty)
{
    EXPECT_TRUE(DisplaySettings::load("", {}).empty());

    EXPECT_EQ(42, settingOf(L"C40_SuppressZeroFeet"));
}

TEST_F(DisplaySettingsTest, FilesComeOverTheEnvironmentAndSingleSettingsOverBoth)
{
    const ScratchFolder folder;
    const std::string file = folder.file("a.ini", "C40_SuppressZeroFeet = 2\nC40_SuppressZeroInch = 0\n");
    setenv("C40_SuppressZeroFeet", "1", 1);

    DisplaySettings::load("", {});
    EXPECT_EQ(1, settingOf(L"C40_SuppressZeroFeet"));
    DisplaySettings::load(file, {});
    EXPECT_EQ(2, settingOf(L"C40_SuppressZeroFeet"));
    DisplaySettings::load(file, { { "C40_SuppressZeroFeet", "3" }, { "C0_BOMSuppressLastZeros", "0" } });
    EXPECT_EQ(3, settingOf(L"C40_SuppressZeroFeet"));
    EXPECT_EQ(0, settingOf(L"C40_SuppressZeroInch"));
    EXPECT_EQ(0, settingOf(L"C0_BOMSuppressLastZeros"));
}

TEST_F(DisplaySettingsTest, NamesThatNoListUsesAreToldAndKept)
{
    const ScratchFolder folder;

    EXPECT_EQ((std::vector<std::string>{ "C7_Other" }),
              DisplaySettings::load(folder.file("a.ini", "C7_Other=5\nC40_SuppressZeroFeet=0\n"), {}));

    EXPECT_EQ(5, settingOf(L"C7_Other"));
}

TEST_F(DisplaySettingsTest, AMalformedFileIsNamedWithItsLineAndStoresNothing)
{
    const ScratchFolder folder;
    const std::string file = folder.file("a.ini", "C40_SuppressZeroInch=0\nC40_SuppressZeroFeet=no\n");

    EXPECT_EQ("3 " + file + ":2: found \"no\" for C40_SuppressZeroFeet, expected a whole number\n", faultWith(file));
    EXPECT_EQ(42, settingOf(L"C40_SuppressZeroInch"));
    EXPECT_EQ(0U, faultWith((folder / "none.ini").string()).find("3 "));
}

TEST_F(DisplaySettingsTest, SingleSettingsAreChecked)
{
    EXPECT_EQ("2 --setting: found \"C40_SupressZeroFeet\", expected one of C0_BOMSuppressLastZeros, "
              "C40_SuppressZeroFeet, C40_SuppressZeroInch, C40_ShowMinusBetweenFeetAndInch\n",
              faultWith("", { { "C40_SupressZeroFeet", "1" } }));
    EXPECT_EQ("2 --setting C40_SuppressZeroFeet: found \"yes\", expected a whole number\n",
              faultWith("", { { "C40_SuppressZeroFeet", "yes" } }));
}

TEST_F(DisplaySettingsTest, AVariableThatIsNoWholeNumberIsNamed)
{
    setenv("C40_SuppressZeroFeet", "yes", 1);

    EXPECT_EQ("2 environment: found \"yes\" for C40_SuppressZeroFeet, expected a whole number\n", faultWith(""));
}
}
