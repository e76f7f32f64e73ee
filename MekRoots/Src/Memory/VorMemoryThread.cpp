// The heap of a thread over its life:
//   before its first block   s_pHeap is null; beginUseOfHeap() takes a heap and has End destroyed when the thread ends
//   while it runs            s_pHeap is its heap, and all blocks go there directly
//   after End is destroyed   s_pHeap is null again and the heap another thread's; thread-local objects that are
//                            destroyed later still free blocks, each through a heap that is taken for that one call
#include "VorMemoryThread.h"

#include <cstdlib>
#include <new>

// Destroyed with its thread, which is how the thread's end is noticed.
struct VorMemoryThread::End
{
    End() = default;
    End(const End&) = delete;
    End& operator=(const End&) = delete;
    ~End()
    {
        s_hasEnded = true;
        endUseOfHeap();
    }
};

// The thread's heap; after the thread's end one that is handed back at once.
class VorMemoryThread::HeapForOneCall
{
public:
    HeapForOneCall()
    {
        if (s_pHeap == nullptr)
            beginUseOfHeap();
    }
    ~HeapForOneCall()
    {
        if (s_hasEnded)
            endUseOfHeap();
    }
    HeapForOneCall(const HeapForOneCall&) = delete;
    HeapForOneCall& operator=(const HeapForOneCall&) = delete;

    VorMemoryHeap* operator->() const { return s_pHeap; }
};

// After the thread's end nothing is left that would be destroyed later and hand this heap back; HeapForOneCall does it.
void VorMemoryThread::beginUseOfHeap()
{
    s_pHeap = &VorMemoryHeap::takeOne();
    if (s_hasEnded)
        return;
    static thread_local End end;
    static_cast<void>(end);
}

void VorMemoryThread::endUseOfHeap()
{
    VorMemoryHeap::handBack(*s_pHeap);
    s_pHeap = nullptr;
}

// Blocks of the system need a heap, too: it counts them among the live ones.
void* VorMemoryThread::allocate(std::size_t size, bool isAlignedTo16)
{
    if (size == 0)
        return nullptr;
    const HeapForOneCall heap;
    if (isPooled(size))
        return heap->allocate(size, isAlignedTo16);
    void* pBlock = std::malloc(size);
    if (pBlock == nullptr)
        throw std::bad_alloc();
    heap->addLive(1);
    return pBlock;
}

void VorMemoryThread::release(void* pBlock, std::size_t size)
{
    const HeapForOneCall heap;
    if (isPooled(size))
    {
        heap->release(pBlock, size);
        return;
    }
    std::free(pBlock);
    heap->addLive(-1);
}
