// What misuse of an array reports, and that it is survived. Callers know these reports by text, path and line.
#include "MekRoots/Test/Support/TestSupport.h"

#include <climits>
#include <cstdint>
#include <thread>
#include <vector>

namespace
{
using IntArray = VorArray<int, VorArrayMemCopyReallocator<int>>;

const wchar_t kPath[] = L"MekRoots/Exp/VorArray";

// Exactly one report since `log` began to live, at this text and line.
void expectOneReport(const AssertLog& log, const wchar_t* expression, int line)
{
    EXPECT_TRUE(log.holdsOnly(expression, kPath)) << VorString(expression);
    EXPECT_EQ(1, log.count(expression, kPath, line)) << VorString(expression);
    EXPECT_EQ(1U, VorAssert::reports().size());
}

IntArray threeNumbers()
{
    const int numbers[] = { 1, 2, 3 };
    IntArray array;
    array.append(numbers, 3);
    return array;
}

void expectThreeNumbers(const IntArray& array)
{
    ASSERT_EQ(3, array.length());
    EXPECT_EQ(1, array.begin()[0]);
    EXPECT_EQ(2, array.begin()[1]);
    EXPECT_EQ(3, array.begin()[2]);
    EXPECT_EQ(8, array.physicalLength());
}

const int kInvalidIndexes[] = { -1, 3, 4, 8, 100, INT_MIN, INT_MAX };
}

TEST(VorArrayMisuseTest, AnInvalidIndexGivesAnElementOfItsOwn)
{
    for (const int index : kInvalidIndexes)
    {
        const AssertLog log;
        IntArray array = threeNumbers();

        int& element = array[index];

        expectOneReport(log, L"isValid( index )", 516);
        EXPECT_EQ(0, element);
        element = 77;
        expectThreeNumbers(array);
        EXPECT_EQ(0, array[index]) << "what was written before is seen";
    }
}

TEST(VorArrayMisuseTest, AnInvalidIndexOfAConstantArrayIsReportedOnItsOwnLine)
{
    for (const int index : kInvalidIndexes)
    {
        const AssertLog log;
        const IntArray array = threeNumbers();

        EXPECT_EQ(0, array[index]);

        expectOneReport(log, L"isValid( index )", 526);
    }
}

TEST(VorArrayMisuseTest, AnEmptyArrayHasNoFirstElement)
{
    {
        const AssertLog log;
        IntArray array;
        int& element = array.first();
        expectOneReport(log, L"!isEmpty()", 474);
        EXPECT_EQ(0, element);
        element = 5;
        EXPECT_EQ(0, array.first());
        EXPECT_EQ(0, array.length());
    }
    const AssertLog log;
    const VorStringArray constant;
    EXPECT_EQ(VorString(), constant.first());
    expectOneReport(log, L"!isEmpty()", 474);
}

TEST(VorArrayMisuseTest, AnEmptyArrayHasNoLastElement)
{
    {
        const AssertLog log;
        IntArray array = threeNumbers();
        array.empty(); // the storage is still there
        int& element = array.last();
        expectOneReport(log, L"!isEmpty()", 494);
        EXPECT_EQ(0, element);
        element = 5;
        EXPECT_EQ(0, array.last());
    }
    const AssertLog log;
    const VorStringArray constant;
    EXPECT_EQ(VorString(), constant.last());
    expectOneReport(log, L"!isEmpty()", 494);
}

TEST(VorArrayMisuseTest, FallbackElementsMayHoldText)
{
    const LeakCheck leaks;
    const AssertLog log;
    {
        VorStringArray array;
        array.append(VorString(L"kept"));
        array[0] = array[-1];
        EXPECT_EQ(VorString(), array[0]);
        array[7] = VorString(L"lost");
        array[7] += L"!";
        EXPECT_EQ(VorString(), array[7]);
        array[7] = array[8];
    }
    EXPECT_EQ(8 - 2, log.count(L"isValid( index )", kPath, 516));
}

TEST(VorArrayMisuseTest, ANegativeLogicalLengthChangesNothing)
{
    for (const int length : { -1, INT_MIN })
    {
        const AssertLog log;
        IntArray array = threeNumbers();

        array.setLogicalLength(length);

        expectOneReport(log, L"len>=0", 606);
        expectThreeNumbers(array);
    }
}

TEST(VorArrayMisuseTest, ANegativePhysicalLengthChangesNothing)
{
    for (const int length : { -1, INT_MIN })
    {
        const AssertLog log;
        IntArray array = threeNumbers();

        array.setPhysicalLength(length);

        expectOneReport(log, L"newPhysicalLen >= 0", 657);
        expectThreeNumbers(array);
    }
}

