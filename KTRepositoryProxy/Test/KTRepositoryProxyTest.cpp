#include "MekRoots/Exp/KTRepositoryProxy.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <atomic>
#include <cstdlib>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace
{
// The repository is shared by the process: every test starts and ends with an empty one.
class KTRepositoryProxyTest : public testing::Test
{
protected:
    KTRepositoryProxyTest() { KTRepositoryProxy::clear(); }
    ~KTRepositoryProxyTest() override { KTRepositoryProxy::clear(); }
};
using KTRepositoryProxyThreadTest = KTRepositoryProxyTest;

const auto& kDisplayKeys = KTRepositoryProxy::kDisplayKeys;
const int kMissing = 42;

int settingOf(const VorString& key)
{
    int value = kMissing;
    vor_odbc_getDefault(key, value);
    return value;
}

// "line: fault", empty for a text that is taken.
std::string faultOfIni(const VorString& text)
{
    int line = -1;
    VorString fault(L"untouched");
    if (KTRepositoryProxy::readIni(text, line, fault) == 1)
        return line == -1 && fault == VorString(L"untouched") ? "" : "outputs were touched";
    std::string message = std::to_string(line) + ": ";
    for (const wchar_t* p = fault.getStringW(); *p != 0; ++p)
        message += static_cast<char>(*p);
    return message;
}

// Sets an environment variable while it lives.
class Variable
{
public:
    Variable(const char* name, const char* value) : m_name(name) { setenv(name, value, 1); }
    ~Variable() { unsetenv(m_name); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* m_name;
};

TEST_F(KTRepositoryProxyTest, AMissingKeyLeavesTheTarget)
{
    int value = 42;

    EXPECT_EQ(0, vor_odbc_getDefault(L"C40_SuppressZeroFeet", value));
    EXPECT_EQ(42, value);
    EXPECT_EQ(0, vor_odbc_getDefault(L"", value));
    EXPECT_EQ(42, value);
}

TEST_F(KTRepositoryProxyTest, EveryKeyKeepsItsOwnValue)
{
    for (int i = 0; i < 4; ++i)
        KTRepositoryProxy::setDefault(kDisplayKeys[i], 10 + i);

    for (int i = 0; i < 4; ++i)
    {
        int value = 0;
        EXPECT_EQ(1, vor_odbc_getDefault(kDisplayKeys[i], value));
        EXPECT_EQ(10 + i, value);
    }
}

TEST_F(KTRepositoryProxyTest, ASecondValueReplacesTheFirst)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 1);
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", -2147483647 - 1);
    int value = 0;

    EXPECT_EQ(1, vor_odbc_getDefault(L"C40_SuppressZeroFeet", value));
    EXPECT_EQ(-2147483647 - 1, value);
}

TEST_F(KTRepositoryProxyTest, AValueOfZeroIsThere)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 0);
    int value = 42;

    EXPECT_EQ(1, vor_odbc_getDefault(L"C40_SuppressZeroFeet", value));
    EXPECT_EQ(0, value);
}

TEST_F(KTRepositoryProxyTest, KeysAreComparedExactly)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 1);
    int value = 42;

    EXPECT_EQ(0, vor_odbc_getDefault(L"c40_suppresszerofeet", value));
    EXPECT_EQ(0, vor_odbc_getDefault(L"C40_SuppressZeroFee", value));
    EXPECT_EQ(0, vor_odbc_getDefault(L"C40_SuppressZeroFeet ", value));
    EXPECT_EQ(42, value);
}

TEST_F(KTRepositoryProxyTest, ARemovedKeyIsMissingAndTheOthersStay)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 1);
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroInch", 2);
    int value = 42;

    KTRepositoryProxy::removeDefault(L"C40_SuppressZeroFeet");
    KTRepositoryProxy::removeDefault(L"C40_NeverSet");

    EXPECT_EQ(0, vor_odbc_getDefault(L"C40_SuppressZeroFeet", value));
    EXPECT_EQ(42, value);
    EXPECT_EQ(1, vor_odbc_getDefault(L"C40_SuppressZeroInch", value));
    EXPECT_EQ(2, value);
}

TEST_F(KTRepositoryProxyTest, ClearingLeavesNothing)
{
    LeakCheck leaks;
    for (const wchar_t* key : kDisplayKeys)
        KTRepositoryProxy::setDefault(key, 1);

    KTRepositoryProxy::clear();

    int value = 42;
    for (const wchar_t* key : kDisplayKeys)
        EXPECT_EQ(0, vor_odbc_getDefault(key, value));
    EXPECT_EQ(42, value);
}

TEST_F(KTRepositoryProxyTest, TheDisplaySettingsHaveTheirNames)
{
    ASSERT_EQ(4U, std::size(kDisplayKeys));
    EXPECT_EQ(VorString(L"C0_BOMSuppressLastZeros"), VorString(kDisplayKeys[0]));
    EXPECT_EQ(VorString(L"C40_SuppressZeroFeet"), VorString(kDisplayKeys[1]));
    EXPECT_EQ(VorString(L"C40_SuppressZeroInch"), VorString(kDisplayKeys[2]));
    EXPECT_EQ(VorString(L"C40_ShowMinusBetweenFeetAndInch"), VorString(kDisplayKeys[3]));
}

