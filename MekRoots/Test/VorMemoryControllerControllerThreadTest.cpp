// Blocks that change hands between threads, and threads that end.
#include "MekRoots/Test/Support/SanitizerSupport.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstring>
#include <mutex>
#include <random>
#include <set>
#include <thread>
#include <utility>
#include <vector>

namespace
{
using Memory = VorMemoryControllerController;

const std::size_t kSize = 48;

std::vector<void*> allocateMany(int numBlocks, std::size_t size = kSize)
{
    std::vector<void*> blocks;
    blocks.reserve(static_cast<std::size_t>(numBlocks));
    for (int i = 0; i < numBlocks; ++i)
    {
        blocks.push_back(Memory::allocateArray(1, size));
        std::memset(blocks.back(), i, size);
    }
    return blocks;
}

void releaseAll(const std::vector<void*>& blocks, std::size_t size = kSize)
{
    for (void* pBlock : blocks)
        Memory::deallocateArray(pBlock, 1, size);
}

// Hands batches of blocks from one thread to another, one at a time.
class Belt
{
public:
    void put(std::vector<void*> blocks)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_isFull; });
        m_blocks = std::move(blocks);
        m_isFull = true;
        m_changed.notify_all();
    }

    std::vector<void*> take()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isFull; });
        m_isFull = false;
        m_changed.notify_all();
        return std::move(m_blocks);
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<void*> m_blocks;
    bool m_isFull = false;
};
}

TEST(VorMemoryControllerControllerThreadTest, BlocksMayBeFreedOnAnotherThread)
{
    const LeakCheck leaks;
    const std::vector<void*> blocks = allocateMany(5000);

    std::thread([&blocks] { releaseAll(blocks); }).join();
}

TEST(VorMemoryControllerControllerThreadTest, BlocksOutliveTheirThread)
{
    const LeakCheck leaks;
    std::vector<void*> blocks;

    std::thread([&blocks] { blocks = allocateMany(5000); }).join();

    for (std::size_t i = 0; i < blocks.size(); ++i)
        ASSERT_EQ(static_cast<unsigned char>(i), *static_cast<unsigned char*>(blocks[i]));
    releaseAll(blocks);
}

TEST(VorMemoryControllerControllerThreadTest, WhatAFinishedThreadHadFreeIsUsedAgain)
{
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    const LeakCheck leaks;
    std::set<void*> seen;
    for (int round = 0; round < 50; ++round)
        std::thread(
            [&seen]
            {
                const std::vector<void*> blocks = allocateMany(2000);
                seen.insert(blocks.begin(), blocks.end());
                releaseAll(blocks);
            })
            .join();
    EXPECT_LE(seen.size(), 6000U); // 100,000 if every thread began anew
}

TEST(VorMemoryControllerControllerThreadTest, WhatOtherThreadsFreedAndEndedWithComesBack)
{
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    const LeakCheck leaks;
    std::set<void*> seen;
    for (int round = 0; round < 50; ++round)
    {
        const std::vector<void*> blocks = allocateMany(2000);
        seen.insert(blocks.begin(), blocks.end());
        std::thread([&blocks] { releaseAll(blocks); }).join();
    }
    EXPECT_LE(seen.size(), 20000U); // the chunk begun on this thread is used up first; 100,000 if nothing came back
}

TEST(VorMemoryControllerControllerThreadTest, AThreadThatOnlyFreesFeedsOneThatOnlyAllocates)
{
    // A report evaluated on a worker thread and destroyed by the one that shows it, over and over: what the second
    // thread frees must find its way back while both live, or memory grows for ever.
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    const LeakCheck leaks;
    const int numRounds = 200;
    Belt belt;
    std::set<void*> seen;
    std::thread consumer(
        [&belt]
        {
            for (int round = 0; round < numRounds; ++round)
                releaseAll(belt.take());
        });
    for (int round = 0; round < numRounds; ++round)
    {
        std::vector<void*> blocks = allocateMany(2000);
        seen.insert(blocks.begin(), blocks.end());
        belt.put(std::move(blocks));
    }
    consumer.join();

    EXPECT_LE(seen.size(), 40000U); // 400,000 if nothing came back
}

TEST(VorMemoryControllerControllerThreadTest, BlocksOfEverySizeFreedElsewhereComeBackWhileTheirThreadLives)
{
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    const LeakCheck leaks;
    for (const std::size_t size : { std::size_t{ 1 }, std::size_t{ 8 }, std::size_t{ 9 }, std::size_t{ 16 },
                                    std::size_t{ 200 }, Memory::kLargestPooledBlock })
    {
        std::set<void*> seen;
        for (int round = 0; round < 40; ++round)
        {
            const std::vector<void*> blocks = allocateMany(1000, size);
            seen.insert(blocks.begin(), blocks.end());
            std::thread([&blocks, size] { releaseAll(blocks, size); }).join();
        }
        EXPECT_LE(seen.size(), 13000U) << size; // 40,000 if nothing came back
    }
}

namespace
{
// Where two threads leave blocks for each other.
struct Marked
{
    std::size_t size;

    // A block of `size` bytes, the first of which say so, the others are its lowest byte.
    static Marked* create(std::size_t size)
    {
        auto* pMarked = static_cast<Marked*>(Memory::allocateArray(size, 1));
        std::memset(static_cast<void*>(pMarked), static_cast<int>(size & 255), size);
        pMarked->size = size;
        return pMarked;
    }

