// Where the arrays, texts and value payloads of this system get their memory.
//
// Blocks of up to kLargestPooledBlock bytes come from a pool: one free list per 8-byte size class and thread, filled
// from large chunks, so that the millions of small payloads of a report cost a few instructions each. Larger blocks
// come from the system. A block may be freed on another thread than the one that allocated it, and while thread-local
// objects are destroyed: what a thread has free in plenty, and all that it has free when it ends, is handed to the next
// thread that runs short. Under AddressSanitizer every block comes from the system, so that leaks and overruns are seen.
//
// Throws std::bad_alloc when the system has no memory left.
#pragma once

#include "MekExport.h"

#include <cstddef>

class MEK_ROOTS_API VorMemoryControllerController
{
public:
    // Holds the tuples of an ordinary row, 16 of 32 bytes; its texts and value payloads are smaller.
    static constexpr std::size_t kLargestPooledBlock = 512;

    // Room for `numElements` elements of `elementSize` bytes each, its content undefined; null when that is no bytes at
    // all. Aligned for any type whose size divides the total: to 16 bytes if the total is a multiple of 16, else to 8.
    static void* allocateArray(std::size_t numElements, std::size_t elementSize);

    // Gives back what allocateArray returned for the same two numbers. Null is allowed.
    static void deallocateArray(void* pBlock, std::size_t numElements, std::size_t elementSize);

    // Blocks allocated and not yet given back, by all threads. For leak checks in tests: exact once the other threads
    // have ended or are idle.
    static long long liveBlocks();
};