TEST_F(KTRepositoryProxyTest, AnIniTextSetsWhatItHoldsAndLeavesTheRest)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 7);
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroInch", 8);

    EXPECT_EQ("", faultOfIni(L"; display\n[Lists]\r\nC40_SuppressZeroInch = 0\r\nC40_ShowMinusBetweenFeetAndInch=-1"));

    EXPECT_EQ(7, settingOf(L"C40_SuppressZeroFeet"));
    EXPECT_EQ(0, settingOf(L"C40_SuppressZeroInch"));
    EXPECT_EQ(-1, settingOf(L"C40_ShowMinusBetweenFeetAndInch"));
    EXPECT_EQ(kMissing, settingOf(L"C0_BOMSuppressLastZeros"));
}

TEST_F(KTRepositoryProxyTest, AMalformedIniTextIsNamedByItsLineAndChangesNothing)
{
    const std::pair<const wchar_t*, const char*> kCases[] = {
        { L"A=1\n\nB", "3: found \"B\", expected a line such as key = value" },
        { L"A=1\n=2", "2: found \"=2\", expected a line such as key = value" },
        { L"A=1\n[Display", "2: found \"[Display\", expected a line such as key = value" },
        { L"A=1\n[]", "2: found \"[]\", expected a line such as key = value" },
        { L"A=1\nB=yes", "2: found \"yes\" for B, expected a whole number" },
        { L"A=1\nB=", "2: found \"\" for B, expected a whole number" },
        { L"A=1\nB=-", "2: found \"-\" for B, expected a whole number" },
        { L"A=1\nB=1.5", "2: found \"1.5\" for B, expected a whole number" },
        { L"A=1\nB=1 ; one", "2: found \"1 ; one\" for B, expected a whole number" },
        { L"A=1\nB=2147483648", "2: found \"2147483648\" for B, expected a whole number" },
        { L"A=1\nB=99999999999999999999", "2: found \"99999999999999999999\" for B, expected a whole number" },
        { L"A=1\n\nA=2", "3: found \"A\", expected it once, as in line 1" },
    };
    for (const auto& [text, fault] : kCases)
        EXPECT_EQ(fault, faultOfIni(text));
    EXPECT_EQ(kMissing, settingOf(L"A"));
    EXPECT_EQ(kMissing, settingOf(L"B"));
}

TEST_F(KTRepositoryProxyTest, ValuesOf32BitsAreTaken)
{
    EXPECT_EQ("", faultOfIni(L"A=2147483647\nB=-2147483648\nC=+5\nD=007"));

    EXPECT_EQ(2147483647, settingOf(L"A"));
    EXPECT_EQ(-2147483647 - 1, settingOf(L"B"));
    EXPECT_EQ(5, settingOf(L"C"));
    EXPECT_EQ(7, settingOf(L"D"));
}

TEST_F(KTRepositoryProxyTest, TheEnvironmentSetsTheDisplaySettingsThatItNames)
{
    const Variable feet("C40_SuppressZeroFeet", "0");
    const Variable other("C40_Other", "1");
    VorString fault(L"untouched");

    EXPECT_EQ(1, KTRepositoryProxy::readEnvironment(fault));

    EXPECT_EQ(VorString(L"untouched"), fault);
    EXPECT_EQ(0, settingOf(L"C40_SuppressZeroFeet"));
    EXPECT_EQ(kMissing, settingOf(L"C40_SuppressZeroInch"));
    EXPECT_EQ(kMissing, settingOf(L"C40_Other"));
}

TEST_F(KTRepositoryProxyTest, AVariableThatIsNoWholeNumberChangesNothing)
{
    const Variable zeros("C0_BOMSuppressLastZeros", "0");
    const Variable inch("C40_SuppressZeroInch", "n\xC3\xB6");
    VorString fault;

    EXPECT_EQ(0, KTRepositoryProxy::readEnvironment(fault));

    EXPECT_EQ(VorString(L"found \"n??\" for C40_SuppressZeroInch, expected a whole number"), fault);
    EXPECT_EQ(kMissing, settingOf(L"C0_BOMSuppressLastZeros"));
}

// One key is always there with one of two values, another comes and goes.
TEST_F(KTRepositoryProxyThreadTest, ReadersAndWritersShareTheRepository)
{
    KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 1);
    std::atomic<bool> isDone{ false };
    std::atomic<int> numWrong{ 0 };
    std::vector<std::thread> readers;
    for (int t = 0; t < 3; ++t)
        readers.emplace_back(
            [&]
            {
                while (!isDone)
                {
                    int feet = 42;
                    int inch = 42;
                    if (vor_odbc_getDefault(L"C40_SuppressZeroFeet", feet) == 0 || (feet != 1 && feet != 2))
                        ++numWrong;
                    if (vor_odbc_getDefault(L"C40_SuppressZeroInch", inch) == 0 ? inch != 42 : inch != 3)
                        ++numWrong;
                }
            });
    for (int i = 0; i < 2000; ++i)
    {
        KTRepositoryProxy::setDefault(L"C40_SuppressZeroFeet", 1 + i % 2);
        KTRepositoryProxy::setDefault(L"C40_SuppressZeroInch", 3);
        KTRepositoryProxy::removeDefault(L"C40_SuppressZeroInch");
    }
    isDone = true;
    for (std::thread& reader : readers)
        reader.join();

    EXPECT_EQ(0, numWrong.load());
}
}
