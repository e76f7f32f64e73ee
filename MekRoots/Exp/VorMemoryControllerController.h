// Where the arrays, texts and items of this system get their memory.
//
// Blocks of up to kLargestPooledBlock bytes come from a pool: pages of one thread each, cut in the order of addresses,
// so that the millions of small texts of a report cost a few instructions each and lie side by side in the order in
// which they were made. A block may be freed on another thread than the one that allocated it, and while thread-local
// objects are destroyed. Larger blocks come from the system. Under AddressSanitizer every block does, so that leaks and
// overruns are seen.
//
// Throws std::bad_alloc when the system has no memory left.
#pragma once

#include "MekExport.h"

#include <cstddef>
#include <limits>
#include <new>

class MEK_ROOTS_API VorMemoryControllerController
{
public:
    // Holds the tuples of a wide row, 32 of at most 32 bytes; its texts are smaller.
    static constexpr std::size_t kLargestPooledBlock = 1024;

    // Room for `numElements` elements of `elementSize` bytes each, its content undefined; null when that is no bytes at
    // all. Aligned for any type of that size: to 16 bytes if it is a multiple of 16, as far as the system's own blocks
    // are, else to 8.
    static void* allocateArray(std::size_t numElements, std::size_t elementSize)
    {
        return allocate(sizeOf(numElements, elementSize), elementSize % 16 == 0);
    }

    // Gives back what allocateArray returned for the same two numbers. Null is allowed.
    static void deallocateArray(void* pBlock, std::size_t numElements, std::size_t elementSize)
    {
        if (pBlock != nullptr)
            release(pBlock, numElements * elementSize);
    }

    // Blocks allocated and not yet given back, by all threads. For leak checks in tests: exact once the other threads
    // have ended or are idle.
    static long long liveBlocks();

private:
    static std::size_t sizeOf(std::size_t numElements, std::size_t elementSize)
    {
        if (elementSize != 0 && numElements > std::numeric_limits<std::size_t>::max() / elementSize)
            throw std::bad_alloc();
        return numElements * elementSize;
    }

    static void* allocate(std::size_t size, bool isAlignedTo16);
    static void release(void* pBlock, std::size_t size);
};
