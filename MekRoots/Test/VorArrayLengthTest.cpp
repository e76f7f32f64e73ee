// How the physical length follows the logical one, and what growing costs.
#include "MekRoots/Test/Support/TestSupport.h"

#include <algorithm>
#include <climits>
#include <new>
#include <utility>

namespace
{
using IntArray = VorArray<int, VorArrayMemCopyReallocator<int>>;

IntArray filled(int numElements, int growBy = 8)
{
    IntArray array(growBy);
    for (int i = 0; i < numElements; ++i)
        array.append(i);
    return array;
}

// The rule: an append at an index beyond the physical length makes it (index / block + 1) * block.
int physicalLengthAfterAppendAt(int index, int physicalLength, int growBy)
{
    return index < physicalLength ? physicalLength : (index / growBy + 1) * growBy;
}

// Counts what becomes of its objects.
struct Counted
{
    Counted() { ++s_numLiving; }
    Counted(const Counted&) { ++s_numLiving, ++s_numCopied; }
    Counted(Counted&&) noexcept { ++s_numLiving, ++s_numMoved; }
    Counted& operator=(const Counted&) = delete; // arrays construct and destroy, they never assign
    ~Counted() { --s_numLiving; }

    static void reset() { s_numCopied = s_numMoved = 0; }

    static long long s_numLiving;
    static long long s_numCopied;
    static long long s_numMoved;
};
long long Counted::s_numLiving = 0;
long long Counted::s_numCopied = 0;
long long Counted::s_numMoved = 0;

// Remembers how many elements were asked for at most.
struct MeasuringController : VorArrayMemoryController<int>
{
    static int* allocate(int numElements)
    {
        s_largestRequest = std::max(s_largestRequest, numElements);
        return VorArrayMemoryController<int>::allocate(numElements);
    }

    static int s_largestRequest;
};
int MeasuringController::s_largestRequest = 0;
}

TEST(VorArrayLengthTest, EachAppendFollowsTheBlockRule)
{
    const LeakCheck leaks;
    for (const int growBy : { 1, 3, 8, 64, 65, 2000 })
    {
        IntArray array(growBy);
        for (int index = 0; index < 6100; ++index)
        {
            array.append(index);
            ASSERT_EQ((index / growBy + 1) * growBy, array.physicalLength()) << "block " << growBy << " at " << index;
        }
        for (int index = 0; index < 6100; ++index)
            ASSERT_EQ(index, array[index]);
    }
}

TEST(VorArrayLengthTest, EmplacingFollowsTheBlockRuleAsAppendingDoes)
{
    const LeakCheck leaks;
    for (const int growBy : { 1, 3, 8, 64, 65, 2000, INT_MAX }) // past 64 lengths and capacities part
    {
        IntArray array(growBy);
        IntArray appended(growBy);
        for (int index = 0; index < 6100; ++index)
        {
            const int& element = array.emplace(index);
            ASSERT_EQ(&array.last(), &element);
            appended.append(index);
            ASSERT_EQ(appended.physicalLength(), array.physicalLength()) << "block " << growBy << " at " << index;
        }
        for (int index = 0; index < 6100; ++index)
            ASSERT_EQ(index, array[index]);
    }
}

TEST(VorArrayLengthTest, TheFirstAppendsWithABlockOfEight)
{
    IntArray array;
    EXPECT_EQ(0, array.physicalLength());
    array.append(1);
    EXPECT_EQ(8, array.physicalLength());
    for (int i = 1; i < 8; ++i)
        array.append(1);
    EXPECT_EQ(8, array.physicalLength());
    array.append(1);
    EXPECT_EQ(16, array.physicalLength());
}

TEST(VorArrayLengthTest, BlocksCountFromZeroAndNotFromTheOldLength)
{
    IntArray array = filled(5);
    array.setPhysicalLength(5);
    ASSERT_EQ(5, array.physicalLength());

    array.append(5);
    EXPECT_EQ(8, array.physicalLength()); // (5 / 8 + 1) * 8, not 5 + 8

    array.setPhysicalLength(10);
    for (int i = 6; i < 10; ++i)
        array.append(i);
    EXPECT_EQ(10, array.physicalLength());
    array.append(10);
    EXPECT_EQ(16, array.physicalLength());
}

TEST(VorArrayLengthTest, ANewBlockHoldsFromTheNextGrowthOn)
{
    IntArray array = filled(8);
    array.setGrowBy(100);
    EXPECT_EQ(8, array.physicalLength());

    array.append(8);
    EXPECT_EQ(100, array.physicalLength());

    array.setGrowBy(1);
    array.append(9);
    EXPECT_EQ(100, array.physicalLength());
}

TEST(VorArrayLengthTest, SeveralAppendsAtOnceFollowTheRuleAtTheirLastIndex)
{
    for (const int growBy : { 1, 8, 2000 })
        for (int numBefore = 0; numBefore < 20; ++numBefore)
            for (int numMore = 1; numMore < 40; ++numMore)
            {
                IntArray array = filled(numBefore, growBy);
                const int before = array.physicalLength();
                array.append(filled(numMore));
                ASSERT_EQ(physicalLengthAfterAppendAt(numBefore + numMore - 1, before, growBy), array.physicalLength())
                    << numBefore << " and " << numMore << " by " << growBy;
            }
}

