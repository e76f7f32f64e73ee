#include "VorStableMergeSort.h"

#include <gtest/gtest.h>

#include <algorithm>
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
        const std::vector<Element> elements = shuffled(numElements, 10);
        const std::vector<std::uint32_t> places = vorStableMergeSort(
            elements.size(), [&](std::uint32_t a, std::uint32_t b) { return isNotAfter(elements[a], elements[b]); });
        std::vector<Element> expected = elements;
        std::stable_sort(expected.begin(), expected.end(),
                         [](const Element& a, const Element& b) { return a.key < b.key; });

        ASSERT_EQ(expected.size(), places.size());
        for (std::size_t i = 0; i < places.size(); ++i)
            EXPECT_EQ(expected[i].place, elements[places[i]].place) << numElements << " elements, at " << i;
    }
}

TEST(VorStableMergeSortTest, AnyAnswersEndAndKeepEveryElement)
{
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round)
    {
        std::vector<std::uint32_t> places =
            vorStableMergeSort(200, [&random](std::uint32_t, std::uint32_t) { return random() % 2 == 0; });

        std::sort(places.begin(), places.end());
        for (std::uint32_t i = 0; i < 200; ++i)
            EXPECT_EQ(i, places[i]);
    }
}

TEST(VorStableMergeSortTest, ElementsThatMayStandEitherWayKeepTheirOrder)
{
    EXPECT_EQ((std::vector<std::uint32_t>{ 0, 1, 2 }),
              vorStableMergeSort(3, [](std::uint32_t, std::uint32_t) { return true; }));
}

namespace
{
// Each beats one of the two others: no order at all.
bool isNotAfterInARing(int a, int b)
{
    return a == b || (a + 1) % 3 == b;
}
}

// Tens of the keys are an order, units are none.
TEST(VorStableMergeSortTest, SomePlacesAloneComeOutAsAmongAllOthers)
{
    std::mt19937 random(8);
    for (std::size_t numElements = 0; numElements < 200; ++numElements)
    {
        std::vector<int> keys(numElements);
        for (int& key : keys)
            key = static_cast<int>(random() % 4 * 10 + random() % 3);
        auto isNotAfter = [&keys](std::uint32_t a, std::uint32_t b)
        {
            const int tens = keys[a] / 10 - keys[b] / 10;
            return tens != 0 ? tens < 0 : isNotAfterInARing(keys[a] % 10, keys[b] % 10);
        };

        std::vector<std::uint32_t> byTens;
        for (int tens = 0; tens < 4; ++tens)
        {
            std::vector<std::uint32_t> places, buffer(numElements);
            for (std::uint32_t i = 0; i < numElements; ++i)
                if (keys[i] / 10 == tens)
                    places.push_back(i);
            vorStableMergeSort(places.data(), places.data() + places.size(), buffer.data(), isNotAfter);
            byTens.insert(byTens.end(), places.begin(), places.end());
        }

        EXPECT_EQ(vorStableMergeSort(numElements, isNotAfter), byTens);
    }
}
