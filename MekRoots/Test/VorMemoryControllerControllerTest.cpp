#include "MekRoots/Test/Support/SanitizerSupport.h"
#include "MekRoots/Test/Support/TestSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <random>
#include <set>
#include <vector>

namespace
{
using Memory = VorMemoryControllerController;

void* allocate(std::size_t size)
{
    return Memory::allocateArray(1, size);
}

void release(void* pBlock, std::size_t size)
{
    Memory::deallocateArray(pBlock, 1, size);
}

std::vector<void*> allocateMany(int numBlocks, std::size_t size)
{
    std::vector<void*> blocks;
    blocks.reserve(static_cast<std::size_t>(numBlocks));
    for (int i = 0; i < numBlocks; ++i)
        blocks.push_back(allocate(size));
    return blocks;
}

void releaseAll(const std::vector<void*>& blocks, std::size_t size)
{
    for (void* pBlock : blocks)
        release(pBlock, size);
}

const std::size_t kLargestPooled = Memory::kLargestPooledBlock;
}

TEST(VorMemoryControllerControllerTest, BlocksAreAlignedForWhateverFillsThem)
{
    const LeakCheck leaks;
    for (std::size_t size = 1; size <= 2 * kLargestPooled; ++size)
    {
        const std::size_t alignment = size % 16 == 0 ? 16 : 8;
        const std::vector<void*> blocks = allocateMany(3, size);
        for (void* pBlock : blocks)
        {
            ASSERT_EQ(0U, reinterpret_cast<std::uintptr_t>(pBlock) % alignment) << size;
            std::memset(pBlock, 0xEE, size);
        }
        releaseAll(blocks, size);
    }
}

TEST(VorMemoryControllerControllerTest, NoBytesAreNoBlock)
{
    const LeakCheck leaks;

    EXPECT_EQ(nullptr, Memory::allocateArray(0, 8));
    EXPECT_EQ(nullptr, Memory::allocateArray(8, 0));
    EXPECT_EQ(nullptr, Memory::allocateArray(0, 0));
    EXPECT_EQ(nullptr, Memory::allocateArray(0, std::numeric_limits<std::size_t>::max()));
    Memory::deallocateArray(nullptr, 0, 8);
    Memory::deallocateArray(nullptr, 8, 8);
}

TEST(VorMemoryControllerControllerTest, LiveBlocksAreCountedExactly)
{
    const long long before = Memory::liveBlocks();
    for (const std::size_t size : { std::size_t{ 1 }, std::size_t{ 16 }, std::size_t{ 17 }, kLargestPooled,
                                    kLargestPooled + 1, std::size_t{ 100000 } })
    {
        const std::vector<void*> blocks = allocateMany(1000, size);
        EXPECT_EQ(before + 1000, Memory::liveBlocks()) << size;
        releaseAll(blocks, size);
        EXPECT_EQ(before, Memory::liveBlocks()) << size;
    }
}

TEST(VorMemoryControllerControllerTest, BlocksNeverOverlap)
{
    const LeakCheck leaks;
    struct Block
    {
        unsigned char* bytes;
        std::size_t size;
        unsigned char mark;
    };
    std::mt19937 random(31);
    std::vector<Block> blocks;
    const auto releaseOne = [&](std::size_t i)
    {
        const Block block = blocks[i];
        for (std::size_t k = 0; k < block.size; ++k)
            ASSERT_EQ(block.mark, block.bytes[k]) << "a block of " << block.size << " was written to by another";
        Memory::deallocateArray(block.bytes, block.size, 1);
        blocks[i] = blocks.back();
        blocks.pop_back();
    };
    for (int i = 0; i < 60000; ++i)
    {
        if (!blocks.empty() && random() % 5 < 2)
        {
            releaseOne(random() % blocks.size());
            continue;
        }
        const std::size_t size = 1 + random() % (random() % 10 == 0 ? 3000 : 600);
        const auto mark = static_cast<unsigned char>(i);
        auto* bytes = static_cast<unsigned char*>(Memory::allocateArray(size, 1));
        std::memset(bytes, mark, size);
        blocks.push_back({ bytes, size, mark });
    }
    while (!blocks.empty() && !HasFatalFailure())
        releaseOne(blocks.size() - 1);
}

TEST(VorMemoryControllerControllerTest, SizesOfOneClassMayDifferOnlyInTheirFactors)
{
    const LeakCheck leaks;
    void* pBlock = Memory::allocateArray(6, 8);

    Memory::deallocateArray(pBlock, 6, 8);
    pBlock = Memory::allocateArray(48, 1);
    Memory::deallocateArray(pBlock, 48, 1);
}

TEST(VorMemoryControllerControllerTest, FreedBlocksAreUsedAgain)
{
    if (kPoolIsBypassed)
        GTEST_SKIP() << "every block comes from the system here";
    for (const std::size_t size : { std::size_t{ 1 }, std::size_t{ 24 }, std::size_t{ 200 }, kLargestPooled })
    {
        std::set<void*> seen;
        for (int round = 0; round < 100; ++round)
        {
            const std::vector<void*> blocks = allocateMany(1000, size);
            seen.insert(blocks.begin(), blocks.end());
            releaseAll(blocks, size);
        }
        EXPECT_LE(seen.size(), 2000U) << size;
    }
}

TEST(VorMemoryControllerControllerTest, ARequestThatOverflowsIsOutOfMemory)
{
    const LeakCheck leaks;
    const std::size_t largest = std::numeric_limits<std::size_t>::max();

    EXPECT_THROW(Memory::allocateArray(largest, 2), std::bad_alloc);
    EXPECT_THROW(Memory::allocateArray(2, largest), std::bad_alloc);
    EXPECT_THROW(Memory::allocateArray(largest / 2 + 1, 2), std::bad_alloc);   // would wrap around to no bytes
    EXPECT_THROW(Memory::allocateArray(largest / 16 + 2, 16), std::bad_alloc); // would wrap around to 16
    EXPECT_THROW(Memory::allocateArray(largest, largest), std::bad_alloc);
}

TEST(VorMemoryControllerControllerTest, ARequestTheSystemCannotServeIsOutOfMemory)
{
    const LeakCheck leaks;

    EXPECT_THROW(allocate(std::numeric_limits<std::size_t>::max()), std::bad_alloc);
    EXPECT_THROW(allocate(std::numeric_limits<std::size_t>::max() - 15), std::bad_alloc);
    EXPECT_THROW(Memory::allocateArray(std::size_t{ 1 } << 30, std::size_t{ 1 } << 25), std::bad_alloc);

    release(allocate(64), 64); // and goes on afterwards
}