TEST(VorArrayLengthTest, ALongerLogicalLengthGrowsAsAnAppendAtItsLastIndex)
{
    for (const int growBy : { 1, 8, 2000 })
        for (int numBefore = 0; numBefore < 20; ++numBefore)
            for (int length = 0; length < 60; ++length)
            {
                IntArray array = filled(numBefore, growBy);
                const int before = array.physicalLength();
                array.setLogicalLength(length);
                ASSERT_EQ(length, array.length());
                const int expected = length == 0 ? before : physicalLengthAfterAppendAt(length - 1, before, growBy);
                ASSERT_EQ(expected, array.physicalLength()) << numBefore << " to " << length << " by " << growBy;
                for (int i = 0; i < length; ++i)
                    ASSERT_EQ(i < numBefore ? i : 0, array[i]);
            }
}

TEST(VorArrayLengthTest, ThePhysicalLengthKeepsTheStorageAboveThreeQuarters)
{
    for (int current = 1; current <= 120; ++current)
        for (int wanted = 1; wanted <= current + 20; ++wanted)
        {
            IntArray array;
            array.setPhysicalLength(current);
            ASSERT_EQ(current, array.physicalLength());
            const int* storage = array.begin();

            array.setPhysicalLength(wanted);

            const bool isKept = wanted <= current && 4 * wanted > 3 * current;
            ASSERT_EQ(isKept ? current : wanted, array.physicalLength()) << current << " to " << wanted;
            ASSERT_EQ(isKept, storage == array.begin()) << current << " to " << wanted;
        }
}

TEST(VorArrayLengthTest, TheBoundaryOfThreeQuartersIsExact)
{
    const struct
    {
        int current;
        int wanted;
        int expected;
    } cases[] = {
        { 8, 8, 8 },         { 8, 7, 8 },        { 8, 6, 6 }, // 0.75 itself is not above it
        { 8, 9, 9 },                                          // not a multiple of the block: exactly what was asked for
        { 1000, 751, 1000 }, { 1000, 750, 750 }, { 1001, 751, 1001 }, { 1001, 750, 750 }, // 750.75
        { 1, 1, 1 },         { 2, 1, 1 },        { 4, 3, 3 },         { 5, 4, 5 },
        { 0, 1, 1 },         { 0, 0, 0 },        { 8, 0, 0 },
    };
    for (const auto& c : cases)
    {
        IntArray array;
        array.setPhysicalLength(c.current);
        array.setPhysicalLength(c.wanted);
        EXPECT_EQ(c.expected, array.physicalLength()) << c.current << " to " << c.wanted;
    }
}

TEST(VorArrayLengthTest, ElementsSurviveAChangeOfThePhysicalLength)
{
    const LeakCheck leaks;
    VorStringArray array;
    array.append(VorString(L"a"));
    array.append(VorString(L"b"));

    for (const int length : { 100, 80, 20, 3, 2, 1000, 2 })
    {
        array.setPhysicalLength(length);
        ASSERT_EQ(2, array.length());
        EXPECT_EQ(VorString(L"a"), array[0]);
        EXPECT_EQ(VorString(L"b"), array[1]);
    }
}

TEST(VorArrayLengthTest, APhysicalLengthBelowTheLogicalOneCutsIt)
{
    const LeakCheck leaks;
    IntArray array = filled(8);
    array.setPhysicalLength(7); // the storage is kept, the element goes all the same
    EXPECT_EQ(7, array.length());
    EXPECT_EQ(8, array.physicalLength());
    EXPECT_EQ(0, array.isValid(7));

    array.setPhysicalLength(3);
    EXPECT_EQ(3, array.length());
    EXPECT_EQ(3, array.physicalLength());
    EXPECT_EQ(2, array.last());
}

TEST(VorArrayLengthTest, APhysicalLengthOfZeroDestroysTheElementsAndFreesTheStorage)
{
    const long long numBlocks = VorMemoryControllerController::liveBlocks();
    VorArray<Counted> array;
    array.setLogicalLength(20);
    EXPECT_EQ(20, Counted::s_numLiving);
    EXPECT_EQ(numBlocks + 1, VorMemoryControllerController::liveBlocks());

    array.setPhysicalLength(0);

    EXPECT_EQ(0, Counted::s_numLiving);
    EXPECT_EQ(numBlocks, VorMemoryControllerController::liveBlocks());
    EXPECT_EQ(0, array.length());
    EXPECT_EQ(0, array.physicalLength());
    EXPECT_EQ(0, array.isValid(0));
    array.append(Counted());
    EXPECT_EQ(8, array.physicalLength());
}

