#include "VorMemoryPage.h"

#include "VorMemoryHeap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <new>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace
{
const std::size_t kGranule = VorMemoryPage::kGranule;
const std::size_t kRunSize = VorMemoryPage::kRunSize;

// A half-open range of bytes; none of them where there was no run.
struct Piece
{
    char* pFirst = nullptr;
    char* pEnd = nullptr;

    std::size_t size() const { return static_cast<std::size_t>(pEnd - pFirst); }
};

// A page in memory of its own, and its bytes counted from the start of the page.
class TestPage
{
public:
    TestPage() : m_pMemory(::operator new(VorMemoryPage::kSize, kAlignment)) { create(); }
    ~TestPage() { ::operator delete(m_pMemory, kAlignment); }
    TestPage(const TestPage&) = delete;
    TestPage& operator=(const TestPage&) = delete;

    VorMemoryPage* operator->() const { return m_pPage; }
    VorMemoryHeap& heap() { return m_heap; }

    char* at(std::size_t offset) const { return static_cast<char*>(m_pMemory) + offset; }
    std::size_t offsetOf(const char* p) const { return static_cast<std::size_t>(p - at(0)); }

    // Where the blocks begin.
    static std::size_t firstOffset() { return (sizeof(VorMemoryPage) + kGranule - 1) / kGranule * kGranule; }
    static std::size_t room() { return VorMemoryPage::kSize - firstOffset(); }

    Piece take(std::size_t size) const
    {
        Piece run;
        const bool isTaken = m_pPage->takeRun(size, run.pFirst, run.pEnd);
        EXPECT_EQ(isTaken, run.size() > 0);
        return run;
    }

    std::vector<Piece> takeAll() const
    {
        std::vector<Piece> runs;
        for (Piece run = take(kGranule); run.size() > 0; run = take(kGranule))
            runs.push_back(run);
        return runs;
    }

    void putBack(const Piece& run) const { m_pPage->putBack(run.pFirst, run.size()); }

private:
    static constexpr std::align_val_t kAlignment{ VorMemoryPage::kSize };

    void create() { m_pPage = VorMemoryPage::create(m_pMemory, m_heap); }

    void* m_pMemory;
    VorMemoryHeap m_heap; // owns the page in name only
    VorMemoryPage* m_pPage = nullptr;
};

std::size_t sizeOf(const std::vector<Piece>& runs)
{
    std::size_t size = 0;
    for (const Piece& run : runs)
        size += run.size();
    return size;
}
}

TEST(VorMemoryPageTest, AFreshPageIsTakenInTheOrderOfItsAddresses)
{
    const TestPage page;
    EXPECT_TRUE(page->isEmpty());

    const std::vector<Piece> runs = page.takeAll();

    ASSERT_FALSE(runs.empty());
    EXPECT_EQ(page.at(TestPage::firstOffset()), runs.front().pFirst);
    EXPECT_EQ(page.at(VorMemoryPage::kSize), runs.back().pEnd);
    for (std::size_t i = 1; i < runs.size(); ++i)
    {
        EXPECT_EQ(runs[i - 1].pEnd, runs[i].pFirst);
        EXPECT_EQ(kRunSize, runs[i - 1].size());
    }
    EXPECT_EQ(TestPage::room(), sizeOf(runs));
    EXPECT_FALSE(page->isEmpty());
}

TEST(VorMemoryPageTest, EveryAddressOfAPageTellsThePageAndItsOwner)
{
    TestPage page;
    for (const std::size_t offset : { TestPage::firstOffset(), kRunSize, VorMemoryPage::kSize - kGranule })
        EXPECT_EQ(page.at(0), reinterpret_cast<char*>(&VorMemoryPage::of(page.at(offset))));
    EXPECT_EQ(&page.heap(), &page->owner());
}

