#include "MekRoots/Exp/KTRepositoryProxy.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <atomic>
#include <thread>
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

const wchar_t* const kDisplayKeys[] = { L"C0_BOMSuppressLastZeros", L"C40_SuppressZeroFeet", L"C40_SuppressZeroInch",
                                        L"C40_ShowMinusBetweenFeetAndInch" };

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
