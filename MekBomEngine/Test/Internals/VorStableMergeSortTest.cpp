#include "VorStableMergeSort.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace
{
struct Element
{
    int key = 0;
    int place = 0;
};

bool isNotAfter(const Element& a, const Element& b)
{
    return a.key <= b.key;
}

std::vector<Element> shuffled(int numElements, int numKeys)
{
    std::mt19937 random(static_cast<unsigned>(numElements));
    std::vector<Element> elements(static_cast<std::size_t>(numElements));
    for (int i = 0; i < numElements; ++i)
        elements[static_cast<std::size_t>(i)] = { static_cast<int>(random() % static_cast<unsigned>(numKeys)), i };
    return elements;
}
}

TEST(VorStableMergeSortTest, SortsAsTheStandardStableSortDoes)
{
    for (const int numElements : { 0, 1, 2, 3, 4, 5, 7, 8, 9, 100, 1023, 1024, 1025 })
    {
        std::vector<Element> sorted = shuffled(numElements, 10);
        std::vector<Element> expected = sorted;
        vorStableMergeSort(sorted, isNotAfter);
        std::stable_sort(expected.begin(), expected.end(),
                         [](const Element& a, const Element& b) { return a.key < b.key; });

        for (std::size_t i = 0; i < sorted.size(); ++i)
            EXPECT_EQ(expected[i].place, sorted[i].place) << numElements << " elements, at " << i;
    }
}

TEST(VorStableMergeSortTest, AnyAnswersEndAndKeepEveryElement)
{
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round)
    {
        std::vector<int> elements(200);
        std::iota(elements.begin(), elements.end(), 0);

        vorStableMergeSort(elements, [&random](int, int) { return random() % 2 == 0; });

        std::sort(elements.begin(), elements.end());
        for (int i = 0; i < 200; ++i)
            EXPECT_EQ(i, elements[static_cast<std::size_t>(i)]);
    }
}

TEST(VorStableMergeSortTest, ElementsThatMayStandEitherWayKeepTheirOrder)
{
    std::vector<int> elements = { 3, 1, 2 };

    vorStableMergeSort(elements, [](int, int) { return true; });

    EXPECT_EQ((std::vector<int>{ 3, 1, 2 }), elements);
}