TEST(VorMemoryPageTest, ARunIsLongerThanUsualWhenMoreIsAskedFor)
{
    const TestPage page;

    EXPECT_EQ(kRunSize + kGranule, page.take(kRunSize + kGranule).size());
    EXPECT_EQ(TestPage::room() - kRunSize - kGranule, page.take(TestPage::room() - kRunSize - kGranule).size());
    EXPECT_EQ(0U, page.take(kGranule).size());
}

TEST(VorMemoryPageTest, WhatAPageDoesNotHoldIsNotTaken)
{
    const TestPage page;
    char first = 0;
    char* pFirst = &first;
    char* pEnd = &first;

    EXPECT_FALSE(page->takeRun(TestPage::room() + kGranule, pFirst, pEnd));

    EXPECT_EQ(&first, pFirst);
    EXPECT_EQ(&first, pEnd);
    EXPECT_TRUE(page->isEmpty());
}

TEST(VorMemoryPageTest, StretchesAcrossWordsAreFoundExactly)
{
    const TestPage page;
    page.takeAll();
    for (std::size_t start = 0; start < 130; ++start)
        for (const std::size_t length : { 1U, 2U, 63U, 64U, 65U, 127U, 128U, 129U, 200U, 512U })
        {
            const std::size_t offset = 16 * kRunSize / 2 + start * kGranule;
            page->putBack(page.at(offset), length * kGranule);
            page->rewind();

            const Piece run = page.take(length * kGranule);

            ASSERT_EQ(offset, page.offsetOf(run.pFirst)) << length;
            ASSERT_EQ(length * kGranule, run.size()) << "from granule " << start;
            page->rewind();
            ASSERT_EQ(0U, page.take(kGranule).size()) << "a neighbour was freed, or some of the run was not taken";
        }
}

TEST(VorMemoryPageTest, AStretchThatEndsWithThePageIsTakenWhole)
{
    const TestPage page;
    page.takeAll();
    for (const std::size_t length : { 1U, 63U, 64U, 65U, 255U })
    {
        const std::size_t offset = VorMemoryPage::kSize - length * kGranule;
        page->putBack(page.at(offset), length * kGranule);
        page->rewind();

        EXPECT_EQ(0U, page.take((length + 1) * kGranule).size());
        page->rewind();
        const Piece run = page.take(kGranule);

        EXPECT_EQ(offset, page.offsetOf(run.pFirst));
        EXPECT_EQ(page.at(VorMemoryPage::kSize), run.pEnd);
    }
}

TEST(VorMemoryPageTest, StretchesThatAreTooShortArePassedOver)
{
    const TestPage page;
    page.takeAll();
    const std::size_t hole = 5 * kGranule;
    const std::size_t large = 40 * kGranule;
    for (std::size_t i = 0; i < 20; ++i)
        page->putBack(page.at(2 * kRunSize + i * 100 * kGranule), i == 13 ? large : hole);
    page->rewind();

    const Piece run = page.take(hole + kGranule);

    EXPECT_EQ(2 * kRunSize + 13 * 100 * kGranule, page.offsetOf(run.pFirst));
    EXPECT_EQ(large, run.size());
    EXPECT_EQ(0U, page.take(hole + kGranule).size());
    page->rewind();
    EXPECT_EQ(2 * kRunSize, page.offsetOf(page.take(hole).pFirst)) << "the short ones are still there";
}

TEST(VorMemoryPageTest, TheStartIsLookedAtAgainOnceARunsWorthCameBack)
{
    const TestPage page;
    page.takeAll();
    char* pFirst = page.at(TestPage::firstOffset());

    page->putBack(pFirst, kRunSize - kGranule);
    EXPECT_EQ(0U, page.take(kGranule).size()) << "not yet enough";
    page->putBack(page.at(TestPage::firstOffset() + kRunSize + kGranule), kGranule);

    const Piece run = page.take(kGranule);
    EXPECT_EQ(pFirst, run.pFirst);
    EXPECT_EQ(kRunSize - kGranule, run.size());
    EXPECT_EQ(kGranule, page.take(kGranule).size());
    EXPECT_EQ(0U, page.take(kGranule).size());
}