TEST(VorArrayLengthTest, EveryElementIsDestroyedOnce)
{
    const LeakCheck leaks;
    {
        VorArray<Counted> array(3);
        for (int i = 0; i < 100; ++i)
            array.append(Counted());
        EXPECT_EQ(100, Counted::s_numLiving);

        VorArray<Counted> copy(array);
        EXPECT_EQ(200, Counted::s_numLiving);
        copy.setLogicalLength(10);
        EXPECT_EQ(110, Counted::s_numLiving);
        copy.setPhysicalLength(5);
        EXPECT_EQ(105, Counted::s_numLiving);
        copy = array;
        EXPECT_EQ(200, Counted::s_numLiving);
        copy.append(copy);
        EXPECT_EQ(300, Counted::s_numLiving);
        copy.swap(0, 1);
        copy.empty();
        EXPECT_EQ(100, Counted::s_numLiving);
        copy = std::move(array);
        EXPECT_EQ(100, Counted::s_numLiving);
    }
    EXPECT_EQ(0, Counted::s_numLiving);
}

TEST(VorArrayLengthTest, EmplacingGoesOnAtEveryLengthThatWasSet)
{
    const LeakCheck leaks;
    for (const int growBy : { 1, 8, 65, 2000 })
        for (const int length : { 0, 1, 5, 63, 64, 65, 100, 3000 })
        {
            IntArray array(growBy);
            IntArray appended(growBy);
            for (IntArray* pArray : { &array, &appended })
            {
                pArray->setPhysicalLength(length); // capacity and physical length agree, whatever the block
                pArray->setLogicalLength(length);
                pArray->setLogicalLength(length - length / 3);
            }
            for (int i = 0; i < 200; ++i)
            {
                EXPECT_EQ(i, array.emplace(i));
                appended.append(i);
                ASSERT_EQ(appended.physicalLength(), array.physicalLength()) << growBy << ", " << length;
            }
            ASSERT_TRUE(std::equal(array.begin(), array.end(), appended.begin(), appended.end()));
        }
}

TEST(VorArrayLengthTest, EmplacingCopiesNothingAndCostsLinearTime)
{
    const int numElements = 100000;
    for (const int growBy : { 1, 8, 2000, INT_MAX })
    {
        Counted::reset();
        VorArray<Counted> array(growBy);
        for (int i = 0; i < numElements; ++i)
            array.emplace();
        EXPECT_EQ(numElements, Counted::s_numLiving);
        EXPECT_EQ(0, Counted::s_numCopied) << "block " << growBy;
        EXPECT_LE(Counted::s_numMoved, 4LL * numElements) << "block " << growBy;
    }
    EXPECT_EQ(0, Counted::s_numLiving);
}

TEST(VorArrayLengthTest, AMillionAppendsCostLinearTimeWhateverTheBlock)
{
    const int numElements = 1000000;
    for (const int growBy : { 1, 8, 2000, INT_MAX })
    {
        Counted::reset();
        VorArray<Counted> array(growBy);
        const Counted element;
        for (int i = 0; i < numElements; ++i)
            array.append(element);
        EXPECT_EQ(numElements, Counted::s_numCopied) << "block " << growBy;
        EXPECT_LE(Counted::s_numMoved, 4LL * numElements) << "block " << growBy;
    }
}

TEST(VorArrayLengthTest, GrowingTheLogicalLengthStepByStepIsLinearToo)
{
    const int numElements = 300000;
    Counted::reset();
    VorArray<Counted> array(1);
    for (int length = 1; length <= numElements; ++length)
        array.setLogicalLength(length);
    EXPECT_LE(Counted::s_numMoved, 4LL * numElements);
}

TEST(VorArrayLengthTest, ABlockOfThousandsTakesLittleStorageForAFewElements)
{
    // A level's rows have a block of 2000, and most levels hold a handful.
    MeasuringController::s_largestRequest = 0;
    VorArray<int, VorArrayMemCopyReallocator<int>, MeasuringController> array(2000);

    for (int i = 0; i < 5; ++i)
        array.append(i);

    EXPECT_EQ(2000, array.physicalLength());
    EXPECT_GE(MeasuringController::s_largestRequest, 5);
    EXPECT_LE(MeasuringController::s_largestRequest, 64);
}

TEST(VorArrayLengthTest, LengthsNearTheLargestIntegerDoNotOverflow)
{
    IntArray array(INT_MAX);
    array.append(5);
    EXPECT_EQ(INT_MAX, array.physicalLength()); // (0 / block + 1) * block
    EXPECT_EQ(5, array[0]);

    IntArray large((1 << 30) + 1);
    large.append(5);
    EXPECT_EQ((1 << 30) + 1, large.physicalLength());
}

TEST(VorArrayLengthTest, WhatMemoryCannotHoldChangesNothing)
{
    struct Large
    {
        char bytes[1 << 20];
    };
    VorArray<Large> array;
    array.setLogicalLength(2);
    array[1].bytes[5] = 'x';

    EXPECT_THROW(array.setLogicalLength(INT_MAX), std::bad_alloc); // 2 PB
    EXPECT_THROW(array.setPhysicalLength(INT_MAX), std::bad_alloc);

    EXPECT_EQ(2, array.length());
    EXPECT_EQ(8, array.physicalLength());
    EXPECT_EQ('x', array[1].bytes[5]);
}
