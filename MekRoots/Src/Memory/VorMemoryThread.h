// A thread's heap, and what the pool does where there is none: the first block of a thread, blocks too large for the
// pool, and whatever the thread's last objects still free when its heap has gone to the next thread.
#pragma once

#include "VorMemoryHeap.h"

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define MEK_BYPASS_POOL
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MEK_BYPASS_POOL
#endif
#endif

class VorMemoryThread
{
public:
    // Null before the thread's first block and after its end.
    static VorMemoryHeap* heap() { return s_pHeap; }

    static bool isPooled(std::size_t size)
    {
#if defined(MEK_BYPASS_POOL)
        static_cast<void>(size);
        return false;
#else
        return size - 1 < VorMemoryHeap::kLargestBlock; // no bytes wrap around
#endif
    }

    // Blocks of any size, with or without a heap; null for no bytes. Throw std::bad_alloc.
    static void* allocate(std::size_t size, bool isAlignedTo16);
    static void release(void* pBlock, std::size_t size);

private:
    struct End;
    class HeapForOneCall;

    static void beginUseOfHeap();
    static void endUseOfHeap();

    // Constant-initialised and without destructor: blocks may be freed until the very end of a thread.
    static inline thread_local VorMemoryHeap* s_pHeap = nullptr;
    static inline thread_local bool s_hasEnded = false;
};