TEST(VorMemoryPageTest, TheRestOfARunIsTakenNext)
{
    const TestPage page;
    const Piece run = page.take(kGranule);
    char* pRest = run.pFirst + 7 * kGranule;

    page->putBackRest(pRest, run.pEnd);
    const Piece next = page.take(kGranule);

    EXPECT_EQ(pRest, next.pFirst);
    EXPECT_EQ(kRunSize, next.size()) << "the rest and what follows it";
    page->putBackRest(next.pFirst, next.pEnd);
    page->putBack(run.pFirst, 7 * kGranule);
    EXPECT_TRUE(page->isEmpty());
}

TEST(VorMemoryPageTest, NoRestIsNothing)
{
    const TestPage page;
    const std::vector<Piece> runs = page.takeAll();

    page->putBackRest(runs.back().pEnd, runs.back().pEnd); // at the very end of the page

    EXPECT_EQ(0U, page.take(kGranule).size());
    for (const Piece& run : runs)
        page.putBack(run);
    EXPECT_TRUE(page->isEmpty());
}

TEST(VorMemoryPageTest, AGapIsFreeButDoesNotCountAsComeBack)
{
    const TestPage page;
    page.takeAll();
    const std::size_t gap = kRunSize; // far more than one granule, yet no reason to look again

    page->putBackGap(page.at(2 * kRunSize), page.at(2 * kRunSize + gap));

    EXPECT_EQ(0U, page.take(kGranule).size());
    EXPECT_FALSE(page->isWorthOffering());
    page->rewind();
    EXPECT_EQ(page.at(2 * kRunSize), page.take(kGranule).pFirst);
}

TEST(VorMemoryPageTest, APageIsWorthOfferingOnceAnEighthOfItCameBack)
{
    const TestPage page;
    page.takeAll();
    const std::size_t eighth = VorMemoryPage::kSize / 8;

    page->putBack(page.at(2 * kRunSize), eighth - kGranule);
    EXPECT_FALSE(page->isWorthOffering());
    page->putBack(page.at(8 * kRunSize), kGranule);
    EXPECT_TRUE(page->isWorthOffering());

    page->rewind();
    EXPECT_FALSE(page->isWorthOffering()) << "looked at again";
}

TEST(VorMemoryPageTest, TheStartMovesBehindShortRuns)
{
    const TestPage page;
    const std::vector<Piece> runs = page.takeAll();
    const std::size_t hole = kRunSize / 16;
    std::vector<Piece> holes;
    for (std::size_t i = 0; i < 16; ++i) // a run's length of them, each behind a block that stays
        holes.push_back({ page.at(2 * kRunSize + 2 * i * hole), page.at(2 * kRunSize + (2 * i + 1) * hole) });
    for (const Piece& piece : holes)
        page.putBack(piece);
    page.putBack(runs.back());
    page->rewind();
    for (const Piece& piece : holes)
        EXPECT_EQ(piece.pFirst, page.take(kGranule).pFirst);

    for (const Piece& piece : holes)
        page.putBack(piece);

    EXPECT_EQ(runs.back().pFirst, page.take(kGranule).pFirst) << "the holes are passed over";
    page->rewind();
    EXPECT_EQ(holes.front().pFirst, page.take(kGranule).pFirst);
}

TEST(VorMemoryPageTest, APageFullOfBlocksIsEmptyAfterTheLastInAnyOrder)
{
    std::mt19937 random(7);
    const TestPage page;
    for (int round = 0; round < 50; ++round)
    {
        std::vector<Piece> blocks;
        page->rewind();
        for (const Piece& run : page.takeAll())
            for (char* p = run.pFirst; p != run.pEnd;)
            {
                const std::size_t size = std::min((1 + random() % 60) * kGranule, Piece{ p, run.pEnd }.size());
                blocks.push_back({ p, p + size });
                p += size;
            }
        ASSERT_EQ(TestPage::room(), sizeOf(blocks));
        std::shuffle(blocks.begin(), blocks.end(), random);

        for (const Piece& block : blocks)
        {
            ASSERT_FALSE(page->isEmpty());
            page.putBack(block);
        }

        ASSERT_TRUE(page->isEmpty());
    }
}