TEST(VorArrayMisuseTest, ASwapWithAnInvalidIndexChangesNothing)
{
    for (const int index : kInvalidIndexes)
    {
        const AssertLog log;
        IntArray array = threeNumbers();

        array.swap(index, 1);
        array.swap(1, index);
        array.swap(index, index);

        EXPECT_EQ(3, log.count(L"isValid( i1 ) && isValid( i2 )", kPath, 1058));
        EXPECT_TRUE(log.holdsOnly(L"isValid( i1 ) && isValid( i2 )", kPath));
        expectThreeNumbers(array);
    }
}

TEST(VorArrayMisuseTest, AppendingFromNowhereAppendsNothing)
{
    const int numbers[] = { 7 };
    const struct
    {
        const int* elements;
        int numElements;
    } cases[] = { { nullptr, 3 }, { nullptr, 0 }, { numbers, 0 }, { numbers, -1 }, { numbers, INT_MIN } };
    for (const auto& c : cases)
    {
        const AssertLog log;
        IntArray array = threeNumbers();

        array.append(c.elements, c.numElements);

        expectOneReport(log, L"pElements != NULL && numElements > 0", 103);
        expectThreeNumbers(array);
    }
}

TEST(VorArrayMisuseTest, DestroyingNothingIsReported)
{
    VorString text(L"untouched");
    const struct
    {
        VorString* elements;
        int numElements;
    } cases[] = { { nullptr, 3 }, { &text, 0 }, { &text, -1 } };
    for (const auto& c : cases)
    {
        const AssertLog log;

        VorArrayMemoryController<VorString>::destroy(c.elements, c.numElements);

        expectOneReport(log, L"numElements > 0 && pElements != NULL", 115);
        EXPECT_EQ(VorString(L"untouched"), text);
    }
}

TEST(VorArrayMisuseTest, OrdinaryUseReportsNothing)
{
    const AssertLog log;
    {
        VorStringArray array;
        array.setLogicalLength(0);
        array.setPhysicalLength(0);
        array.empty();
        array.append(VorString(L"a"));
        array.setLogicalLength(5);
        array.setLogicalLength(5);
        array.setPhysicalLength(5);
        array.empty();
        array.setPhysicalLength(0);
        VorStringArray copy(array);
        copy = array;
        copy = VorStringArray();
    }
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorArrayMisuseTest, FallbackElementsOfUnlikeTypesAreApart)
{
    const AssertLog log;
    VorArray<int> ints;
    VorArray<unsigned> counts;

    int& first = ints[0];
    unsigned& second = counts[0];
    first = 5;
    second = 6;

    EXPECT_EQ(5, first);
    EXPECT_EQ(6U, second);
}

namespace
{
// Misuses an array when its thread ends, after the fallback element of the thread has ended.
struct MisuseAtEndOfThread
{
    ~MisuseAtEndOfThread()
    {
        array[0] = array[5];
        s_wasDefault = array[3] == VorString() && array.first() == VorString();
    }

    VorStringArray array;
    static bool s_wasDefault;
};
bool MisuseAtEndOfThread::s_wasDefault = false;
thread_local MisuseAtEndOfThread t_misuse;
}

TEST(VorArrayMisuseThreadTest, MisuseIsSurvivedWhileTheThreadEnds)
{
    const LeakCheck leaks;
    const AssertLog log;

    std::thread(
        []
        {
            t_misuse.array.setGrowBy(4);            // begins its life first, so it ends last
            t_misuse.array[7] = VorString(L"lost"); // the element goes with its thread
        })
        .join();

    EXPECT_TRUE(MisuseAtEndOfThread::s_wasDefault);
    EXPECT_EQ(1 + 3, log.count(L"isValid( index )", kPath, 516));
}

TEST(VorArrayMisuseThreadTest, EveryThreadHasFallbackElementsOfItsOwn)
{
    const LeakCheck leaks;
    const AssertLog log;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number)
        threads.emplace_back(
            [number]
            {
                const VorString mine(number % 2 == 0 ? L"even" : L"odd");
                VorStringArray array;
                for (int i = 0; i < 2000; ++i)
                {
                    VorString& element = array[i];
                    ASSERT_EQ(VorString(), element);
                    element = mine;
                    ASSERT_EQ(mine, element);
                }
            });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(8000, log.count(L"isValid( index )", kPath, 516));
}
