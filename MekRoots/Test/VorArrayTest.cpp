#include "MekRoots/Test/Support/TestSupport.h"

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace
{
using IntArray = VorArray<int, VorArrayMemCopyReallocator<int>>;

// Keeps its old content when an empty one is assigned to it, as the values of reports do.
struct Overlay
{
    Overlay() = default;
    explicit Overlay(const wchar_t* name) : text(name) {}
    Overlay(const Overlay&) = default;
    Overlay(Overlay&&) = default;
    ~Overlay() = default;
    Overlay& operator=(const Overlay& other)
    {
        if (!other.text.isEmpty())
            text = other.text;
        return *this;
    }

    VorString text;
};

template <class Array>
Array arrayOf(std::initializer_list<int> values)
{
    Array array;
    for (const int value : values)
        array.append(value);
    return array;
}

template <class Array>
std::vector<int> valuesOf(const Array& array)
{
    return std::vector<int>(array.begin(), array.end());
}

using Ints = std::vector<int>;
}

TEST(VorArrayTest, AFreshArrayHasNothing)
{
    const AssertLog log;
    const VorStringArray array;

    EXPECT_EQ(0, array.length());
    EXPECT_EQ(0, array.physicalLength());
    EXPECT_EQ(8, array.growBy());
    EXPECT_EQ(1, array.isEmpty());
    EXPECT_EQ(0, array.isValid(0));
    EXPECT_TRUE(array.begin() == array.end());
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorArrayTest, TheBlockIsWhatWasAskedForAndAtLeastOne)
{
    EXPECT_EQ(2000, VorArray<int>(2000).growBy());
    EXPECT_EQ(1, VorArray<int>(0).growBy());
    EXPECT_EQ(1, VorArray<int>(-8).growBy());

    VorArray<int> array;
    array.setGrowBy(3);
    EXPECT_EQ(3, array.growBy());
    array.setGrowBy(0);
    EXPECT_EQ(1, array.growBy());
}

TEST(VorArrayTest, AppendedElementsStandInOrder)
{
    const LeakCheck leaks;
    VorStringArray array;
    const VorString name(L"%Name");

    array.append(name);
    array.append(VorString(L"%Weight"));
    array.append(L"%Length");

    ASSERT_EQ(3, array.length());
    EXPECT_EQ(0, array.isEmpty());
    EXPECT_EQ(VorString(L"%Name"), array[0]);
    EXPECT_EQ(VorString(L"%Weight"), array[1]);
    EXPECT_EQ(VorString(L"%Length"), array[2]);
    EXPECT_EQ(VorString(L"%Name"), array.first());
    EXPECT_EQ(VorString(L"%Length"), array.last());
    EXPECT_EQ(VorString(L"%Name"), name);
}

TEST(VorArrayTest, EmplacedElementsAreConstructedFromTheArguments)
{
    const LeakCheck leaks;
    VorArray<std::pair<VorString, int>> array;

    array.emplace(VorString(L"%Weight"), 5).second += 2;
    array.emplace();
    array.emplace(std::make_pair(VorString(L"%Name"), 1));

    ASSERT_EQ(3, array.length());
    EXPECT_EQ(VorString(L"%Weight"), array[0].first);
    EXPECT_EQ(7, array[0].second);
    EXPECT_EQ(VorString(), array[1].first);
    EXPECT_EQ(VorString(L"%Name"), array[2].first);
}

namespace
{
// Cannot be made of a negative number.
struct Fastidious
{
    explicit Fastidious(int number) : text(L"made")
    {
        if (number < 0)
            throw std::invalid_argument("negative");
    }

    VorString text;
};
}

TEST(VorArrayTest, AnElementThatCannotBeConstructedIsNotEmplaced)
{
    const LeakCheck leaks;
    for (const int growBy : { 1, 8, 2000 })
    {
        VorArray<Fastidious> array(growBy);
        for (int i = 0; i < 200; ++i)
        {
            array.emplace(i);
            ASSERT_THROW(array.emplace(-1), std::invalid_argument); // also where the array has just grown
            ASSERT_EQ(i + 1, array.length());
        }
        for (const Fastidious& element : array)
            ASSERT_EQ(VorString(L"made"), element.text);
    }
}

TEST(VorArrayTest, ElementsAreMadeInTheirPlace)
{
    const LeakCheck leaks;
    VorArray<VorString> array;
    array.append(VorString(L"first"));

    array.appendMade(20, [](int i) { return VorString(L"abcdefghijklmnopqrst", i + 1); });
    array.appendMade(0, [](int) { return VorString(L"none"); });
    array.appendMade(-1, [](int) { return VorString(L"none"); });

    ASSERT_EQ(21, array.length());
    EXPECT_EQ(24, array.physicalLength());
    EXPECT_EQ(VorString(L"first"), array[0]);
    EXPECT_EQ(VorString(L"a"), array[1]);
    EXPECT_EQ(VorString(L"abcdefghijklmnopqrst"), array[20]);
}