namespace
{
// What a page is to do, granule by granule.
class SlowPage
{
public:
    explicit SlowPage(std::size_t numUsedInFront) : m_isFree(VorMemoryPage::kSize / kGranule, true)
    {
        mark(0, numUsedInFront, false);
    }

    // The granules [first, second) of the run; none of them for no run.
    std::pair<std::size_t, std::size_t> takeRun(std::size_t numWanted)
    {
        if (m_numReturned >= kRunSize / kGranule)
            goBack(areRunsShort() ? m_next : m_start);
        const std::size_t longest = std::max(numWanted, kRunSize / kGranule);
        while (m_next < m_isFree.size())
        {
            const std::size_t first = m_next;
            while (m_next < m_isFree.size() && m_isFree[m_next] && m_next - first < longest)
                ++m_next;
            if (m_next > first && m_next - first >= numWanted)
            {
                mark(first, m_next, false);
                m_runs.push_back(m_next - first);
                return { first, m_next };
            }
            if (m_next == first)
                ++m_next;
        }
        return { 0, 0 };
    }

    void putBack(std::size_t first, std::size_t end)
    {
        mark(first, end, true);
        m_numReturned += end - first;
    }

    void putBackRest(std::size_t first, std::size_t end)
    {
        mark(first, end, true);
        m_next = first;
    }

    void rewind() { goBack(0); }

private:
    void goBack(std::size_t start)
    {
        m_start = m_next = start;
        m_numReturned = 0;
        m_runs.clear();
    }

    bool areRunsShort() const
    {
        const double numTaken = std::accumulate(m_runs.begin(), m_runs.end(), 0.0);
        return m_runs.size() >= 4 && numTaken / static_cast<double>(m_runs.size()) < kRunSize / kGranule / 8.0;
    }

    void mark(std::size_t first, std::size_t end, bool isFree)
    {
        for (; first != end; ++first)
            m_isFree[first] = isFree;
    }

    std::vector<bool> m_isFree;
    std::vector<std::size_t> m_runs; // since the last search began
    std::size_t m_start = 0;
    std::size_t m_next = 0;
    std::size_t m_numReturned = 0;
};
}

TEST(VorMemoryPageTest, RandomLivesGoAsTheyDoGranuleByGranule)
{
    std::mt19937 random(19);
    for (int round = 0; round < 20; ++round)
    {
        const TestPage page;
        SlowPage slow(TestPage::firstOffset() / kGranule);
        std::vector<std::pair<std::size_t, std::size_t>> blocks;
        for (int step = 0; step < 3000; ++step)
        {
            if (random() % 50 == 0)
            {
                page->rewind();
                slow.rewind();
            }
            if (!blocks.empty() && random() % 2 == 0)
            {
                std::swap(blocks[random() % blocks.size()], blocks.back());
                const auto [first, end] = blocks.back();
                blocks.pop_back();
                page->putBack(page.at(first * kGranule), (end - first) * kGranule);
                slow.putBack(first, end);
                continue;
            }
            const std::size_t numWanted = 1 + random() % (random() % 4 == 0 ? 128 : 8);
            const Piece run = page.take(numWanted * kGranule);
            const auto [first, end] = slow.takeRun(numWanted);
            ASSERT_EQ((end - first) * kGranule, run.size()) << "step " << step;
            if (run.size() == 0)
                continue;
            ASSERT_EQ(first * kGranule, page.offsetOf(run.pFirst)) << "step " << step;
            const std::size_t middle = std::min(end, first + numWanted * (1 + random() % 4));
            blocks.emplace_back(first, middle);
            page->putBackRest(page.at(middle * kGranule), run.pEnd);
            slow.putBackRest(middle, end);
        }
        for (const auto& [first, end] : blocks)
            page->putBack(page.at(first * kGranule), (end - first) * kGranule);
        ASSERT_TRUE(page->isEmpty());
    }
}