    static void checkAndRelease(Marked* pMarked)
    {
        if (pMarked == nullptr)
            return;
        const std::size_t size = pMarked->size;
        const auto* pBytes = reinterpret_cast<const unsigned char*>(pMarked);
        std::size_t numRight = sizeof(Marked);
        while (numRight < size && pBytes[numRight] == (size & 255))
            ++numRight;
        EXPECT_EQ(size, numRight) << "somebody else wrote to this block";
        Memory::deallocateArray(pMarked, size, 1);
    }
};

void swapBlocks(std::vector<std::atomic<Marked*>>& places, unsigned int seed)
{
    std::mt19937 random(seed);
    for (int i = 0; i < 60000; ++i)
    {
        const std::size_t size = sizeof(Marked) + random() % (random() % 20 == 0 ? 1500 : 120);
        Marked* pNew = Marked::create(random() % 4 == 0 ? sizeof(Marked) : size);
        Marked::checkAndRelease(places[random() % places.size()].exchange(pNew));
    }
}
}

TEST(VorMemoryControllerControllerThreadTest, ThreadsThatSwapBlocksKeepThemApart)
{
    const LeakCheck leaks;
    std::vector<std::atomic<Marked*>> places(2000);
    std::thread other([&places] { swapBlocks(places, 1); });
    swapBlocks(places, 2);
    other.join();

    for (std::atomic<Marked*>& place : places)
        Marked::checkAndRelease(place);
}

TEST(VorMemoryControllerControllerThreadTest, MemoryOfEndedThreadsIsTakenOverWithTheirBlocksStillLiving)
{
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    const LeakCheck leaks;
    std::set<void*> seen;
    std::vector<void*> kept;
    for (int round = 0; round < 100; ++round)
        std::thread(
            [&]
            {
                std::vector<void*> blocks = allocateMany(2000);
                seen.insert(blocks.begin(), blocks.end());
                kept.push_back(blocks.back());
                blocks.pop_back();
                releaseAll(blocks);
            })
            .join();
    EXPECT_LE(seen.size(), 6000U); // 200,000 if the threads' blocks kept their memory from others
    releaseAll(kept);
}

TEST(VorMemoryControllerControllerThreadTest, LiveBlocksAreExactOnceTheThreadsHaveEnded)
{
    const long long before = Memory::liveBlocks();
    std::vector<std::vector<void*>> blocks(4);
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < blocks.size(); ++number)
        threads.emplace_back(
            [&blocks, number]
            {
                for (int i = 0; i < 50; ++i)
                    releaseAll(allocateMany(100));
                blocks[number] = allocateMany(1000, 16 * (number + 1));
            });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(before + 4000, Memory::liveBlocks());

    for (std::size_t number = 0; number < blocks.size(); ++number)
        std::thread([&blocks, number] { releaseAll(blocks[number], 16 * (number + 1)); }).join();
    EXPECT_EQ(before, Memory::liveBlocks());
}

TEST(VorMemoryControllerControllerThreadTest, LiveBlocksMayBeAskedForWhileOthersAllocate)
{
    const LeakCheck leaks;
    std::atomic<bool> isDone{ false };
    std::thread worker(
        [&isDone]
        {
            for (int i = 0; i < 300; ++i)
                releaseAll(allocateMany(100));
            isDone = true;
        });
    while (!isDone)
        EXPECT_LT(Memory::liveBlocks(), 1000000);
    worker.join();
}

namespace
{
// Destroyed with its thread, after whatever that thread has begun to use later on.
struct EndOfThread
{
    ~EndOfThread()
    {
        releaseAll(blocks);
        text += L" and a new block made while the thread ends";
        const VorStringArray array = list;
        releaseAll(allocateMany(100));
    }

    std::vector<void*> blocks;
    VorString text;
    VorStringArray list;
};
thread_local EndOfThread t_end;
}

TEST(VorMemoryControllerControllerThreadTest, DestructorsOfAThreadsOwnObjectsMayAllocateAndFree)
{
    const LeakCheck leaks;
    for (int round = 0; round < 20; ++round)
        std::thread(
            []
            {
                t_end.list.setGrowBy(4); // constructed before the thread's first block
                t_end.blocks = allocateMany(500);
                t_end.text = L"made late";
                t_end.list.append(t_end.text);
            })
            .join();
}

TEST(VorMemoryControllerControllerThreadTest, BlocksFreedWhileTheThreadEndsAreUsedAgain)
{
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    const LeakCheck leaks;
    std::set<void*> seen;
    for (int round = 0; round < 50; ++round)
        std::thread(
            [&seen]
            {
                t_end.list.empty();
                t_end.blocks = allocateMany(2000);
                seen.insert(t_end.blocks.begin(), t_end.blocks.end());
            })
            .join();
    EXPECT_LE(seen.size(), 6000U);
}

TEST(VorMemoryControllerControllerThreadTest, ManyShortThreadsAtOnceLoseNothing)
{
    const LeakCheck leaks;
    for (int round = 0; round < 30; ++round)
    {
        std::vector<std::thread> threads;
        threads.reserve(8);
        for (int number = 0; number < 8; ++number)
            threads.emplace_back(
                []
                {
                    std::vector<std::vector<void*>> blocks;
                    for (std::size_t size = 1; size <= 600; size += 37)
                        blocks.push_back(allocateMany(20, size));
                    for (std::size_t size = 1, i = 0; size <= 600; size += 37, ++i)
                        releaseAll(blocks[i], size);
                });
        for (std::thread& thread : threads)
            thread.join();
    }
}
