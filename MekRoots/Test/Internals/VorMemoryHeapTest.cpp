// Where blocks lie, and how much memory they take over time. Counted in pages: a block tells its page.
#include "MekRoots/Test/Support/SanitizerSupport.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include "VorMemoryPage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <set>
#include <vector>

namespace
{
using Memory = VorMemoryControllerController;

struct Block
{
    char* pFirst;
    std::size_t size;
};

class VorMemoryHeapTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (kPoolIsBypassed)
            GTEST_SKIP() << "every block comes from the system here";
    }

    Block allocate(std::size_t size)
    {
        auto* pFirst = static_cast<char*>(Memory::allocateArray(size, 1));
        m_pages.insert(reinterpret_cast<std::uintptr_t>(pFirst) / VorMemoryPage::kSize);
        return { pFirst, size };
    }

    static void release(const Block& block) { Memory::deallocateArray(block.pFirst, block.size, 1); }

    std::vector<Block> allocateMixed(int numBlocks, std::size_t largest, unsigned int seed)
    {
        std::mt19937 random(seed);
        std::vector<Block> blocks;
        for (int i = 0; i < numBlocks; ++i)
            blocks.push_back(allocate(1 + random() % largest));
        return blocks;
    }

    static void releaseShuffled(std::vector<Block> blocks, unsigned int seed)
    {
        std::mt19937 random(seed);
        std::shuffle(blocks.begin(), blocks.end(), random);
        for (const Block& block : blocks)
            release(block);
    }

    // All different pages that blocks were seen in.
    std::size_t numPages() const { return m_pages.size(); }

private:
    LeakCheck m_leaks;
    std::set<std::uintptr_t> m_pages;
};

std::size_t rounded(std::size_t size)
{
    return (size + VorMemoryPage::kGranule - 1) / VorMemoryPage::kGranule * VorMemoryPage::kGranule;
}
}

TEST_F(VorMemoryHeapTest, BlocksOfAllSizesLieSideBySideInTheOrderOfTheirMaking)
{
    const std::vector<Block> blocks = allocateMixed(20000, 200, 1);

    int numNeighbours = 0;
    for (std::size_t i = 1; i < blocks.size(); ++i)
        if (blocks[i - 1].pFirst + rounded(blocks[i - 1].size) <= blocks[i].pFirst &&
            blocks[i].pFirst <= blocks[i - 1].pFirst + rounded(blocks[i - 1].size) + VorMemoryPage::kGranule)
            ++numNeighbours; // side by side, but for the alignment of one
    EXPECT_GE(numNeighbours, 19800);

    releaseShuffled(blocks, 2);
}

TEST_F(VorMemoryHeapTest, MemoryFreedInRandomOrderIsHandedOutInOrderAgain)
{
    releaseShuffled(allocateMixed(20000, 200, 3), 4);

    const std::vector<Block> blocks = allocateMixed(20000, 200, 3);

    int numAscending = 0;
    for (std::size_t i = 1; i < blocks.size(); ++i)
        if (blocks[i - 1].pFirst < blocks[i].pFirst)
            ++numAscending;
    EXPECT_GE(numAscending, 19800);
    releaseShuffled(blocks, 5);
}

TEST_F(VorMemoryHeapTest, AllocatingTheSameOnceMoreTakesNoMoreMemory)
{
    releaseShuffled(allocateMixed(30000, 300, 6), 7);
    const std::size_t numPagesBefore = numPages();

    for (unsigned int round = 0; round < 5; ++round)
        releaseShuffled(allocateMixed(30000, 300, 6), round);

    EXPECT_LE(numPages(), numPagesBefore + 1);
}

TEST_F(VorMemoryHeapTest, TheLatestBlocksAreFreedIntoTheirRun)
{
    std::vector<Block> blocks = allocateMixed(20, 100, 8);
    char* const pLatest = blocks.back().pFirst;
    const std::size_t size = blocks.back().size;

    release(blocks.back());
    EXPECT_EQ(pLatest, static_cast<char*>(Memory::allocateArray(size, 1)));

    while (!blocks.empty())
    {
        release(blocks.back());
        blocks.pop_back();
    }
}

TEST_F(VorMemoryHeapTest, HolesThatAreTooSmallArePassedOver)
{
    std::vector<Block> blocks = allocateMixed(50000, 200, 9);
    std::vector<Block> kept;
    for (std::size_t i = 0; i < blocks.size(); ++i)
    {
        if (i % 2 == 0)
            release(blocks[i]);
        else
            kept.push_back(blocks[i]);
    }

    std::vector<Block> large;
    for (int i = 0; i < 2000; ++i)
        large.push_back(allocate(Memory::kLargestPooledBlock));

    std::sort(kept.begin(), kept.end(), [](const Block& a, const Block& b) { return a.pFirst < b.pFirst; });
    for (const Block& block : large)
    {
        const auto next = std::upper_bound(kept.begin(), kept.end(), block,
                                           [](const Block& a, const Block& b) { return a.pFirst < b.pFirst; });
        ASSERT_TRUE(next == kept.end() || block.pFirst + block.size <= next->pFirst);
        ASSERT_TRUE(next == kept.begin() || (next - 1)->pFirst + (next - 1)->size <= block.pFirst);
    }
    releaseShuffled(large, 10);
    releaseShuffled(kept, 11);
}

TEST_F(VorMemoryHeapTest, WhatIsLeftOfLifeAfterLifeDoesNotPinItsMemory)
{
    // Each round leaves every sixteenth block behind; what lives at the end is 20 sixteenths of one round.
    std::mt19937 random(12);
    std::vector<Block> left;
    std::size_t numPagesOfOneRound = 0;
    for (unsigned int round = 0; round < 20; ++round)
    {
        std::vector<Block> blocks = allocateMixed(20000, 200, round);
        std::shuffle(blocks.begin(), blocks.end(), random);
        for (std::size_t i = 0; i < blocks.size(); ++i)
        {
            if (i % 16 == 0)
                left.push_back(blocks[i]);
            else
                release(blocks[i]);
        }
        if (round == 0)
            numPagesOfOneRound = numPages();
    }
    EXPECT_LE(numPages(), 4 * numPagesOfOneRound); // 20 times as many if nothing left behind could be built around

    releaseShuffled(left, 13);
}

TEST_F(VorMemoryHeapTest, ASteadyStateOfMixedSizesStaysWithinItsMemory)
{
    std::mt19937 random(14);
    std::vector<Block> blocks = allocateMixed(20000, 300, 15);
    const std::size_t numPagesBefore = numPages();

    for (int i = 0; i < 2000000; ++i)
    {
        Block& block = blocks[random() % blocks.size()];
        release(block);
        block = allocate(1 + random() % (random() % 100 == 0 ? Memory::kLargestPooledBlock : 300));
    }

    EXPECT_LE(numPages(), 3 * numPagesBefore);
    releaseShuffled(blocks, 16);
}