TEST(VorArrayTest, ElementsMadeBeforeOneThatCannotBeMadeAreKept)
{
    const LeakCheck leaks;
    VorArray<Fastidious> array;

    EXPECT_THROW(array.appendMade(5, [](int i) { return Fastidious(i < 3 ? i : -1); }), std::invalid_argument);

    ASSERT_EQ(3, array.length());
    EXPECT_EQ(VorString(L"made"), array.begin()[2].text);
}

TEST(VorArrayTest, ElementsMayBeWritten)
{
    IntArray array = arrayOf<IntArray>({ 1, 2, 3 });

    array[1] = 20;
    array.first() = 10;
    array.last() = 30;

    EXPECT_EQ((Ints{ 10, 20, 30 }), valuesOf(array));
    const IntArray& constant = array;
    EXPECT_EQ(10, constant.first());
    EXPECT_EQ(20, constant[1]);
    EXPECT_EQ(30, constant.last());
}

TEST(VorArrayTest, AnIndexIsValidFromZeroToTheLogicalLength)
{
    IntArray array = arrayOf<IntArray>({ 1, 2, 3 });
    array.setPhysicalLength(100);

    EXPECT_EQ(0, array.isValid(-1));
    EXPECT_EQ(1, array.isValid(0));
    EXPECT_EQ(1, array.isValid(2));
    EXPECT_EQ(0, array.isValid(3)); // room, but no element
    array.empty();
    EXPECT_EQ(0, array.isValid(0));
}

TEST(VorArrayTest, SeveralElementsAreAppendedAtOnce)
{
    const int values[] = { 4, 5, 6 };
    IntArray array = arrayOf<IntArray>({ 1 });

    array.append(values, 3);
    array.append(values + 1, 1);
    array.append(arrayOf<IntArray>({ 7, 8 }));

    EXPECT_EQ((Ints{ 1, 4, 5, 6, 5, 7, 8 }), valuesOf(array));
}

TEST(VorArrayTest, AppendingAnEmptyArrayIsNoMisuse)
{
    const AssertLog log;
    IntArray array = arrayOf<IntArray>({ 1 });

    array.append(IntArray());

    EXPECT_EQ((Ints{ 1 }), valuesOf(array));
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorArrayTest, AnElementOfTheArrayMayBeAppendedToIt)
{
    const LeakCheck leaks;
    for (const int growBy : { 1, 8, 2000 })
    {
        VorStringArray array(growBy);
        array.append(VorString(L"first"));
        for (int i = 1; i < 3000; ++i) // some of them while the array is full
            array.append(array[i / 2]);

        ASSERT_EQ(3000, array.length());
        for (const VorString& text : array)
            ASSERT_EQ(VorString(L"first"), text);
    }
}

TEST(VorArrayTest, AnElementOfAFullArrayMayBeMovedToItsEnd)
{
    const LeakCheck leaks;
    for (int length = 1; length <= 70; ++length)
    {
        VorStringArray array(1);
        for (int i = 0; i < length; ++i)
            array.append(VorString(L"text"));

        array.append(std::move(array[0]));

        ASSERT_EQ(length + 1, array.length());
        EXPECT_EQ(VorString(L"text"), array.last());
    }
}

TEST(VorArrayTest, AnArrayMayBeAppendedToItself)
{
    const LeakCheck leaks;
    VorStringArray array;
    array.append(VorString(L"a"));
    array.append(VorString(L"b"));
    array.append(VorString(L"c"));

    for (int i = 0; i < 8; ++i)
        array.append(array);

    ASSERT_EQ(3 << 8, array.length());
    for (int i = 0; i < array.length(); ++i)
        ASSERT_EQ(VorString(i % 3 == 0 ? L"a" : i % 3 == 1 ? L"b" : L"c"), array[i]);
}

TEST(VorArrayTest, APartOfTheArrayMayBeAppendedToIt)
{
    IntArray array = arrayOf<IntArray>({ 0, 1, 2, 3, 4, 5, 6, 7 }); // full: the next append moves the elements

    array.append(array.begin() + 2, 3);
    array.append(&array[7], 1);

    EXPECT_EQ((Ints{ 0, 1, 2, 3, 4, 5, 6, 7, 2, 3, 4, 7 }), valuesOf(array));
}

TEST(VorArrayTest, CopiesEqualTheirSourceAndAreIndependent)
{
    const LeakCheck leaks;
    VorStringArray source(3);
    source.append(VorString(L"a"));
    source.append(VorString());
    source.append(VorString(L"c"));

    VorStringArray copy(source);
    source[0] = VorString(L"changed");
    source.append(VorString(L"d"));

    ASSERT_EQ(3, copy.length());
    EXPECT_EQ(3, copy.growBy());
    EXPECT_EQ(VorString(L"a"), copy[0]);
    EXPECT_EQ(VorString(), copy[1]);
    EXPECT_EQ(VorString(L"c"), copy[2]);
}

TEST(VorArrayTest, ACopyOfAnEmptyArrayIsEmpty)
{
    const LeakCheck leaks;
    const AssertLog log;
    VorStringArray target;
    target.append(VorString(L"old"));

    const VorStringArray copy{ VorStringArray() };
    target = copy;

    EXPECT_EQ(0, copy.length());
    EXPECT_EQ(0, target.length());
    EXPECT_TRUE(log.isEmpty());
}

TEST(VorArrayTest, NothingOfTheTargetsOldElementsShinesThrough)
{
    const LeakCheck leaks;
    VorArray<Overlay> source;
    source.append(Overlay(L"a"));
    source.append(Overlay());
    VorArray<Overlay> target;
    for (int i = 0; i < 5; ++i)
        target.append(Overlay(L"old"));

    target = source;

    ASSERT_EQ(2, target.length());
    EXPECT_EQ(VorString(L"a"), target[0].text);
    EXPECT_EQ(VorString(), target[1].text);
}

TEST(VorArrayTest, AssigningAnArrayToItselfKeepsIt)
{
    IntArray array = arrayOf<IntArray>({ 1, 2, 3 });
    IntArray& same = array;

    array = same;
    EXPECT_EQ((Ints{ 1, 2, 3 }), valuesOf(array));

    array = std::move(same);
    EXPECT_EQ((Ints{ 1, 2, 3 }), valuesOf(array));
}

TEST(VorArrayTest, AMoveTakesTheElementsAlong)
{
    const LeakCheck leaks;
    VorStringArray source(5);
    source.append(VorString(L"a"));
    const VorString* element = source.begin();

    VorStringArray target(std::move(source));
    EXPECT_EQ(element, target.begin());
    EXPECT_EQ(5, target.growBy());
    EXPECT_EQ(0, source.length()); // NOLINT(bugprone-*,clang-analyzer-*): moved from, it is empty and usable
    source.append(VorString(L"b"));
    EXPECT_EQ(VorString(L"b"), source[0]);

    source = std::move(target);
    ASSERT_EQ(1, source.length());
    EXPECT_EQ(VorString(L"a"), source[0]);
    EXPECT_EQ(0, target.length()); // NOLINT(bugprone-*,clang-analyzer-*)
}

TEST(VorArrayTest, SwapExchangesWholeElements)
{
    const LeakCheck leaks;
    VorArray<Overlay> array;
    array.append(Overlay(L"a"));
    array.append(Overlay());
    array.append(Overlay(L"c"));

    array.swap(0, 1);
    array.swap(2, 2);
    array.swap(2, 1);

    EXPECT_EQ(VorString(), array[0].text); // an assignment would have kept "a" here
    EXPECT_EQ(VorString(L"c"), array[1].text);
    EXPECT_EQ(VorString(L"a"), array[2].text);
}

TEST(VorArrayTest, EmptyKeepsTheStorage)
{
    const LeakCheck leaks;
    VorStringArray array;
    for (int i = 0; i < 20; ++i)
        array.append(VorString(L"text"));
    const VorString* storage = array.begin();

    array.empty();

    EXPECT_EQ(0, array.length());
    EXPECT_EQ(24, array.physicalLength());
    EXPECT_EQ(storage, array.begin());
    array.append(VorString(L"new"));
    EXPECT_EQ(storage, array.begin());
    EXPECT_EQ(24, array.physicalLength());
}

TEST(VorArrayTest, ElementsThatComeBackAreDefaultConstructed)
{
    IntArray numbers = arrayOf<IntArray>({ 1, 2, 3, 4 });
    numbers.setLogicalLength(1);
    numbers.setLogicalLength(4);
    EXPECT_EQ((Ints{ 1, 0, 0, 0 }), valuesOf(numbers));

    numbers.empty();
    numbers.setLogicalLength(2);
    EXPECT_EQ((Ints{ 0, 0 }), valuesOf(numbers));

    numbers = arrayOf<IntArray>({ 1, 2, 3, 4, 5, 6, 7, 8 });
    numbers.setPhysicalLength(7); // storage kept
    numbers.setLogicalLength(8);
    EXPECT_EQ((Ints{ 1, 2, 3, 4, 5, 6, 7, 0 }), valuesOf(numbers));

    VorStringArray texts;
    texts.append(VorString(L"a"));
    texts.append(VorString(L"b"));
    texts.setLogicalLength(0);
    texts.setLogicalLength(2);
    EXPECT_EQ(VorString(), texts[0]);
    EXPECT_EQ(VorString(), texts[1]);
}

TEST(VorArrayTest, ArraysHoldArrays)
{
    const LeakCheck leaks;
    VorArray<VorStringArray> table;
    for (int i = 0; i < 30; ++i)
    {
        VorStringArray row;
        for (int k = 0; k < i; ++k)
            row.append(VorString(L"cell"));
        table.append(row);
    }
    const VorArray<VorStringArray> copy(table);
    table.empty();

    for (int i = 0; i < 30; ++i)
        ASSERT_EQ(i, copy[i].length());
}
